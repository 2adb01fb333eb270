#include "ConfirmForm.h"

#include "FormTexts.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// In characters.
constexpr int LongestLine = 60;         ///< of an expression, before it wraps
constexpr qsizetype LongestWord = 30;   ///< that is not broken
constexpr qsizetype LongestShown = 300; ///< of an expression, so that the form stays on the screen

constexpr QChar ZeroWidthSpace(0x200b);

constexpr FormText texts[] = {
    {"ConfirmForm", u"Bestätigen", u"Confirm"},
    {"Label1", u"Ist das wirklich ein Fehler?", u"Is this really an error?"},
    {"Label2", u"Eingegebener Ausdruck:", u"Expression entered:"},
    {"Label3", u"Gespeicherter Ausdruck:", u"Expression stored:"},
    {"Label4", u"Hilfe: F1", u"Help: F1"},
    {"Ja", u"Ja", u"Yes"},
    {"Nein", u"Nein", u"No"},
};

/// A label wraps between words only, and one long word would make the form as wide as itself. Such words get
/// places at which they may be broken.
QString wrappable(const QString& text) {
    QString shown = text.left(LongestShown);
    if (shown.size() < text.size()) {
        if (shown.back().isHighSurrogate()) // half a character
            shown.chop(1);
        shown += u'…';
    }
    QString result;
    qsizetype wordLength = 0;
    for (const QChar character : std::as_const(shown)) {
        wordLength = character.isSpace() ? 0 : wordLength + 1;
        if (wordLength > LongestWord && !character.isLowSurrogate()) {
            result += ZeroWidthSpace;
            wordLength = 1;
        }
        result += character;
    }
    return result;
}

} // namespace

ConfirmForm::ConfirmForm(QWidget* parent) : QDialog(parent) {
    setObjectName(u"ConfirmForm"_s);
    QLabel* const question = newLabel(u"Label1"_s);
    m_typed = newLabel(u"Typed"_s);
    m_stored = newLabel(u"Stored"_s);
    for (QLabel* const expression : {m_typed, m_stored}) {
        QFont bold = expression->font();
        bold.setBold(true);
        expression->setFont(bold);
        expression->setWordWrap(true);
        expression->setMinimumWidth(expression->fontMetrics().averageCharWidth() * LongestLine);
    }
    m_yes = newAnswer(u"Ja"_s, u"Ja"_s);
    QPushButton* const no = newAnswer(u"Nein"_s, u"Nein"_s);

    auto* expressions = new QGridLayout;
    expressions->addWidget(newLabel(u"Label2"_s), 0, 0, Qt::AlignTop);
    expressions->addWidget(m_typed, 0, 1);
    expressions->addWidget(newLabel(u"Label3"_s), 1, 0, Qt::AlignTop);
    expressions->addWidget(m_stored, 1, 1);
    auto* answers = new QHBoxLayout;
    answers->addWidget(newLabel(u"Label4"_s));
    answers->addStretch();
    answers->addWidget(m_yes);
    answers->addWidget(no);
    auto* column = new QVBoxLayout(this);
    column->addWidget(question);
    column->addLayout(expressions);
    column->addStretch();
    column->addLayout(answers);
    applyTexts(*this, texts);
}

QLabel* ConfirmForm::newLabel(const QString& name) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* ConfirmForm::newAnswer(const QString& name, const QString& answer) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, [this, answer] {
        Ergebnis = answer;
        accept();
    });
    return button;
}

void ConfirmForm::setExpressions(const QString& typed, const QString& stored) {
    m_typed->setText(wrappable(typed));
    m_stored->setText(wrappable(stored));
    m_typed->setAccessibleName(typed);
    m_stored->setAccessibleName(stored);
}

void ConfirmForm::showEvent(QShowEvent* event) {
    adjustSize(); // the last expressions may have been longer
    QDialog::showEvent(event);
    Ergebnis = u"Ja"_s;
    m_yes->setDefault(true);
    m_yes->setFocus();
}

} // namespace lingomat
