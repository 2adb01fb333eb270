#pragma once

#include <QCollator>

namespace lingomat {

/// How the interface language puts texts in order: without regard to case, ä beside a.
[[nodiscard]] QCollator interfaceCollator();

/// Whether `left` comes before `right` where runs of digits count by their value: I2 before I10.
[[nodiscard]] bool naturallyBefore(QStringView left, QStringView right);

} // namespace lingomat
