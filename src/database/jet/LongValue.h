#pragma once

// Private to the reader.

#include "DataPage.h"

namespace jet {

/// Longest value that is read, in bytes. A program of its time writes some thousands.
inline constexpr qint64 LongestValue = 16 * 1024 * 1024;

/// Bytes that a field of 12 bytes stands for: they follow it, or are a row of another page, or a chain of
/// rows. Error: Damaged; also for a row that `used` has already.
[[nodiscard]] QByteArray readLongValue(const PageFile& file, ByteView field, UsedPlaces& used);

} // namespace jet
