#pragma once

#include "TrainingBench.h"

#include "Globals.h"
#include "frmOptions.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QTabBar>

namespace lingomat {

/// The options dialog over a session. It is shown by the test itself, which works on it while it is open.
struct OptionsBench : TrainingBench {
    explicit OptionsBench(int entries = 3, const QString& language = QStringLiteral("En"))
        : TrainingBench(entries, language),
          form(context.forms, trainer, list),
          pairGrid(child<FlexGrid>(form, "MSFlexGrid1")) {}

    void open() { form.show(); }
    [[nodiscard]] QAbstractButton& box(const char* name) { return child<QAbstractButton>(form, name); }
    [[nodiscard]] QLineEdit& text(const char* name) { return child<QLineEdit>(form, name); }
    void press(const char* name) { box(name).click(); }
    [[nodiscard]] QTabBar& tabs() { return child<QTabBar>(form, "tbsOptions"); }
    [[nodiscard]] QString label(const char* name) { return child<QLabel>(form, name).text(); }

    void enterPair(const QString& left, const QString& right) {
        text("Text1").setText(left);
        text("Text2").setText(right);
    }
    void addPair(const QString& left, const QString& right) {
        enterPair(left, right);
        press("Add");
    }
    /// What the grid shows: "!¡ ?¿".
    [[nodiscard]] QString shownPairs() const {
        QStringList all;
        for (int row = 0; row < pairGrid.Rows(); ++row) {
            if (pairGrid.RowHeight(row) > 0)
                all += pairGrid.TextMatrix(row, 1) + pairGrid.TextMatrix(row, 3);
        }
        return all.join(u' ');
    }
    void storePairs(const QStringList& pairs) {
        for (int number = 1; number <= pairs.size(); ++number)
            context.settings.SaveSetting(AppName(), QStringLiteral("Exceptions"),
                                         QStringLiteral("Exc_%1").arg(number), pairs[number - 1]);
    }
    /// What another program reads from a section: "Exc_1=!¡ Exc_2=?¿".
    [[nodiscard]] QString section(const char* name) const {
        QStringList all;
        const auto values = SettingsStore(context.path(QStringLiteral("settings")))
                                .GetAllSettings(AppName(), QString::fromLatin1(name));
        for (const auto& [key, value] : values)
            all += key + u'=' + value;
        return all.join(u' ');
    }
    [[nodiscard]] QString mapped(const QString& text) const {
        return context.state.Exceptions.WorkInException(text);
    }

    frmOptions form;
    FlexGrid& pairGrid;
};

} // namespace lingomat
