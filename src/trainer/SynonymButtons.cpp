#include "SynonymButtons.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace lingomat {

SynonymButtons::SynonymButtons(const QString& name, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
    setCursor(Qt::ArrowCursor);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    const auto addArrow = [&](Qt::ArrowType arrow, const QString& suffix, void (SynonymButtons::*signal)()) {
        auto* button = new QToolButton(this);
        button->setObjectName(name + suffix);
        button->setArrowType(arrow);
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
        column->addWidget(button);
        connect(button, &QToolButton::clicked, this, signal);
        return button;
    };
    QToolButton* up = addArrow(Qt::UpArrow, u"_Up"_s, &SynonymButtons::next);
    addArrow(Qt::DownArrow, u"_Down"_s, &SynonymButtons::previous);
    setFocusProxy(up);
    hide();
}

/// The arrows would pass these keys on to their neighbours.
bool SynonymButtons::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up)
            Q_EMIT next();
        else if (key == Qt::Key_Down)
            Q_EMIT previous();
        if (key == Qt::Key_Up || key == Qt::Key_Down)
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace lingomat
