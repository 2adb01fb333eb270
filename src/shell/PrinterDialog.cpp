#include "PrinterDialog.h"

#include "Globals.h"
#include "Prompts.h"

#include <QFile>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// The toolkit does not say when a disk is full; a file that was cut short lacks its end.
bool isWholePdf(const QString& path) {
    constexpr qint64 TailLength = 16;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    file.seek(qMax(qint64{0}, file.size() - TailLength));
    return file.readAll().contains("%%EOF");
}

bool hasArrived(const QPrinter& printer) {
    if (printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted)
        return false;
    const QFileInfo file(printer.outputFileName());
    return !file.isFile() || isWholePdf(file.filePath());
}

} // namespace

PaintedPrinter::Pages pagesOf(const std::shared_ptr<QPrinter>& printer) {
    return {.device = printer,
            .newPage = [printer] { return printer->newPage(); },
            .arrived = [printer] { return hasArrived(*printer); }};
}

PrinterChooser printerDialog(Prompts& prompts) {
    return [&prompts](QWidget* parent, const QString& document) -> std::optional<PaintedPrinter::Pages> {
        const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
        printer->setDocName(document);
        printer->setCreator(ProductName());
        QPrintDialog dialog(printer.get(), parent);
        dialog.setObjectName(u"PrintDialog"_s);
        dialog.setOption(QAbstractPrintDialog::PrintPageRange, false); // all or nothing
        if (prompts.exec(dialog) != QDialog::Accepted)
            return {};
        return pagesOf(printer);
    };
}

} // namespace lingomat
