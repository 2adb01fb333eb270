#pragma once

#include <QSize>

namespace lingomat {

/// Whether a form of that size does not fit the work area, in width or in height. In pixels.
[[nodiscard]] bool screenTooSmall(const QSize& workArea, const QSize& form);

} // namespace lingomat
