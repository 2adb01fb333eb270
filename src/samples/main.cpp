// make_samples <data folder> <output folder>: writes the sample databases from their readable data.

#include "SampleError.h"
#include "SampleFiles.h"
#include "SampleReader.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <exception>

namespace {

void makeSamples(const QString& dataFolder, const QString& outputFolder) {
    for (const lingomat::SampleKind& kind : lingomat::sampleKinds()) {
        const lingomat::SampleData data = lingomat::readSampleData(dataFolder, kind.pair);
        lingomat::makeSampleFile(QDir(outputFolder).filePath(kind.fileName), kind, data,
                                 QDate::currentDate());
    }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: make_samples <data folder> <output folder>\n", stderr);
        return 2;
    }
    try {
        makeSamples(arguments[1], arguments[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_samples: %s\n", error.what());
        return 1;
    }
    return 0;
}
