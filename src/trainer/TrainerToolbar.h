#pragma once

#include <QToolBar>

#include <array>

class QToolButton;

namespace lingomat {

/// The ten option buttons of the Trainer. They only show what they are told and say which one was pressed;
/// what a press means is the Trainer's business.
class TrainerToolbar final : public QToolBar {
    Q_OBJECT

public:
    /// Numbers of the buttons. Those left out are separators.
    enum Button {
        Sequential = 1,
        Shuffle = 2,
        Random = 3,
        Language1First = 5,
        Language2First = 6,
        SelfTest = 8,
        Loop = 9,
        Write = 10,
        ConfirmError = 11,
        MainOnly = 12,
    };

    explicit TrainerToolbar(QWidget* parent);

    void setPressed(Button button, bool pressed);
    void setButtonEnabled(Button button, bool enabled);
    /// Writes the tips of all buttons; two of them name a language.
    void setTips(const QString& language1, const QString& language2);

Q_SIGNALS:
    /// The user has pressed a button, which stands as told now.
    void buttonPressed(Button button, bool pressed);

private:
    static constexpr int LastButton = 12;

    void addOption(int number);
    void setTip(Button button, const QString& tip);

    std::array<QToolButton*, LastButton + 1> m_buttons{};
};

} // namespace lingomat
