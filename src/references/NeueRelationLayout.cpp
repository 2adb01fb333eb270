#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "FlexGrid.h"
#include "FormTexts.h"
#include "Globals.h"
#include "LengthLimit.h"
#include "NeueRelation.h"
#include "RowMark.h"
#include "SharedState.h"
#include "WindowPlacement.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr QSize StartSize(680, 520);

// clang-format off
constexpr FormText texts[] = {
    {"MSFlexGrid1", u"Vokabeln", u"Vocabs"},
    {"lblCurrent", u"Aktuelle Vokabel:", u"Current vocab:"},
    {"lblOther", u"Zweite Vokabel:", u"Second vocab:"},
    {"lblType", u"Referenz&art:", u"Reference &type:"},
    {"Combo1", u"Referenzart", u"Reference type"},
    {"cmdSuchen", u"&Suchen...", u"&Find...", u"Sucht einen Ausdruck in der Liste", u"Finds an expression in the list"},
    {"Command2", u"S&chließen", u"C&lose"},
};

constexpr FormText createTexts[] = {
    {"NeueRelation", u"Neue Referenz", u"New Reference"},
    {"Command1", u"Erzeugen", u"Create"},
    {"Label2",
     u"Wählen Sie aus der Liste eine Vokabel aus. Wählen Sie die Referenzart aus der Klappbox, oder geben Sie eine neue Referenzart ein. Klicken Sie dann auf die Schaltfläche 'Erzeugen'.",
     u"Select a vocab from the list. Select the Reference type from the combo box or type in a new Reference type. Then activate button 'Create'."},
};

constexpr FormText changeTexts[] = {
    {"NeueRelation", u"Referenz ändern", u"Change Reference"},
    {"Command1", u"Ändern", u"Change"},
    {"Label2",
     u"Wählen Sie die Referenzart aus der Klappbox, oder geben Sie eine neue Referenzart ein. Klicken Sie dann auf die Schaltfläche 'Ändern'.",
     u"Select the Reference type from the combo box or type in a new Reference type. Then activate button 'Change'."},
};
// clang-format on

QLabel* newLabel(QWidget& form, const QString& name) {
    auto* label = new QLabel(&form);
    label->setObjectName(name);
    return label;
}

QLineEdit* newDisplay(QWidget& form, const QString& name) {
    auto* display = new QLineEdit(&form);
    display->setObjectName(name);
    display->setReadOnly(true);
    return display;
}

} // namespace

NeueRelation::NeueRelation(FormContext& context, Relationen& references, const Liste& list, QWidget* parent)
    : QDialog(parent), m_context(context), m_references(references), m_list(list) {
    setObjectName(u"NeueRelation"_s);
    buildWidgets();
    connectEvents();
    SetUserInterfaceProperties();
    VolleHoehe = dao::toInteger16(height());
    trapped(m_context.prompts, [this] { Form_Load(); });
}

NeueRelation::~NeueRelation() = default;

void NeueRelation::buildWidgets() {
    m_instruction = newLabel(*this, u"Label2"_s);
    m_instruction->setWordWrap(true);
    m_text1 = newDisplay(*this, u"Text1"_s);
    m_text2 = newDisplay(*this, u"Text2"_s);
    m_text3 = newDisplay(*this, u"Text3"_s);
    m_text4 = newDisplay(*this, u"Text4"_s);

    m_type = new QComboBox(this);
    m_type->setObjectName(u"Combo1"_s);
    m_type->setEditable(true);
    m_type->setInsertPolicy(QComboBox::NoInsert);
    m_type->setCompleter(nullptr); // it would put another type in place of the one typed
    m_type->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    limitLength(*m_type, ReferenceTypeSize, m_context.prompts);

    m_action = new QPushButton(this);
    m_action->setObjectName(u"Command1"_s);
    m_action->setDefault(true);
    auto* close = new QPushButton(this);
    close->setObjectName(u"Command2"_s);
    connect(close, &QPushButton::clicked, this, &NeueRelation::Command2_Click);

    auto* fields = new QGridLayout;
    fields->addWidget(newLabel(*this, u"lblCurrent"_s), 0, 0);
    fields->addWidget(m_text1, 0, 1);
    fields->addWidget(m_text2, 0, 2);
    fields->addWidget(newLabel(*this, u"lblOther"_s), 1, 0);
    fields->addWidget(m_text3, 1, 1);
    fields->addWidget(m_text4, 1, 2);
    QLabel* typeLabel = newLabel(*this, u"lblType"_s);
    typeLabel->setBuddy(m_type);
    fields->addWidget(typeLabel, 2, 0);
    fields->addWidget(m_type, 2, 1, 1, 2);
    fields->setColumnStretch(1, 1);
    fields->setColumnStretch(2, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_action);
    buttons->addWidget(close);

    auto* column = new QVBoxLayout(this);
    column->addWidget(m_instruction);
    column->addLayout(fields);
    column->addLayout(buttons);
    column->addWidget(buildPicker(), 1);
    resize(StartSize.expandedTo(sizeHint()).boundedTo(usableScreen(*this).size()));
}

