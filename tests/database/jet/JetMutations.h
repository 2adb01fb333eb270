#pragma once

#include <QByteArray>

namespace lingomat {

/// What reading a whole file came to.
struct JetExercise {
    bool opened = false;
    qint64 tables = 0;
    qint64 rows = 0;
    qint64 characters = 0; ///< of all texts together
};

/// Reads whatever can be read of these bytes: tables, properties, every field. Nothing but an error of the
/// reader's own is caught.
[[nodiscard]] JetExercise exerciseJet(const QByteArray& bytes);

/// The bytes with some damage that the seed decides on: bytes, numbers, pages, the end.
[[nodiscard]] QByteArray mutated(const QByteArray& sound, unsigned seed);

} // namespace lingomat
