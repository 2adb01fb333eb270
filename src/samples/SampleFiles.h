#pragma once

#include "SampleData.h"

#include <QDate>

#include <array>

namespace lingomat {

/// One of the databases that are delivered beside the program.
struct SampleKind {
    QString fileName;
    QString pair;      ///< ending of the data files' names
    QString language1; ///< as it stands in property `Languages`
    QString language2;
};

/// Example.lmt and ExampleGerman.lmt.
[[nodiscard]] const std::array<SampleKind, 2>& sampleKinds();

/// Writes a new database with the data, dating its phrases `today`. The file appears under its name when it
/// is complete, in place of an older one. Throws SampleError.
void makeSampleFile(const QString& path, const SampleKind& kind, const SampleData& data, QDate today);

} // namespace lingomat
