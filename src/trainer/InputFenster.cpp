#include "InputFenster.h"

#include "AnswerRules.h"
#include "FormTexts.h"
#include "Globals.h"
#include "Resources.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// What the keyboards of some languages lack and those of others have.
constexpr auto Characters = u"á à â ã å æ ä é è ê ë ì í î ï ó ò ô õ ø ö œ ú ù û ü ý ÿ ç ñ ß ð þ ¿ ¡ "
                            "Á À Â Ã Å Æ Ä É È Ê Ë Ì Í Î Ï Ó Ò Ô Õ Ø Ö Œ Ú Ù Û Ü Ý Ç Ñ Ð Þ";

constexpr FormText texts[] = {
    {"InputFenster", u"Bitte Ausdruck eingeben", u"Please enter expression"},
    {"Label1", u"Bitte Ausdruck eingeben:", u"Please enter expression"},
    {"Label3", u"Hilfe: F1", u"Help: F1"},
    {"Command1", u"Sonderzeichen...", u"Special Characters"},
    {"OK", u"OK", u"OK"},
    // German in either language.
    {"Text1", u"", u"", u"Hier die Übersetzung für den angezeigten Ausdruck eingeben",
     u"Hier die Übersetzung für den angezeigten Ausdruck eingeben"},
};

} // namespace

InputFenster::InputFenster(const EqualCharacters& equal, QWidget* parent) : QDialog(parent), m_equal(equal) {
    setObjectName(u"InputFenster"_s);
    buildWidgets();
    applyTexts(*this, texts);
    const QString mainOnly =
        uiText(u"Vergleich nur mit Hauptausdruck ein/aus"_s, u"Compare with main part only on/off"_s);
    m_mainOnly->setToolTip(mainOnly);
    m_mainOnly->setAccessibleName(mainOnly);
    m_text->setAccessibleName(windowTitle());
    m_characters->setAccessibleName(uiText(u"Sonderzeichen"_s, u"Special Characters"_s));
}

void InputFenster::buildWidgets() {
    auto* label = new QLabel(this);
    label->setObjectName(u"Label1"_s);
    m_text = new QLineEdit(this);
    m_text->setObjectName(u"Text1"_s);
    m_text->setAlignment(Qt::AlignCenter);
    label->setBuddy(m_text);

    m_characters = new QComboBox(this);
    m_characters->setObjectName(u"FontCombo"_s);
    m_characters->addItems(QString::fromUtf16(Characters).split(u' '));
    connect(m_characters, &QComboBox::textActivated, this, &InputFenster::insertCharacter);
    m_pad = new QPushButton(this);
    m_pad->setObjectName(u"Command1"_s);
    m_pad->setAutoDefault(false);
    connect(m_pad, &QPushButton::clicked, this, [this] { Q_EMIT specialCharactersRequested(); });

    auto* toolbar = new QToolBar(this);
    toolbar->setObjectName(u"Toolbar1"_s);
    m_mainOnly = new QToolButton(toolbar);
    m_mainOnly->setObjectName(u"Toolbar1_Button1"_s);
    m_mainOnly->setCheckable(true);
    m_mainOnly->setFocusPolicy(Qt::TabFocus);
    m_mainOnly->setIcon(icon("main-only"_L1));
    toolbar->addWidget(m_mainOnly);
    connect(m_mainOnly, &QToolButton::clicked, this, &InputFenster::mainOnlyChanged);

    m_ok = new QPushButton(this);
    m_ok->setObjectName(u"OK"_s);
    m_ok->setDefault(true);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* helpKey = new QLabel(this);
    helpKey->setObjectName(u"Label3"_s);
    auto* top = new QHBoxLayout;
    top->addWidget(label);
    top->addStretch();
    top->addWidget(helpKey);
    auto* tools = new QHBoxLayout;
    tools->addWidget(m_characters);
    tools->addWidget(m_pad);
    tools->addWidget(toolbar);
    tools->addStretch();
    tools->addWidget(m_ok);
    auto* column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(top);
    column->addWidget(m_text);
    column->addLayout(tools);
}

void InputFenster::insertCharacter(const QString& character) {
    m_text->insert(character);
    m_text->setFocus();
}

void InputFenster::placeOver(const QRect& solutionLine, const QFont& font) {
    m_solutionLine = solutionLine;
    m_text->setFont(font);
    m_text->setFixedSize(solutionLine.size().expandedTo(m_text->minimumSizeHint()));
    layout()->activate();
}

void InputFenster::setMainOnly(bool mainOnly) {
    m_mainOnly->setChecked(mainOnly);
}

bool InputFenster::event(QEvent* event) {
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::WindowActivate) // also when the user comes back from the pad
        m_text->setFocus();
    return isHandled;
}

void InputFenster::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    m_text->clear();
    m_text->setFocus();
    moveIntoPlace();
}

/// The box covers the line; the window round it stays on the screen.
void InputFenster::moveIntoPlace() {
    if (m_solutionLine.isNull())
        return;
    layout()->activate();
    const QPoint frame = geometry().topLeft() - frameGeometry().topLeft();
    const QPoint wanted = m_solutionLine.topLeft() - m_text->pos() - frame;
    const QRect room = screen()->availableGeometry();
    move(qBound(room.left(), wanted.x(), qMax(room.left(), room.right() - frameGeometry().width())),
         qBound(room.top(), wanted.y(), qMax(room.top(), room.bottom() - frameGeometry().height())));
}

void InputFenster::done(int result) {
    Ausdruck = result == Accepted ? cleanedAnswer(m_text->text(), m_equal) : QString();
    m_text->clear();
    QDialog::done(result);
}

} // namespace lingomat
