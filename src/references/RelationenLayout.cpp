#include "FlexGrid.h"
#include "FormTexts.h"
#include "Globals.h"
#include "Relationen.h"
#include "RowMark.h"
#include "SharedState.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int FirstRows = 10; // the head included
constexpr QSize StartSize(680, 400);

// clang-format off
constexpr FormText texts[] = {
    {"Relationen", u"Referenzen", u"References"},
    {"MSFlexGrid1", u"Referenzen", u"References"},
    {"OK", u"OK", u"OK"},
    {"Add", u"&Hinzufügen...", u"&Add...", u"Erzeugt eine neue Referenz", u"Creates a new reference"},
    {"Change", u"Ä&ndern...", u"&Change...", u"Ändert die Art der gewählten Referenz", u"Changes the type of the selected reference"},
    {"Delete", u"&Löschen", u"&Delete", u"Löscht die gewählte Referenz", u"Deletes the selected reference"},
};
// clang-format on

} // namespace

Relationen::Relationen(FormContext& context, const Liste& list, QWidget* parent)
    : QDialog(parent), m_context(context), m_list(list) {
    setObjectName(u"Relationen"_s);
    buildWidgets();
    connectEvents();
    SetUserInterfaceProperties();
}

Relationen::~Relationen() = default;

void Relationen::buildWidgets() {
    const auto newLabel = [this](const QString& name) {
        auto* label = new QLabel(this);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        return label;
    };
    m_label2 = newLabel(u"Label2"_s);
    m_label3 = newLabel(u"Label3"_s);

    m_grid = new FlexGrid(this);
    m_grid->setObjectName(u"MSFlexGrid1"_s);
    m_grid->setCols(ColumnTotal);
    m_grid->setRows(FirstRows);
    m_grid->setFixedRows(1);
    m_grid->setFixedCols(1);
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_mark = std::make_unique<RowMark>(*m_grid, m_context.state.MarkePath);

    const auto newButton = [this](const QString& name, void (Relationen::*click)()) {
        auto* button = new QPushButton(this);
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, click);
        return button;
    };
    QPushButton* add = newButton(u"Add"_s, &Relationen::Add_Click);
    m_change = newButton(u"Change"_s, &Relationen::Change_Click);
    m_delete = newButton(u"Delete"_s, &Relationen::Delete_Click);
    QPushButton* ok = newButton(u"OK"_s, &Relationen::OK_Click);
    ok->setDefault(true);

    auto* entry = new QHBoxLayout;
    entry->addWidget(m_label2, 1);
    entry->addWidget(m_label3, 1);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {add, m_change, m_delete})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(ok);

    auto* column = new QVBoxLayout(this);
    column->addLayout(entry);
    column->addWidget(m_grid, 1);
    column->addLayout(buttons);
    resize(StartSize);
}

void Relationen::connectEvents() {
    connect(m_grid, &FlexGrid::SelChange, this, &Relationen::grid_SelChange);
    // A press on the cell that is the current one already changes nothing in the grid, but chooses its row.
    connect(m_grid, &FlexGrid::pressed, this, &Relationen::grid_SelChange);
    connect(m_grid, &FlexGrid::headerClicked, this, &Relationen::grid_MouseDown);
    connect(m_grid, &FlexGrid::mouseMoved, this, &Relationen::grid_MouseMove);
}

void Relationen::setColumns() {
    m_grid->setColWidth(ColID, 0);
    m_grid->setColWidth(ColSpare, 0);
    shareWidth();
    m_grid->setTextMatrix(0, ColTyp, uiText(u"Referenzart"_s, u"Reference type"_s));
    m_grid->setTextMatrix(0, ColSprache1, m_context.state.Lang1Name);
    m_grid->setTextMatrix(0, ColSprache2, m_context.state.Lang2Name);
}

/// A narrow margin, a third for the type, the rest for the two languages.
void Relationen::shareWidth() {
    const int margin = m_grid->DefaultColWidth() / 3;
    const int width =
        m_grid->width() - 2 * m_grid->frameWidth() - m_grid->verticalScrollBar()->sizeHint().width();
    const int type = width / 3;
    const int language = (width - margin - type) / 2;
    m_grid->setColWidth(ColMarke, margin);
    m_grid->setColWidth(ColTyp, type);
    m_grid->setColWidth(ColSprache1, language);
    m_grid->setColWidth(ColSprache2, language);
}

void Relationen::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    shareWidth();
}

void Relationen::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
}

} // namespace lingomat
