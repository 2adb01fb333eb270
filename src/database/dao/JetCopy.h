#pragma once

// Private to the engine: files of the formats Jet 3 and Jet 4, behind the same classes as its own.

#include "Connection.h"

#include <QByteArrayView>

namespace dao {

/// Bytes that isJetFile() needs of a file.
inline constexpr qsizetype JetSignatureLength = 19;
/// Also true for later formats of that family, which copyOfJetFile() refuses with a text that says so.
[[nodiscard]] bool isJetFile(QByteArrayView start);

/// The user's tables of the file, read-only, with what could not be read of them. The file is opened for
/// reading alone, and is closed again. Errors: 3051 not permitted, 3343 damaged, protected or of a later
/// format.
[[nodiscard]] std::shared_ptr<Connection> copyOfJetFile(const QString& path);

} // namespace dao
