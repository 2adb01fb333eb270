#include "Desktop.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>

namespace lingomat {

Desktop userDesktop() {
    return {.openUrl = [](const QUrl& address) { return QDesktopServices::openUrl(address); },
            .findProgram = [](const QString& name) { return QStandardPaths::findExecutable(name); },
            .startProgram =
                [](const QString& program, const QStringList& arguments) {
                    return QProcess::startDetached(program, arguments);
                }};
}

} // namespace lingomat
