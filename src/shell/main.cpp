#include "Application.h"
#include "Globals.h"
#include "ProgramFolder.h"
#include "Resources.h"
#include "SafeApplication.h"

#include <QScreen>

namespace {

QSize primaryWorkArea() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableSize() : QSize();
}

} // namespace

int main(int argc, char** argv) {
    using namespace lingomat;
    using namespace Qt::StringLiterals;

    ScreenPrompts prompts;
    SafeApplication toolkit(argc, argv, prompts);
    QCoreApplication::setApplicationName(ProductName());
    QCoreApplication::setApplicationVersion(VersionText());
    QGuiApplication::setDesktopFileName(u"org.lingomat.Lingomat"_s);
    QGuiApplication::setWindowIcon(applicationIcon());

    ClockSeededRandom random;
    Application program({.prompts = prompts,
                         .random = random,
                         .today = [] { return QDate::currentDate(); },
                         .workArea = primaryWorkArea,
                         .choosePrinter = printerDialog(prompts),
                         .programFolder = findProgramFolder(QCoreApplication::applicationDirPath()),
                         .settingsFolder = {}});
    program.start();
    return QCoreApplication::exec();
}
