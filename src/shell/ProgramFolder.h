#pragma once

#include <QString>

namespace lingomat {

/// Where the files lie that are delivered with the program: the folder of the executable where these are
/// beside it, as in a build; `<prefix>/share/lingomat` of an installed `<prefix>/bin/lingomat` otherwise.
[[nodiscard]] QString findProgramFolder(const QString& executableFolder);

/// Full path of a file of the program folder, with the platform's separators.
[[nodiscard]] QString programFile(const QString& programFolder, const QString& name);

} // namespace lingomat
