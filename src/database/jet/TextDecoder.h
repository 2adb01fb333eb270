#pragma once

// Private to the reader.

#include "ByteView.h"

#include <QString>

namespace jet {

/// How a file stores its texts: single bytes of a code page, or UTF-16, which may be compressed.
class TextDecoder {
public:
    /// For files of that version. The code page has no effect from version 4 on.
    /// Error (Newer): a code page that is not supported; 874 and 1250 to 1258 are.
    TextDecoder(int version, int codePage);

    /// Error (Damaged): half a character.
    [[nodiscard]] QString decode(ByteView bytes) const;

private:
    const char16_t* m_upperHalf = nullptr; ///< characters 0x80 to 0xFF of the code page; none: UTF-16
};

/// The upper half of a code page; none where it is not supported.
[[nodiscard]] const char16_t* upperHalfOf(int codePage);

} // namespace jet
