#include "SprachenEingabe.h"

#include "CharacterClasses.h"
#include "ExpressionText.h"
#include "FormTexts.h"
#include "Globals.h"
#include "Prompts.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int BoxWidthInCharacters = 36;

constexpr FormText texts[] = {
    {"SprachenEingabe", u"Bitte Sprachen eingeben", u"Please Enter Languages"},
    {"lblText", u"Bitte die beiden Sprachen eingeben, die die Datenbank enthalten soll.",
     u"Please enter the two languages, that the database shall contain."},
    {"lblSprache1", u"Sprache 1:", u"Language 1"},
    {"lblSprache2", u"Sprache 2:", u"Language 2"},
    {"OK", u"OK", u"OK"},
    {"cmdCancel", u"Abbrechen", u"Cancel"},
};

} // namespace

QString allowedInLanguageName(const QString& text) {
    QString allowed;
    for (const QChar character : text) {
        if (IsWordCharacter(character))
            allowed += character;
    }
    return allowed;
}

SprachenEingabe::SprachenEingabe(Prompts& prompts, QWidget* parent) : QDialog(parent), m_prompts(prompts) {
    setObjectName(u"SprachenEingabe"_s);
    buildWidgets();
    SetUserInterfaceProperties();
}

QLineEdit* SprachenEingabe::newBox(const QString& name) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * BoxWidthInCharacters);
    connect(box, &QLineEdit::textChanged, this, [this, box] { CheckInput(*box); });
    return box;
}

void SprachenEingabe::buildWidgets() {
    const auto newLabel = [this](const QString& name) {
        auto* label = new QLabel(this);
        label->setObjectName(name);
        return label;
    };
    auto* boxes = new QFormLayout;
    m_sprache1 = newBox(u"Sprache1"_s);
    m_sprache2 = newBox(u"Sprache2"_s);
    for (const auto& [name, box] :
         {std::pair{u"lblSprache1"_s, m_sprache1}, {u"lblSprache2"_s, m_sprache2}}) {
        QLabel* label = newLabel(name);
        label->setBuddy(box);
        boxes->addRow(label, box);
    }

    const auto newButton = [this](const QString& name, void (SprachenEingabe::*click)()) {
        auto* button = new QPushButton(this);
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, click);
        return button;
    };
    QPushButton* ok = newButton(u"OK"_s, &SprachenEingabe::OK_Click);
    QPushButton* cancel = newButton(u"cmdCancel"_s, &SprachenEingabe::cmdCancel_Click);
    ok->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(newLabel(u"lblText"_s));
    column->addLayout(boxes);
    column->addStretch();
    column->addLayout(buttons);
}

void SprachenEingabe::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
}

void SprachenEingabe::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // Not at each activation: one comes with the end of every message, which has put the focus elsewhere.
    if (event->spontaneous())
        return;
    LanguagesAccepted = false;
    LanguagesCancelled = false;
    m_sprache1->clear();
    m_sprache2->clear();
    m_sprache1->setFocus();
}

bool SprachenEingabe::CheckInput(QLineEdit& box) {
    const QString text = box.text();
    const QString allowed = allowedInLanguageName(text);
    if (allowed == text)
        return true;
    const auto caret = allowedInLanguageName(text.left(box.cursorPosition())).size();
    m_prompts.exclamation(this, uiText(u"Sprache darf nicht dieses Zeichen enthalten!"_s,
                                       u"Language must not contain this character!"_s));
    box.setText(allowed);
    box.setCursorPosition(static_cast<int>(caret));
    box.setFocus();
    return false;
}

void SprachenEingabe::OK_Click() {
    const QString first = extract(m_sprache1->text());
    const QString second = extract(m_sprache2->text());
    LanguagesCancelled = false;
    if (first.isEmpty() || second.isEmpty()) {
        m_prompts.exclamation(
            this, uiText(u"Es muß eine Sprache angegeben werden!"_s, u"A language has to be specified!"_s));
        (first.isEmpty() ? m_sprache1 : m_sprache2)->setFocus();
        return;
    }
    Language1 = first;
    Language2 = second;
    LanguagesAccepted = true;
    accept();
}

void SprachenEingabe::cmdCancel_Click() {
    LanguagesCancelled = true;
    QDialog::reject();
}

void SprachenEingabe::reject() {
    cmdCancel_Click();
}

} // namespace lingomat
