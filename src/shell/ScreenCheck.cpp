#include "ScreenCheck.h"

namespace lingomat {

bool screenTooSmall(const QSize& workArea, const QSize& form) {
    return workArea.width() < form.width() || workArea.height() < form.height();
}

} // namespace lingomat
