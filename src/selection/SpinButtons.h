#pragma once

#include "DateRules.h"

#include <QWidget>

class QLineEdit;
class QToolButton;

namespace lingomat {

/// Two small arrows beside a text box that holds a number, the buddy. They step the number by one, as the
/// keys Up and Down do in the box, and stop at the limits. A text that is no number steps to the lower
/// limit; a number beyond a limit to that limit. What the user types is not limited.
class SpinButtons final : public QWidget {
    Q_OBJECT

public:
    SpinButtons(const QString& name, QLineEdit& buddy, QWidget* parent = nullptr);

    void setLimits(SpinLimits limits) { m_limits = limits; }
    void setHighest(int highest) { m_limits.highest = highest; }
    [[nodiscard]] SpinLimits limits() const { return m_limits; }
    void stepBy(int step);
    /// Names the arrows for screen readers after what the box holds.
    void setBuddyName(const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QToolButton* addArrow(Qt::ArrowType arrow, const QString& name, int step);

    QLineEdit& m_buddy;
    QToolButton* m_up;
    QToolButton* m_down;
    SpinLimits m_limits{0, 100};
};

} // namespace lingomat
