#pragma once

#include "TrainerReferences.h"
#include "TrainingBench.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabBar>

namespace lingomat {

/// A Trainer on a real file, with its panels at hand.
struct PanelsBench : TrainingBench {
    explicit PanelsBench(const QString& language = QStringLiteral("En")) : TrainingBench(0, language) {
        openFile();
    }

    QString field(const char* name) { return child<QLineEdit>(trainer, name).text(); }
    QString text(const char* name) { return child<QPlainTextEdit>(trainer, name).toPlainText(); }
    QStringList items(const char* name) {
        const auto& box = child<QListWidget>(trainer, name);
        QStringList all;
        for (int row = 0; row < box.count(); ++row)
            all += box.item(row)->text();
        return all;
    }
    QTabBar& tabs() { return child<QTabBar>(trainer, "TabStrip1"); }
    QComboBox& types() { return child<QComboBox>(trainer, "ReferenzenCombo"); }
    QString relation(int row) { return child<FlexGrid>(trainer, "MSFlexGrid1").TextMatrix(row, 0); }
    TrainerReferences& references() { return child<TrainerReferences>(trainer, "picReferenzen"); }
    void press(const char* arrow) { child<QToolButton>(trainer, arrow).click(); }
    void showEntry(int row) {
        trainer.Position = static_cast<qint16>(row - 1);
        trainer.Command2_Click();
    }
    bool noteIsShown() { return shown("frNoReferences"); }
};

} // namespace lingomat
