// startup MODE: does one thing and ends, so that it can be timed from outside.
//   empty  shows an empty window, as any program of the toolkit would
//   main   starts the whole program on the database of the benchmarks until its main window takes commands
//   list   the same, then selects every entry, shows the list and prints the memory in use, in KiB

#include "BenchProgram.h"

#include <QApplication>
#include <QFile>
#include <QMainWindow>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Peak of the memory in use so far; -1 where the system does not tell.
int peakMemory() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QFile::ReadOnly))
        return -1;
    for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine())
        if (line.startsWith("VmHWM:"))
            return line.mid(6).replace("kB", "").trimmed().toInt();
    return -1;
}

} // namespace

int main(int argc, char** argv) {
    QApplication toolkit(argc, argv);
    const QString mode = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (mode == u"empty") {
        QMainWindow window;
        window.show();
        QCoreApplication::processEvents();
        std::_Exit(0);
    }
    BenchProgram program;
    program.start();
    if (mode == u"list") {
        program.selectAll();
        program.application().liste().show();
        QCoreApplication::processEvents();
        std::printf("%d\n", peakMemory());
        return 0;
    }
    std::fflush(stdout);
    std::_Exit(0); // what the end takes is not asked here
}
