#pragma once

// Private to the reader.

#include "JetFile.h"
#include "TextDecoder.h"

namespace jet {

/// The value that the bytes of a field, or of a property, hold. Memo and LongBinary: of the long value's own
/// bytes. Error: Damaged where bytes and type do not go together.
[[nodiscard]] Cell decodeCell(ColumnType type, ByteView bytes, const TextDecoder& decoder);

} // namespace jet
