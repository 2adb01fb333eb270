#pragma once

#include "Database.h"

namespace dao {

/// Where new database files come from.
class Workspace {
public:
    /// Creates the file and opens it. `locale` is recorded and has no other effect.
    /// Errors: 3204 the file exists, 3044 the folder does not, 3051 the file cannot be written.
    [[nodiscard]] Database CreateDatabase(const QString& path, const QString& locale) const;
};

class DBEngine {
public:
    /// Opens a file for shared reading and writing (reading alone where the system allows no more). A file of
    /// the format Jet 3 or 4 is copied and can only be read.
    /// Errors: 3024 no such file, 3044 a folder or no valid path, 3051 locked or not permitted,
    /// 3343 neither a database of this program nor of those formats, a damaged one, or a protected one. The
    /// file is never changed by opening it.
    [[nodiscard]] static Database OpenDatabase(const QString& path);

    /// Only number 0 exists.
    [[nodiscard]] static Workspace Workspaces(int number);
};

} // namespace dao
