#include "PrinterDialog.h"

#include "ModalDriver.h"
#include "TestContext.h"

#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

struct Pdf : testing::Test {
    std::shared_ptr<QPrinter> printerTo(const QString& file) {
        auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(file);
        printer->setPageSize(QPageSize(QPageSize::A4));
        return printer;
    }
    QByteArray contents() {
        QFile pdf(path);
        EXPECT_TRUE(pdf.open(QIODevice::ReadOnly));
        return pdf.readAll();
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list.pdf"_s);
};

TEST_F(Pdf, HasThePagesThatWerePrinted) {
    PaintedPrinter printer(pagesOf(printerTo(path)));
    printer.setFont({u"Arial"_s, 12, false});
    printer.Print(u"der Hund"_s);
    printer.NewPage();
    printer.Print(u"die Katze"_s);
    printer.EndDoc();
    const QByteArray pdf = contents();
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.contains("/Count 2"));
    EXPECT_TRUE(pdf.contains("%%EOF"));
}

TEST_F(Pdf, MeasuresTheAreaInsideItsMargins) {
    const auto printer = printerTo(path);
    PaintedPrinter pages(pagesOf(printer));
    const QRectF area = printer->pageLayout().paintRect(QPageLayout::Point);
    EXPECT_NEAR(pages.Width(), area.width() * 20, 5);
    EXPECT_NEAR(pages.Height(), area.height() * 20, 5);
    EXPECT_GT(pages.Width(), 10500) << "an A4 page is 11906 twips wide";
    EXPECT_LE(pages.Width(), 11906);
}

TEST_F(Pdf, ThatCannotBeWrittenIsRefused) {
    EXPECT_THROW(PaintedPrinter(pagesOf(printerTo(folder.filePath(u"no/folder.pdf"_s)))), std::runtime_error);
}

TEST_F(Pdf, ThatWasCutShortIsNoticed) {
    PaintedPrinter::Pages pages = pagesOf(printerTo(path));
    pages.arrived = [this, arrived = pages.arrived] {
        QFile::resize(path, 100); // as a full disk would leave it
        return arrived();
    };
    PaintedPrinter printer(std::move(pages));
    printer.Print(u"der Hund"_s);
    EXPECT_THROW(printer.EndDoc(), std::runtime_error);
}

TEST_F(Pdf, ThatDoesNotFitOnTheDiskIsNoticed) {
    PaintedPrinter printer(pagesOf(printerTo(path)));
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit full = before;
    full.rlim_cur = 4096; // bytes to a file, as on a disk that has no more
    setrlimit(RLIMIT_FSIZE, &full);
    const auto printMuch = [&printer] {
        for (int page = 0; page < 50; ++page) {
            printer.Print(u"der Hund "_s + QString::number(page));
            printer.NewPage();
        }
        printer.EndDoc();
    };
    EXPECT_THROW(printMuch(), std::runtime_error);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
}

TEST(PrinterDialog, CancelledGivesNoPaper) {
    ScreenPrompts prompts;
    onNextModal<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(printerDialog(prompts)(nullptr, u"vocab"_s));
}

TEST(PrinterDialog, GivesThePaperOfTheFileThatWasChosen) {
    const TestContext context;
    const QString path = context.path(u"chosen.pdf"_s);
    ScriptedPrompts prompts;
    prompts.expectDialog("PrintDialog", [&path](QDialog& shown) {
        auto& dialog = dynamic_cast<QPrintDialog&>(shown);
        EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintPageRange));
        EXPECT_EQ(dialog.printer()->docName(), u"vocab"_s);
        dialog.printer()->setOutputFileName(path);
        dialog.setResult(QDialog::Accepted);
        dialog.hide();
    });
    auto pages = printerDialog(prompts)(nullptr, u"vocab"_s);
    ASSERT_TRUE(pages);
    PaintedPrinter printer(std::move(*pages));
    printer.Print(u"der Hund"_s);
    printer.EndDoc();
    EXPECT_TRUE(QFile::exists(path));
}

} // namespace
} // namespace lingomat
