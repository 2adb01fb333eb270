#include "PairEditor.h"

#include "FlexGrid.h"
#include "FormTexts.h"
#include "Globals.h"
#include "Prompts.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int BoxCharacters = 4; ///< width of a box for one character
constexpr int LeastRows = 4;     ///< in view

constexpr FormText texts[] = {
    {"fraSample3", u"Gleich zu behandelnde Buchstaben", u"Characters to be treated equal"},
    {"Erklaerung_Zeichen",
     u"Die Zeichenpaare, die von der Anwendung als gleichwertig behandelt werden sollen, können hier "
     u"verwaltet werden.",
     u"The pairs of characters, that shall be treated as equal, can be edited here."},
    {"MSFlexGrid1", u"Zeichenpaare", u"Pairs of characters"},
    {"Text1", u"Linkes Zeichen", u"Left character"},
    {"joiningWord", u"UND", u"AND"},
    {"Text2", u"Rechtes Zeichen", u"Right character"},
    {"Add", u"&Hinzufügen", u"A&dd"},
    {"Remove", u"&Entfernen", u"&Remove"},
};

/// The first character of a text, which takes two units outside the basic plane. An accent that stands for
/// itself behind its letter belongs to it.
QString firstCharacter(const QString& text) {
    const QString composed = text.normalized(QString::NormalizationForm_C);
    const bool isPair = composed.size() > 1 && composed[0].isHighSurrogate() && composed[1].isLowSurrogate();
    return composed.left(isPair ? 2 : 1);
}

bool isEnter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

PairEditor::PairEditor(Prompts& prompts, QWidget* parent)
    : QGroupBox(parent), m_prompts(prompts), m_grid(new FlexGrid(this)), m_mark(*m_grid, {}) {
    setObjectName(u"fraSample3"_s);
    buildWidgets();
    clear();
}

void PairEditor::buildWidgets() {
    auto* explanation = new QLabel(this);
    explanation->setObjectName(u"Erklaerung_Zeichen"_s);
    explanation->setWordWrap(true);

    m_grid->setObjectName(u"MSFlexGrid1"_s);
    m_grid->setRows(1);
    m_grid->setCols(ColumnCount);
    m_grid->setFixedRows(0);
    m_grid->setFixedCols(0);
    m_grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->setMinimumHeight(m_grid->DefaultRowHeight() * LeastRows);
    for (const int column : {LeftColumn, WordColumn, RightColumn})
        m_grid->setColAlignment(column, 0);
    QFont bold = m_grid->font();
    bold.setBold(true);
    m_grid->setFont(bold);
    m_grid->viewport()->installEventFilter(this);
    connect(m_grid, &FlexGrid::pressed, this, &PairEditor::MSFlexGrid1_Click);
    connect(m_grid, &FlexGrid::SelChange, this, &PairEditor::MSFlexGrid1_Click);

    m_text1 = newBox(u"Text1"_s);
    auto* word = new QLabel(this);
    word->setObjectName(u"joiningWord"_s);
    m_text2 = newBox(u"Text2"_s);
    m_add = newButton(u"Add"_s, &PairEditor::Add_Click);
    m_remove = newButton(u"Remove"_s, &PairEditor::Remove_Click);

    auto* entry = new QHBoxLayout;
    for (QWidget* const widget : {static_cast<QWidget*>(m_text1), static_cast<QWidget*>(word),
                                  static_cast<QWidget*>(m_text2), static_cast<QWidget*>(m_add)})
        entry->addWidget(widget);
    entry->addWidget(m_remove);
    entry->addStretch();
    auto* column = new QVBoxLayout(this);
    column->addWidget(explanation);
    column->addWidget(m_grid, 1);
    column->addLayout(entry);
}

QLineEdit* PairEditor::newBox(const QString& name) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    box->setAlignment(Qt::AlignCenter);
    box->setMaximumWidth(box->fontMetrics().horizontalAdvance(u'W') * BoxCharacters);
    box->installEventFilter(this);
    connect(box, &QLineEdit::textChanged, this, [this, box] {
        limitToOneCharacter(*box);
        setButtons();
    });
    return box;
}

QPushButton* PairEditor::newButton(const QString& name, void (PairEditor::*click)()) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

void PairEditor::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
}

void PairEditor::clear() {
    m_mark.take(m_selected);
    m_grid->setRows(1);
    hideLastRow();
    m_text1->clear();
    m_text2->clear();
    setButtons();
}

/// The grid cannot lose its last row.
void PairEditor::hideLastRow() {
    m_selected = NoRow;
    m_grid->setRowHeight(0, 0);
    for (const int column : {LeftColumn, WordColumn, RightColumn})
        m_grid->setTextMatrix(0, column, {});
}

