#include "TrainerToolbar.h"

#include "Globals.h"
#include "Resources.h"

#include <QToolButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Icons by the number of the button; a separator has none.
constexpr std::array<const char*, 13> icons{
    nullptr, "sequential", "shuffle", "random", nullptr,         "language1-first", "language2-first",
    nullptr, "self-test",  "loop",    "write",  "confirm-error", "main-only"};

constexpr QSize IconSize(19, 19); // pixels

} // namespace

TrainerToolbar::TrainerToolbar(QWidget* parent) : QToolBar(parent) {
    setObjectName(u"Toolbar1"_s);
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to take the toolbar away
    setIconSize(IconSize);
    for (int number = 1; number <= LastButton; ++number) {
        if (icons[static_cast<size_t>(number)])
            addOption(number);
        else
            addSeparator();
    }
}

void TrainerToolbar::addOption(int number) {
    auto* button = new QToolButton(this);
    button->setObjectName(u"Toolbar1_Button%1"_s.arg(number));
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIcon(icon(QLatin1StringView(icons[static_cast<size_t>(number)])));
    addWidget(button);
    m_buttons[static_cast<size_t>(number)] = button;
    connect(button, &QToolButton::clicked, this,
            [this, number](bool pressed) { Q_EMIT buttonPressed(static_cast<Button>(number), pressed); });
}

void TrainerToolbar::setPressed(Button button, bool pressed) {
    m_buttons[static_cast<size_t>(button)]->setChecked(pressed);
}

void TrainerToolbar::setButtonEnabled(Button button, bool enabled) {
    m_buttons[static_cast<size_t>(button)]->setEnabled(enabled);
}

void TrainerToolbar::setTips(const QString& language1, const QString& language2) {
    const QString first = uiText(u" zuerst"_s, u" first"_s);
    setTip(Sequential, uiText(u"Vokabeln Sequentiell"_s, u"Vocabulary in sequential order"_s));
    setTip(Shuffle, uiText(u"Vokabeln Gemischt"_s, u"Vocabulary shuffled"_s));
    setTip(Random, uiText(u"Zufällige Vokabelauswahl"_s, u"Vocabulary selected randomly"_s));
    setTip(Language1First, language1 + first);
    setTip(Language2First, language2 + first);
    setTip(SelfTest, uiText(u"Vokabeltest ein/ausschalten"_s, u"Switch self-test on/off"_s));
    setTip(Loop, uiText(u"Schleifenmodus ein/ausschalten"_s, u"Switch loop-mode on/off"_s));
    setTip(Write, uiText(u"Schreibmodus ein/ausschalten"_s, u"Switch write-mode on/off"_s));
    setTip(ConfirmError,
           uiText(u"Fehlerbestätigungsoption ein/ausschalten"_s, u"Switch error confirmation mode on/off"_s));
    setTip(MainOnly,
           uiText(u"Vergleich nur mit Hauptausdruck ein/aus"_s, u"Compare with main part only on/off"_s));
}

void TrainerToolbar::setTip(Button button, const QString& tip) {
    m_buttons[static_cast<size_t>(button)]->setToolTip(tip);
    m_buttons[static_cast<size_t>(button)]->setAccessibleName(tip);
}

} // namespace lingomat
