// A coverage-guided search for bytes that make the reader of Jet files crash, hang or take memory without
// end.

#include "JetMutations.h"

#include <algorithm>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t largest);

/// Every other input is changed as such a file would be damaged: by pages, lengths and places.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t largest,
                                               unsigned seed) {
    constexpr std::size_t smallest = 3 * 4096;
    if (seed % 2 == 0 || size < smallest)
        return LLVMFuzzerMutate(data, size, largest);
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QByteArray changed = lingomat::mutated(bytes, seed);
    const std::size_t length = std::min(static_cast<std::size_t>(changed.size()), largest);
    std::memcpy(data, changed.constData(), length);
    return length;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const lingomat::JetExercise exercise = lingomat::exerciseJet(bytes);
    if (exercise.rows > bytes.size() || exercise.characters > 2 * bytes.size())
        __builtin_trap(); // more than the file can hold
    return 0;
}