QWidget* NeueRelation::buildPicker() {
    m_picker = new QWidget(this);
    m_picker->setObjectName(u"picker"_s);
    m_search = new QPushButton(m_picker);
    m_search->setObjectName(u"cmdSuchen"_s);

    m_grid = new FlexGrid(m_picker);
    m_grid->setObjectName(u"MSFlexGrid1"_s);
    m_grid->setCols(ColumnTotal);
    m_grid->setRows(1);
    m_grid->setFixedRows(1);
    m_grid->setFixedCols(1);
    m_grid->setColWidth(ColMarke, m_grid->DefaultColWidth() / 3);
    m_grid->setColWidth(ColID, 0);
    m_mark = std::make_unique<RowMark>(*m_grid, m_context.state.MarkePath);

    auto* foot = new QHBoxLayout;
    foot->addWidget(m_search);
    foot->addStretch();
    auto* column = new QVBoxLayout(m_picker);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(foot);
    column->addWidget(m_grid, 1);
    return m_picker;
}

/// Half of the room for each language.
void NeueRelation::shareWidth() {
    const int frame = 2 * m_grid->frameWidth() + m_grid->verticalScrollBar()->sizeHint().width();
    const int language = (m_grid->width() - frame - m_grid->ColWidth(ColMarke)) / 2;
    m_grid->setColWidth(ColSprache1, language);
    m_grid->setColWidth(ColSprache2, language);
}

bool NeueRelation::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_grid && event->type() == QEvent::Resize)
        shareWidth();
    return QDialog::eventFilter(watched, event);
}

void NeueRelation::connectEvents() {
    m_grid->installEventFilter(this);
    connect(m_action, &QPushButton::clicked, this, &NeueRelation::Command1_Click);
    connect(m_search, &QPushButton::clicked, this, &NeueRelation::cmdSuchen_Click);
    connect(m_type, &QComboBox::editTextChanged, this, &NeueRelation::checkComboValue);
    connect(m_grid, &FlexGrid::SelChange, this, &NeueRelation::grid_SelChange);
    // A press on the cell that is the current one already changes nothing in the grid, but chooses its row.
    connect(m_grid, &FlexGrid::pressed, this, &NeueRelation::grid_SelChange);
    connect(m_grid, &FlexGrid::headerClicked, this, &NeueRelation::grid_MouseDown);
    connect(m_grid, &FlexGrid::mouseMoved, this, &NeueRelation::grid_MouseMove);
}

void NeueRelation::setMode(bool create) {
    m_creating = create;
    if (create)
        applyTexts(*this, createTexts);
    else
        applyTexts(*this, changeTexts);
    m_picker->setVisible(create);
    (create ? static_cast<QWidget*>(m_grid) : m_type)->setFocus();
    layout()->activate();
    resize(width(), create ? VolleHoehe : layout()->totalHeightForWidth(width()));
}

void NeueRelation::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    const auto describe = [](QLineEdit& display, const QString& entry, const QString& language) {
        display.setAccessibleName(entry + u' ' + language);
    };
    const SharedState& state = m_context.state;
    const QString current = uiText(u"Aktuelle Vokabel"_s, u"Current vocab"_s);
    const QString other = uiText(u"Zweite Vokabel"_s, u"Second vocab"_s);
    describe(*m_text1, current, state.Lang1Name);
    describe(*m_text2, current, state.Lang2Name);
    describe(*m_text3, other, state.Lang1Name);
    describe(*m_text4, other, state.Lang2Name);
}

} // namespace lingomat
