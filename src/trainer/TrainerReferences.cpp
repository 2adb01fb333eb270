#include "TrainerReferences.h"

#include "EntryRecords.h"
#include "ErrorTrap.h"
#include "FittingFont.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Prompts.h"
#include "Resources.h"
#include "SharedState.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// In the size of the form's font.
constexpr qreal TypeScale = 1.5;
constexpr qreal ExpressionScale = 1.5;
constexpr int TypeLines = 2; ///< room for a type, in lines of the form's font

} // namespace

TrainerReferences::TrainerReferences(FormContext& context, QWidget* parent)
    : QWidget(parent), m_context(context) {
    setObjectName(u"picReferenzen"_s);
    buildWidgets();
    SetRelationGridSettings();
    ClearRelationGrid();
}

void TrainerReferences::buildWidgets() {
    m_combo = new QComboBox(this);
    m_combo->setObjectName(u"ReferenzenCombo"_s);
    m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_combo->setMinimumContentsLength(8);
    connect(m_combo, &QComboBox::currentIndexChanged, this, &TrainerReferences::ReferenzenCombo_Click);
    connect(m_combo, &QComboBox::activated, this, &TrainerReferences::returnToFirstOfType);

    const auto newStep = [this](const QString& name, QLatin1StringView picture, int direction) {
        auto* button = new QPushButton(this);
        button->setObjectName(name);
        button->setIcon(icon(picture));
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this, [this, direction] { step(direction); });
        return button;
    };
    m_back = newStep(u"cmdRefBack"_s, "previous"_L1, -1);
    m_forward = newStep(u"cmdRefForward"_s, "next"_L1, 1);

    m_grid = new FlexGrid(this);
    m_grid->setObjectName(u"MSFlexGrid1"_s);
    m_pages = new QStackedWidget(this);
    m_pages->addWidget(m_grid);
    InitialisiereNoReferences();

    auto* steps = new QHBoxLayout;
    steps->addWidget(m_combo, 1);
    steps->addWidget(m_back);
    steps->addWidget(m_forward);
    auto* column = new QVBoxLayout(this);
    column->addLayout(steps);
    column->addWidget(m_pages, 1);
}

void TrainerReferences::InitialisiereNoReferences() {
    m_note = new QFrame(this);
    m_note->setObjectName(u"frNoReferences"_s);
    m_note->setFrameShape(QFrame::StyledPanel);
    auto* note = new QLabel(m_note);
    note->setObjectName(u"labNoReferences"_s);
    note->setTextFormat(Qt::PlainText);
    note->setAlignment(Qt::AlignCenter);
    auto* noteLayout = new QVBoxLayout(m_note);
    noteLayout->addWidget(note);
    m_pages->addWidget(m_note);
}

void TrainerReferences::SetRelationGridSettings() {
    m_grid->setRows(GridRowCount);
    m_grid->setCols(1);
    m_grid->setFixedRows(0);
    m_grid->setFixedCols(
        0); // a fixed column would stand there as a margin, and the expressions could not wrap
    m_grid->setAllowUserResizing(false);
    m_grid->setWordWrap(true);
    m_grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->setCol(0);
    for (const GridRow row : {TypeRow, FirstRow, SecondRow}) {
        m_grid->setRow(row);
        m_grid->setCellBackgroundRole(row == TypeRow ? QPalette::Button : QPalette::Base);
        m_grid->setCellAlignment(4);
    }
    m_grid->viewport()->installEventFilter(this);
    fitRelationGrid();
}

void TrainerReferences::fitRelationGrid() {
    const int line = fontMetrics().height();
    const int typeHeight = TypeLines * line + line / 2;
    const int shared = std::max(0, m_grid->viewport()->height() - typeHeight);
    m_grid->setRowHeight(TypeRow, typeHeight);
    m_grid->setRowHeight(FirstRow, std::max(line, shared / 2));
    m_grid->setRowHeight(SecondRow, std::max(line, shared - shared / 2));
    m_grid->setColWidth(0, m_grid->viewport()->width());
    const int before = m_grid->Row();
    for (const GridRow row : {TypeRow, FirstRow, SecondRow}) {
        QFont largest(u"Arial"_s);
        largest.setBold(row == TypeRow);
        largest.setPointSizeF(font().pointSizeF() * (row == TypeRow ? TypeScale : ExpressionScale));
        m_grid->setRow(row);
        const QSize room(m_grid->ColWidth(0) - line / 2, m_grid->RowHeight(row) - 1);
        m_grid->setCellFont(fittingFont(largest, font().pointSizeF(), m_grid->Text(), room));
    }
    m_grid->setRow(before);
}

void TrainerReferences::setText(GridRow row, const QString& text) {
    m_grid->setTextMatrix(row, 0, text);
}

void TrainerReferences::load(const QString& key) {
    trapped(m_context.prompts, [this, &key] {
        if (GetRelations(key))
            showReferences();
        else
            ClearRelationGrid();
    });
}

void TrainerReferences::ClearDetails() {
    RefAnzahl = 0;
    RefIndex = 0;
    RefVokabeln.clear();
    RefTypen.clear();
    for (const GridRow row : {TypeRow, FirstRow, SecondRow})
        setText(row, {});
    const QScopedValueRollback working(RefInArbeit, true);
    m_combo->clear();
    ClearRelationGrid();
}

void TrainerReferences::ClearRelationGrid() {
    m_pages->setCurrentWidget(m_note);
    m_combo->hide();
    m_back->hide();
    m_forward->hide();
}

