#include "clsCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace lingomat {

void clsCursor::SetCursorToBusy() {
    if (m_busy)
        return;
    m_busy = true;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void clsCursor::RestoreCursor() {
    if (!m_busy)
        return;
    m_busy = false;
    QGuiApplication::restoreOverrideCursor();
}

} // namespace lingomat
