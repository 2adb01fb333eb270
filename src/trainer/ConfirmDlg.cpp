#include "ConfirmDlg.h"

#include "FormTexts.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr FormText texts[] = {
    {"ConfirmDlg", u"Bestätigen", u"Confirm"},
    {"Label1", u"Ist das das Wort, das erwartet wurde?", u"Is this the word you expected?"},
    {"JaButton", u"Ja", u"Yes"},
    {"NeinButton", u"Nein", u"No"},
};

} // namespace

ConfirmDlg::ConfirmDlg(QWidget* parent) : QDialog(parent) {
    setObjectName(u"ConfirmDlg"_s);
    auto* question = new QLabel(this);
    question->setObjectName(u"Label1"_s);
    question->setAlignment(Qt::AlignCenter);
    m_yes = newAnswer(u"JaButton"_s, u"Yes"_s);
    QPushButton* const no = newAnswer(u"NeinButton"_s, u"No"_s);

    auto* answers = new QHBoxLayout;
    answers->addStretch();
    answers->addWidget(m_yes);
    answers->addWidget(no);
    answers->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(question);
    column->addSpacing(question->fontMetrics().height() / 2);
    column->addLayout(answers);
    applyTexts(*this, texts);
}

QPushButton* ConfirmDlg::newAnswer(const QString& name, const QString& answer) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, [this, answer] {
        Ergebnis = answer;
        accept();
    });
    return button;
}

void ConfirmDlg::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    m_yes->setDefault(true);
    m_yes->setFocus();
}

} // namespace lingomat
