#include "FastFolder.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace dao {

QString fastFolder() {
    const QString memory = u"/dev/shm"_s;
    const QString folder = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    return folder + u"/lingomat-test-XXXXXX"_s;
}

} // namespace dao