bool TrainerReferences::GetRelations(const QString& key) {
    ClearDetails();
    if (key.isEmpty() || key == NewEntry)
        return false;
    dao::Recordset& references = m_context.state.DBHandler.RecordsetReferenzen;
    const QString criterion = u"von LIKE '%1' OR nach LIKE '%1'"_s.arg(key);
    const QScopedValueRollback working(RefInArbeit, true);
    for (references.FindFirst(criterion); isFound(references); references.FindNext(criterion)) {
        RefAnzahl = dao::toInteger16(RefAnzahl + 1);
        RefVokabeln += otherEnd(references, key);
        RefTypen += references.field(u"Typ"_s).toText(QString());
        AddRelTypToCombo(RefTypen.last());
    }
    refSort();
    return RefAnzahl > 0;
}

void TrainerReferences::AddRelTypToCombo(const QString& type) {
    if (m_combo->findText(type, Qt::MatchFixedString | Qt::MatchCaseSensitive) < 0)
        m_combo->addItem(type);
}

/// Groups the references by type, in the order of the box; within a type they stay as they were found.
void TrainerReferences::refSort() {
    QList<int> order(RefTypen.size());
    std::iota(order.begin(), order.end(), 0);
    const auto place = [this](int reference) {
        return m_combo->findText(RefTypen[reference], Qt::MatchFixedString | Qt::MatchCaseSensitive);
    };
    std::stable_sort(order.begin(), order.end(),
                     [&place](int left, int right) { return place(left) < place(right); });
    QStringList keys;
    QStringList types;
    for (const int reference : std::as_const(order)) {
        keys += RefVokabeln[reference];
        types += RefTypen[reference];
    }
    RefVokabeln = keys;
    RefTypen = types;
}

void TrainerReferences::showReferences() {
    m_forward->show();
    m_forward->setEnabled(true);
    m_back->show();
    m_back->setEnabled(false);
    m_combo->show();
    {
        const QScopedValueRollback working(RefInArbeit, true);
        m_combo->setCurrentIndex(0);
    }
    RefNummer = 0;
    m_pages->setCurrentWidget(m_grid);
    ReferenzenCombo_Click();
}

void TrainerReferences::ReferenzenCombo_Click() {
    if (RefInArbeit)
        return;
    if (m_combo->currentIndex() < 0) {
        ClearRelationGrid();
        return;
    }
    RefTypAnzahl = dao::toInteger16(RefTypen.count(m_combo->currentText()));
    if (!getIndexOfNthEntryForCurrent(1)) {
        reportInternalError();
        return;
    }
    DisplayRelation(RefIndex);
    enableSteps();
}

/// The user may choose the type that is shown already, having stepped on from its first reference.
void TrainerReferences::returnToFirstOfType() {
    if (RefIndex != RefTypen.indexOf(m_combo->currentText()) + 1)
        ReferenzenCombo_Click();
}

bool TrainerReferences::getIndexOfNthEntryForCurrent(int n) {
    const QString type = m_combo->currentText();
    int place = 0;
    for (qsizetype index = 0; index < RefTypen.size(); ++index) {
        if (RefTypen[index] != type || ++place != n)
            continue;
        RefIndex = dao::toInteger16(index + 1);
        return true;
    }
    return false;
}

void TrainerReferences::step(int direction) {
    RefIndex =
        std::clamp<qint16>(static_cast<qint16>(RefIndex + direction), 1, std::max<qint16>(RefAnzahl, 1));
    DisplayRelation(RefIndex);
    const bool hadFocus = m_back->hasFocus() || m_forward->hasFocus();
    enableSteps();
    if (hadFocus) // a button that was disabled hands the focus on to anywhere
        (direction > 0 ? (m_forward->isEnabled() ? m_forward : m_back)
                       : (m_back->isEnabled() ? m_back : m_forward))
            ->setFocus();
}

void TrainerReferences::enableSteps() {
    m_back->setEnabled(RefIndex > 1);
    m_forward->setEnabled(RefIndex < RefAnzahl);
}

/// Where the other end is gone, the grid goes on showing the reference before; the box names the type that
/// was asked for, from which the buttons step on.
void TrainerReferences::DisplayRelation(int index) {
    if (index < 1 || index > RefTypen.size())
        return;
    const QString& type = RefTypen[index - 1];
    {
        const QScopedValueRollback working(RefInArbeit, true);
        m_combo->setCurrentText(type);
    }
    RefTypAnzahl = dao::toInteger16(RefTypen.count(type));
    RefNummer = dao::toInteger16(index - RefTypen.indexOf(type));
    m_combo->setToolTip(u"%1 / %2"_s.arg(RefNummer).arg(RefTypAnzahl));
    trapped(m_context.prompts, [this, index, &type] {
        dao::Recordset& entries = m_context.state.DBHandler.RecordsetVokabular;
        if (!findEntry(entries, RefVokabeln[index - 1])) {
            reportInternalError();
            return;
        }
        const auto expression = [&](int language) {
            return extract(generiereAusdruck(entryParts(entries, m_context.state, language)));
        };
        setText(TypeRow, type);
        setText(FirstRow, expression(m_language1First ? 1 : 2));
        setText(SecondRow, expression(m_language1First ? 2 : 1));
        fitRelationGrid();
    });
}

void TrainerReferences::InvertRelationGrid() {
    const QString first = m_grid->TextMatrix(FirstRow, 0);
    setText(FirstRow, m_grid->TextMatrix(SecondRow, 0));
    setText(SecondRow, first);
    fitRelationGrid();
}

void TrainerReferences::reportInternalError() {
    Message box;
    box.text = uiText(u"Es ist ein interner Fehler aufgetreten!"_s, u"An internal error occured!"_s);
    m_context.prompts.message(this, box);
}

void TrainerReferences::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (m_grid && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
        fitRelationGrid();
}

bool TrainerReferences::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_grid->viewport() && event->type() == QEvent::Resize)
        fitRelationGrid();
    return QWidget::eventFilter(watched, event);
}

} // namespace lingomat
