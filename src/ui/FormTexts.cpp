#include "FormTexts.h"

#include "Globals.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QWidget>

namespace lingomat {

namespace {

QString chosen(const char16_t* german, const char16_t* english) {
    const char16_t* text = interfaceIsEnglish() ? english : german;
    return text ? QString::fromUtf16(text) : QString();
}

/// "&File" is read out as "File", "Find && Replace" as "Find & Replace".
QString withoutMnemonic(const QString& text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool marksNext = text[i] == u'&' && i + 1 < text.size();
        result += text[marksNext ? ++i : i];
    }
    return result;
}

/// Whether a window other than the form stands between the two. Menus and lists that pop up belong to the
/// form.
bool belongsToAnotherWindow(const QObject* object, const QWidget& form) {
    for (; object && object != &form; object = object->parent()) {
        const auto* widget = qobject_cast<const QWidget*>(object);
        if (widget && widget->isWindow() && widget->windowType() != Qt::Popup)
            return true;
    }
    return false;
}

/// The tab bar (and tab widget around it, if any) that shows a page, and where.
bool applyToTab(QWidget& page, const QString& text, const QString& tip) {
    for (QWidget* above = page.parentWidget(); above; above = above->parentWidget()) {
        auto* tabs = qobject_cast<QTabWidget*>(above);
        const int index = tabs ? tabs->indexOf(&page) : -1;
        if (index < 0)
            continue;
        if (!text.isEmpty())
            tabs->setTabText(index, text);
        if (!tip.isEmpty())
            tabs->setTabToolTip(index, tip);
        return true;
    }
    return false;
}

void applyText(QWidget& widget, const QString& text) {
    if (auto* button = qobject_cast<QAbstractButton*>(&widget))
        button->setText(text);
    else if (auto* label = qobject_cast<QLabel*>(&widget))
        label->setText(text);
    else if (auto* group = qobject_cast<QGroupBox*>(&widget))
        group->setTitle(text);
    else if (auto* menu = qobject_cast<QMenu*>(&widget))
        menu->setTitle(text);
    else if (widget.isWindow())
        widget.setWindowTitle(text);
    else
        widget.setAccessibleName(withoutMnemonic(text)); // a field or list shows no caption of its own
}

/// A control without a caption is told by its tip. (Those with one are read out by it.)
void nameByTip(QWidget& widget, const QString& tip) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (button && button->text().isEmpty() && widget.accessibleName().isEmpty())
        widget.setAccessibleName(tip);
}

void apply(QObject& object, const QString& text, const QString& tip) {
    if (auto* action = qobject_cast<QAction*>(&object)) {
        if (!text.isEmpty())
            action->setText(text);
        if (!tip.isEmpty())
            action->setToolTip(tip);
        return;
    }
    auto* widget = qobject_cast<QWidget*>(&object);
    if (!widget || applyToTab(*widget, text, tip))
        return;
    if (!text.isEmpty())
        applyText(*widget, text);
    if (!tip.isEmpty()) {
        widget->setToolTip(tip);
        nameByTip(*widget, tip);
    }
}

/// A tab bar that stands alone: its tabs are named by their data.
bool applyToLoneTab(QWidget& form, const QString& name, const QString& text, const QString& tip) {
    bool found = false;
    const auto bars = form.findChildren<QTabBar*>();
    for (QTabBar* bar : bars) {
        for (int i = 0; i < bar->count(); ++i) {
            if (bar->tabData(i).toString() != name)
                continue;
            found = true;
            if (!text.isEmpty())
                bar->setTabText(i, text);
            if (!tip.isEmpty())
                bar->setTabToolTip(i, tip);
        }
    }
    return found;
}

bool applyLine(QWidget& form, const FormText& line) {
    const QString name = QString::fromUtf8(line.object);
    const QString text = chosen(line.german, line.english);
    const QString tip = chosen(line.germanTip, line.englishTip);

    if (form.objectName() == name) {
        apply(form, text, tip);
        return true;
    }
    bool found = false;
    const auto named = form.findChildren<QObject*>(name);
    for (QObject* object : named) {
        if (belongsToAnotherWindow(object, form))
            continue;
        apply(*object, text, tip);
        found = true;
    }
    return found || applyToLoneTab(form, name, text, tip);
}

} // namespace

void applyTexts(QWidget& form, std::span<const FormText> table) {
    for (const FormText& line : table) {
        [[maybe_unused]] const bool found = applyLine(form, line);
        Q_ASSERT_X(found, "applyTexts", line.object);
    }
}

} // namespace lingomat
