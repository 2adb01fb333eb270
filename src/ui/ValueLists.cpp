#include "ValueLists.h"

#include "Collation.h"
#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "Globals.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

struct Kind {
    const char16_t* name;
    const char16_t* box; ///< its name for ClearComboBoxes; null: it has none
};

constexpr Kind kinds[] = {
    {u"Wortart", u"Wortart"},
    {u"Bereich", u"Bereich"},
    {u"Quelle", u"Quelle"},
    {u"Grammatikalisch", u"GrammatikalischBox"},
    {u"Funktionales", u"FunktionalesBox"},
    {u"Auswahl", nullptr},
};

/// Changes the items of a box and leaves what it shows as it is, without a signal about it.
template <typename Change>
void changeItems(QComboBox& box, Change&& change) {
    const QSignalBlocker quietBox(box);
    QLineEdit* edit = box.lineEdit();
    const QSignalBlocker quietEdit(edit);

    const QString text = box.currentText();
    const bool itemChosen = box.currentIndex() >= 0;
    const int cursor = edit ? edit->cursorPosition() : 0;
    change();
    box.setCurrentIndex(itemChosen ? box.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive) : -1);
    if (edit && edit->text() != text)
        edit->setText(text);
    if (edit)
        edit->setCursorPosition(cursor);
}

} // namespace

ValueLists::ValueLists(Prompts& prompts, QObject* parent)
    : QObject(parent), m_prompts(prompts), m_order(interfaceCollator()) {
    for (const Kind& kind : kinds)
        m_kinds.insert(QString::fromUtf16(kind.name), {});
}

ValueLists::Values& ValueLists::of(const QString& kind) {
    const auto found = m_kinds.find(kind);
    if (found == m_kinds.end())
        throw dao::alreadyReported();
    return *found;
}

bool ValueLists::isBefore(const QString& left, const QString& right) const {
    const int order = m_order.compare(left, right);
    return order != 0 ? order < 0 : left < right; // Verb and verb are two values
}

void ValueLists::AddToComboBoxes(const QString& text, const QString& kind) {
    Values& values = of(kind);
    const QString value = extract(text);
    if (value.isEmpty() || values.known.contains(value))
        return;

    const auto place =
        std::lower_bound(values.sorted.begin(), values.sorted.end(), value,
                         [this](const QString& a, const QString& b) { return isBefore(a, b); });
    const auto index = place - values.sorted.begin();
    values.known.insert(value);
    values.sorted.insert(index, value);
    for (QComboBox* box : std::as_const(values.boxes))
        changeItems(*box, [&] { box->insertItem(static_cast<int>(index), value); });
}

bool ValueLists::ClearComboBoxes(const QString& box) {
    for (const Kind& kind : kinds) {
        if (kind.box && box == QStringView(kind.box)) {
            clear(QString::fromUtf16(kind.name));
            return true;
        }
    }
    reportError(m_prompts, uiText(u"Fehler in ClearComboBoxes!"_s, u"Error in ClearComboBoxes!"_s));
    return false;
}

void ValueLists::clear(const QString& kind) {
    Values& values = of(kind);
    values.sorted.clear();
    values.known.clear();
    for (QComboBox* box : std::as_const(values.boxes))
        changeItems(*box, [&] { box->clear(); });
}

void ValueLists::remove(const QString& text, const QString& kind) {
    Values& values = of(kind);
    if (!values.known.remove(text))
        return;
    const auto index = values.sorted.indexOf(text);
    values.sorted.removeAt(index);
    for (QComboBox* box : std::as_const(values.boxes))
        changeItems(*box, [&] { box->removeItem(static_cast<int>(index)); });
}

const QStringList& ValueLists::values(const QString& kind) const {
    const auto found = m_kinds.constFind(kind);
    if (found == m_kinds.constEnd())
        throw dao::alreadyReported();
    return found->sorted;
}

void ValueLists::attach(QComboBox& box, const QString& kind) {
    Values& values = of(kind);
    forget(&box);
    values.boxes.append(&box);
    box.setInsertPolicy(QComboBox::NoInsert); // the items mirror the list
    connect(&box, &QObject::destroyed, this, &ValueLists::forget);
    changeItems(box, [&] {
        box.clear();
        box.addItems(values.sorted);
    });
}

void ValueLists::forget(const QObject* box) {
    for (Values& values : m_kinds)
        values.boxes.removeIf([box](const QComboBox* attached) { return attached == box; });
}

} // namespace lingomat
