#include "AusdruckForm.h"

#include "FontHelp.h"
#include "FormTexts.h"
#include "LengthLimit.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr FormText texts[] = {
    {"AusdruckForm", u"Vokabel eingeben", u"Enter Vocabulary"},
    {"lblPrefix", u"Präfix", u"Prefix"},
    {"lblMain", u"Hauptteil", u"Main Part"},
    {"lblSuffix", u"Suffix", u"Suffix"},
    {"lblComment", u"Kommentar", u"Comment"},
    {"cmdOK", u"OK", u"OK"},
    {"cmdCancel", u"Abbrechen", u"Cancel"},
    {"cmdFont", u"Sonderzeichen...", u"Special Characters...", u"Öffnet das Fenster Sonderzeichen",
     u"Opens the Special Characters window"},
};

} // namespace

AusdruckForm::AusdruckForm(Prompts& prompts, FontHelp& pad, QWidget* parent)
    : QDialog(parent), m_prompts(prompts), m_pad(pad) {
    setObjectName(u"AusdruckForm"_s);
    buildWidgets();
    SetUserInterfaceProperties();
}

QLineEdit* AusdruckForm::newField(const QString& name) {
    auto* field = new QLineEdit(this);
    field->setObjectName(u"txt"_s + name);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 40);
    limitLength(*field, ExpressionPartSize, m_prompts);

    auto* label = new QLabel(this);
    label->setObjectName(u"lbl"_s + name);
    label->setBuddy(field);
    static_cast<QFormLayout*>(layout()->itemAt(0)->layout())->addRow(label, field);
    return field;
}

void AusdruckForm::buildWidgets() {
    auto* column = new QVBoxLayout(this);
    column->addLayout(new QFormLayout);
    m_prefix = newField(u"Prefix"_s);
    m_main = newField(u"Main"_s);
    m_suffix = newField(u"Suffix"_s);
    m_comment = newField(u"Comment"_s);

    const auto newButton = [this](const QString& name, void (AusdruckForm::*click)()) {
        auto* button = new QPushButton(this);
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, click);
        return button;
    };
    QPushButton* font = newButton(u"cmdFont"_s, &AusdruckForm::cmdFont_Click);
    QPushButton* ok = newButton(u"cmdOK"_s, &AusdruckForm::cmdOK_Click);
    QPushButton* cancel = newButton(u"cmdCancel"_s, &AusdruckForm::cmdCancel_Click);
    ok->setDefault(true);
    font->setFocusPolicy(Qt::TabFocus); // a click leaves the caret in the field that is to be pasted into

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(font);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    column->addStretch();
    column->addLayout(buttons);
}

void AusdruckForm::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
}

void AusdruckForm::fill(const ExpressionParts& parts) {
    m_prefix->setText(parts.prefix);
    m_main->setText(parts.main);
    m_suffix->setText(parts.suffix);
    m_comment->setText(parts.comment);
}

void AusdruckForm::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // Not at each activation: one that comes by a click into another field would take the caret from there.
    if (!event->spontaneous())
        m_main->setFocus();
}

void AusdruckForm::cmdOK_Click() {
    Prefix = extract(m_prefix->text());
    Main = extract(m_main->text());
    Suffix = extract(m_suffix->text());
    Kommentar = extract(m_comment->text());
    Bestaetigt = Prefix.size() + Main.size() + Suffix.size() + Kommentar.size() > 0;
    CloseForm();
}

void AusdruckForm::cmdCancel_Click() {
    Bestaetigt = false;
    CloseForm();
}

void AusdruckForm::reject() {
    cmdCancel_Click();
}

void AusdruckForm::CloseForm() {
    fill({});
    done(Bestaetigt ? Accepted : Rejected);
}

void AusdruckForm::cmdFont_Click() {
    m_pad.showFor(*this);
}

} // namespace lingomat
