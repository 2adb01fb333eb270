#include "frmVokabelEingabe.h"

#include "EngineError.h"
#include "FormTexts.h"
#include "LengthLimit.h"
#include "SharedState.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// clang-format off
constexpr FormText texts[] = {
    {"frmVokabelEingabe", u"Vokabel eingeben", u"Enter Vocabulary"},
    {"lblPrefix", u"Präfix", u"Prefix"},
    {"lblMain", u"Hauptteil", u"Main Part"},
    {"lblSuffix", u"Suffix", u"Suffix"},
    {"lblComment", u"Kommentar", u"Comment"},
    {"cmdOK", u"OK", u"OK"},
    {"cmdCancel", u"Abbrechen", u"Cancel"},
    {"cmdFont", u"Sonderzeichen...", u"Special Characters...", u"Öffnet das Fenster Sonderzeichen", u"Opens the Special Characters window"},
    {"lblSynonyme", u"Synonyme", u"Synonyms"},
    {"cmdAdd", u"Hinzufügen...", u"Add...", u"Fügt ein Synonym hinzu", u"Adds a synonym"},
    {"cmdChange", u"Ändern...", u"Change...", u"Ändert das gewählte Synonym", u"Changes the selected synonym"},
    {"cmdDelete", u"Löschen", u"Delete", u"Löscht das gewählte Synonym", u"Deletes the selected synonym"},
    {"lstID", u"Schlüssel", u"Keys"},
    {"lstPrefix", u"Präfixe", u"Prefixes"},
    {"lstMain", u"Hauptteile", u"Main Parts"},
    {"lstSuffix", u"Suffixe", u"Suffixes"},
    {"lstKommentar", u"Kommentare", u"Comments"},
};
// clang-format on

QListWidget* newList(QWidget* parent, const QString& name) {
    auto* list = new QListWidget(parent);
    list->setObjectName(name);
    return list;
}

QListWidget* newHiddenList(QWidget* parent, const QString& name) {
    QListWidget* list = newList(parent, name);
    list->setFocusPolicy(Qt::NoFocus);
    list->hide();
    return list;
}

} // namespace

frmVokabelEingabe::frmVokabelEingabe(FormContext& context, FontHelp& pad, EditedCell cell, QWidget* parent)
    : QDialog(parent),
      m_context(context),
      m_pad(pad),
      m_cell(std::move(cell)),
      m_synonymForm(context.prompts, pad) {
    setObjectName(u"frmVokabelEingabe"_s);
    buildWidgets();
    connectEvents();
    SetUserInterfaceProperties();
    resize(sizeHint());
    VolleHoehe = dao::toInteger16(height());
    initializeForm();
}

frmVokabelEingabe::~frmVokabelEingabe() = default;

void frmVokabelEingabe::buildWidgets() {
    auto* fields = new QFormLayout;
    static constexpr const char16_t* names[] = {u"Prefix", u"Main", u"Suffix", u"Comment"};
    for (size_t i = 0; i < m_fields.size(); ++i) {
        m_fields[i] = new QLineEdit(this);
        m_fields[i]->setObjectName(u"txt"_s + QString::fromUtf16(names[i]));
        m_fields[i]->setMinimumWidth(m_fields[i]->fontMetrics().averageCharWidth() * 40);
        limitLength(*m_fields[i], ExpressionPartSize, m_context.prompts);
        auto* label = new QLabel(this);
        label->setObjectName(u"lbl"_s + QString::fromUtf16(names[i]));
        label->setBuddy(m_fields[i]);
        fields->addRow(label, m_fields[i]);
    }

    m_synonymsButton = newButton(*this, u"cmdSynonyme"_s, &frmVokabelEingabe::cmdSynonyme_Click);
    QPushButton* font = newButton(*this, u"cmdFont"_s, &frmVokabelEingabe::cmdFont_Click);
    QPushButton* ok = newButton(*this, u"cmdOK"_s, &frmVokabelEingabe::cmdOK_Click);
    QPushButton* cancel = newButton(*this, u"cmdCancel"_s, &frmVokabelEingabe::cmdCancel_Click);
    ok->setDefault(true);
    font->setFocusPolicy(Qt::TabFocus); // a click leaves the caret in the field that is to be pasted into

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_synonymsButton);
    buttons->addWidget(font);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);

    auto* column = new QVBoxLayout(this);
    column->addLayout(fields);
    column->addLayout(buttons);
    column->addWidget(buildLowerHalf(), 1);
}

QWidget* frmVokabelEingabe::buildLowerHalf() {
    m_lowerHalf = new QWidget(this);
    m_lowerHalf->setObjectName(u"lowerHalf"_s);
    m_synonymsLabel = new QLabel(m_lowerHalf);
    m_synonymsLabel->setObjectName(u"lblSynonyme"_s);
    lstSynonyme = newList(m_lowerHalf, u"lstSynonyme"_s);
    m_synonymsLabel->setBuddy(lstSynonyme);
    lstID = newHiddenList(m_lowerHalf, u"lstID"_s);
    m_partLists = {newHiddenList(m_lowerHalf, u"lstPrefix"_s), newHiddenList(m_lowerHalf, u"lstMain"_s),
                   newHiddenList(m_lowerHalf, u"lstSuffix"_s), newHiddenList(m_lowerHalf, u"lstKommentar"_s)};

    QPushButton* add = newButton(*m_lowerHalf, u"cmdAdd"_s, &frmVokabelEingabe::cmdAdd_Click);
    m_change = newButton(*m_lowerHalf, u"cmdChange"_s, &frmVokabelEingabe::cmdChange_Click);
    m_delete = newButton(*m_lowerHalf, u"cmdDelete"_s, &frmVokabelEingabe::cmdDelete_Click);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {add, m_change, m_delete})
        buttons->addWidget(button);
    buttons->addStretch();

    auto* list = new QVBoxLayout;
    list->addWidget(m_synonymsLabel);
    list->addWidget(lstSynonyme, 1);
    auto* row = new QHBoxLayout(m_lowerHalf);
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(list, 1);
    row->addLayout(buttons);
    return m_lowerHalf;
}

QPushButton* frmVokabelEingabe::newButton(QWidget& parent, const QString& name,
                                          void (frmVokabelEingabe::*click)()) {
    auto* button = new QPushButton(&parent);
    button->setObjectName(name);
    button->setAutoDefault(false); // Return is OK wherever the focus is
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

void frmVokabelEingabe::connectEvents() {
    connect(lstSynonyme, &QListWidget::itemSelectionChanged, this, &frmVokabelEingabe::ConditionToUI);
    connect(lstSynonyme, &QListWidget::itemDoubleClicked, this, &frmVokabelEingabe::cmdChange_Click);
    const auto controls = findChildren<QWidget*>();
    for (QWidget* control : controls)
        control->installEventFilter(this);
    installEventFilter(this);
}

void frmVokabelEingabe::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
}

} // namespace lingomat
