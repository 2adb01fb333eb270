#include "ModalFollower.h"

#include "WindowPlacement.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace lingomat {

ModalFollower::ModalFollower(QWidget& window) : QObject(&window), m_window(window) {
    window.installEventFilter(this);
}

bool ModalFollower::eventFilter(QObject* watched, QEvent* event) {
    // A dialog came up over the window. It is still on its way to the screen.
    if (watched == &m_window && event->type() == QEvent::WindowBlocked)
        QMetaObject::invokeMethod(this, &ModalFollower::followModalDialog, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void ModalFollower::followModalDialog() {
    const QWidget* dialog = QApplication::activeModalWidget();
    if (dialog && dialog != &m_window)
        follow(*dialog);
}

void ModalFollower::follow(const QWidget& other) {
    keepInFrontOf(m_window, other);
    // Without that window this one hangs on to nothing, while another dialog may still be up.
    connect(other.windowHandle(), &QObject::destroyed, this, &ModalFollower::followModalDialog,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
}

} // namespace lingomat
