#include "SpinButtons.h"

#include "Globals.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

SpinButtons::SpinButtons(const QString& name, QLineEdit& buddy, QWidget* parent)
    : QWidget(parent), m_buddy(buddy) {
    setObjectName(name);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_up = addArrow(Qt::UpArrow, name + u"_Up"_s, 1);
    m_down = addArrow(Qt::DownArrow, name + u"_Down"_s, -1);
    column->addWidget(m_up);
    column->addWidget(m_down);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    m_buddy.installEventFilter(this);
}

void SpinButtons::stepBy(int step) {
    bool isNumber = false;
    const int number = m_buddy.text().toInt(&isNumber);
    const int wanted = isNumber ? number + step : m_limits.lowest;
    m_buddy.setText(QString::number(std::clamp(wanted, m_limits.lowest, m_limits.highest)));
}

void SpinButtons::setBuddyName(const QString& name) {
    setAccessibleName(name);
    m_up->setAccessibleName(name + uiText(u", höher"_s, u", up"_s));
    m_down->setAccessibleName(name + uiText(u", tiefer"_s, u", down"_s));
}

bool SpinButtons::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            stepBy(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

QToolButton* SpinButtons::addArrow(Qt::ArrowType arrow, const QString& name, int step) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setAutoRaise(false);
    button->setFocusPolicy(Qt::NoFocus); // the keys work in the box
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    connect(button, &QToolButton::clicked, this, [this, step] { stepBy(step); });
    return button;
}

} // namespace lingomat
