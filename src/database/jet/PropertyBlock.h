#pragma once

// Private to the reader.

#include "JetFile.h"
#include "TextDecoder.h"

namespace jet {

struct PropertyBlock {
    QList<Property> ofTable; ///< not those of its columns
    bool isDamaged = false;  ///< some may be missing
};

/// Reads what column `LvProp` holds. Whatever comes before a damage is kept.
[[nodiscard]] PropertyBlock readProperties(ByteView bytes, const TextDecoder& decoder);

} // namespace jet
