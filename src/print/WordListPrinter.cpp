#include "WordListPrinter.h"

#include "Printer.h"
#include "StringCut.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int PrintMargin = 100; // twips
constexpr int PathMargins = 10;  // what stays free right of the path, in margins
constexpr int FootMargins = 7;   // what stays free below the last row

const PrintFont& smallFont() {
    static const PrintFont font{u"Arial"_s, 8, false};
    return font;
}
const PrintFont& headFont() {
    static const PrintFont font{u"Arial"_s, 10, true};
    return font;
}
const PrintFont& rowFont() {
    static const PrintFont font{u"Arial"_s, 12, false};
    return font;
}

} // namespace

WordListPrinter::WordListPrinter(Printer& printer, WordListHead head)
    : m_printer(printer), m_head(std::move(head)) {
    PrintHeader();
}

void WordListPrinter::PrintHeader() {
    m_printer.setFont(smallFont());
    ++m_page;
    m_rowsOnPage = 0;
    const QString pageLine = m_head.page + QString::number(m_page);
    m_printer.CurrentX = (m_printer.Width() - m_printer.TextWidth(pageLine)) / 2;
    m_printer.Print(pageLine);
    m_printer.CurrentX = m_printer.Width() - m_printer.TextWidth(m_head.path) - PathMargins * PrintMargin;
    m_printer.Print(m_head.path);
    m_printer.CurrentY += m_printer.TextHeight();

    m_printer.setFont(headFont());
    PrintRow(m_head.left, m_head.right);
    PrintFont plain = headFont();
    plain.bold = false;
    m_printer.setFont(plain);
    m_printer.CurrentY += m_printer.TextHeight();
    m_printer.setFont(rowFont());
}

void WordListPrinter::addRow(const QString& left, const QString& right) {
    if (pageIsFull()) {
        m_printer.NewPage();
        PrintHeader();
    }
    PrintRow(left, right);
    ++m_rowsOnPage;
    m_printer.CurrentY += m_printer.TextHeight() / 4;
}

bool WordListPrinter::pageIsFull() const {
    // However small the paper, it takes one row.
    return m_rowsOnPage > 0 && m_printer.CurrentY >= m_printer.Height() - FootMargins * PrintMargin;
}

void WordListPrinter::PrintRow(const QString& left, const QString& right) {
    const double line = std::round(m_printer.CurrentY);
    m_printer.CurrentY = line;
    m_printer.CurrentX = PrintMargin;
    m_printer.Print(StringCut(left));
    m_printer.CurrentY = line;
    m_printer.CurrentX = (m_printer.Width() - 2 * PrintMargin) / 2 + PrintMargin;
    m_printer.Print(right);
}

QString WordListPrinter::StringCut(const QString& text) const {
    const int column = static_cast<int>(std::lround((m_printer.Width() - 2 * PrintMargin) / 2));
    return lingomat::StringCut(text, column - PrintMargin,
                               [this](const QString& part) { return m_printer.TextWidth(part); });
}

} // namespace lingomat
