#pragma once

#include "SampleData.h"

namespace lingomat {

/// Reads the four files of a pair of languages, such as "german-english", and checks all that the database
/// would not take or the program could not use: sizes, keys, scores, dates, reserved characters. Throws
/// SampleError, which names file and line.
[[nodiscard]] SampleData readSampleData(const QString& folder, const QString& pair);

} // namespace lingomat
