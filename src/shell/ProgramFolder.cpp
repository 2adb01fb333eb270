#include "ProgramFolder.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lingomat {

QString findProgramFolder(const QString& executableFolder) {
    if (QFileInfo::exists(executableFolder + "/Example.lmt"_L1))
        return executableFolder;
    return QDir::cleanPath(executableFolder + "/../share/lingomat"_L1);
}

QString programFile(const QString& programFolder, const QString& name) {
    return QDir::toNativeSeparators(programFolder + u'/' + name);
}

} // namespace lingomat
