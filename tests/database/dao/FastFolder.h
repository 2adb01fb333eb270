#pragma once

#include <QString>

namespace dao {

/// Template for a test's temporary folder. Every change of a database waits for the disk: where the system
/// has a folder in memory, tests use that.
[[nodiscard]] QString fastFolder();

} // namespace dao