bool PairEditor::isEmpty() const {
    return m_grid->Rows() == 1 && m_grid->RowHeight(0) == 0;
}

void PairEditor::enter(const QString& left, const QString& right) {
    m_text1->setText(left);
    m_text2->setText(right);
    Add_Click();
}

QStringList PairEditor::pairs() const {
    QStringList all;
    for (int row = 0; row < m_grid->Rows(); ++row)
        all += m_grid->TextMatrix(row, LeftColumn) + m_grid->TextMatrix(row, RightColumn);
    return all;
}

bool PairEditor::hasPair(const QString& left, const QString& right) const {
    for (int row = 0; row < m_grid->Rows(); ++row) {
        if (m_grid->TextMatrix(row, LeftColumn) == left && m_grid->TextMatrix(row, RightColumn) == right)
            return true;
    }
    return false;
}

void PairEditor::Add_Click() {
    if (isEmpty()) {
        m_grid->setRowHeight(0, -1);
    } else {
        if (hasPair(m_text1->text(), m_text2->text()))
            return;
        m_grid->AddItem({});
    }
    const int row = m_grid->Rows() - 1;
    m_grid->setTextMatrix(row, LeftColumn, m_text1->text());
    m_grid->setTextMatrix(row, WordColumn, uiText(u"UND"_s, u"AND"_s));
    m_grid->setTextMatrix(row, RightColumn, m_text2->text());
    const bool hadFocus = m_add->hasFocus();
    select(row);
    if (hadFocus)
        m_text1->setFocus(); // the button is disabled now; the next pair is entered there
}

void PairEditor::Remove_Click() {
    if (isEmpty() || m_selected == NoRow)
        return;
    const bool hadFocus = m_remove->hasFocus(); // which it loses when it is disabled
    if (m_grid->Rows() == 1) {
        m_mark.take(0);
        hideLastRow();
    } else {
        m_grid->RemoveItem(m_selected);
        select(m_grid->Row());
    }
    m_text1->clear();
    m_text2->clear();
    if (hadFocus)
        m_grid->setFocus();
}

void PairEditor::MSFlexGrid1_Click() {
    if (isEmpty())
        return;
    const int row = m_grid->Row();
    select(row);
    m_text1->setText(m_grid->TextMatrix(row, LeftColumn));
    m_text2->setText(m_grid->TextMatrix(row, RightColumn));
}

void PairEditor::select(int row) {
    m_mark.take(m_selected);
    m_mark.put(row);
    m_selected = row;
    if (m_grid->Row() != row)
        m_grid->setRow(row);
    m_grid->flush();
    m_grid->scrollTo(m_grid->model()->index(row, LeftColumn));
    setButtons();
}

void PairEditor::setButtons() {
    const QString left = m_text1->text();
    const QString right = m_text2->text();
    const bool isSelected = m_selected != NoRow && m_grid->TextMatrix(m_selected, LeftColumn) == left &&
                            m_grid->TextMatrix(m_selected, RightColumn) == right;
    m_remove->setEnabled(isSelected);
    m_add->setEnabled(!isSelected && !left.isEmpty() && !right.isEmpty());
}

void PairEditor::limitToOneCharacter(QLineEdit& box) {
    const QString character = firstCharacter(box.text());
    if (character == box.text())
        return;
    if (character != box.text().normalized(QString::NormalizationForm_C))
        m_prompts.beep();
    box.setText(character);
}

void PairEditor::fitColumns() {
    const int width = m_grid->viewport()->width();
    const int mark = m_grid->DefaultRowHeight();
    m_grid->setColWidth(MarkColumn, mark);
    for (const int column : {LeftColumn, WordColumn, RightColumn})
        m_grid->setColWidth(column, (width - mark) / (ColumnCount - 1));
}

bool PairEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_grid->viewport() && event->type() == QEvent::Resize)
        fitColumns();
    // Return in a box enters the pair; where there is none to enter it goes to the dialog.
    if ((watched == m_text1 || watched == m_text2) && isEnter(*event) && m_add->isEnabled()) {
        m_add->click();
        m_text1->setFocus();
        m_text1->selectAll();
        return true;
    }
    return QGroupBox::eventFilter(watched, event);
}

void PairEditor::changeEvent(QEvent* event) {
    QGroupBox::changeEvent(event);
    if (event->type() != QEvent::FontChange || !m_remove)
        return;
    m_grid->setMinimumHeight(m_grid->DefaultRowHeight() * LeastRows);
    for (QLineEdit* const box : {m_text1, m_text2})
        box->setMaximumWidth(box->fontMetrics().horizontalAdvance(u'W') * BoxCharacters);
    fitColumns();
}

} // namespace lingomat
