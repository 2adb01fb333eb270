#pragma once

#include <QString>

/// Number of entries of the big database: as many as a 16-bit row number can count.
inline constexpr int BigDatabaseEntries = 32767;

/// Writes a database of BigDatabaseEntries entries with two areas, one grammatical and one functional
/// attribute each, through the engine. Takes some seconds in memory, minutes on a disk that keeps its word.
void writeBigDatabase(const QString& path);

/// The path of the big database, which is written at the first call and kept beside the benchmarks. It must
/// not be changed: work on a copy.
[[nodiscard]] QString bigDatabase();
