#include "PaintedPrinter.h"

#include <stdexcept>

namespace lingomat {

namespace {

[[noreturn]] void fail(const char* description) {
    throw std::runtime_error(description);
}

double twipsPerDotAcross(const QPaintDevice& device) {
    return double{TwipsPerInch} / device.logicalDpiX();
}

double twipsPerDotDown(const QPaintDevice& device) {
    return double{TwipsPerInch} / device.logicalDpiY();
}

} // namespace

PaintedPrinter::PaintedPrinter(Pages pages)
    : m_pages(std::move(pages)), m_metrics(QFont(), m_pages.device.get()) {
    if (!m_painter.begin(m_pages.device.get()))
        fail("The printer cannot be used, or the file cannot be written.");
}

double PaintedPrinter::Width() const {
    return m_pages.device->width() * twipsPerDotAcross(*m_pages.device);
}

double PaintedPrinter::Height() const {
    return m_pages.device->height() * twipsPerDotDown(*m_pages.device);
}

void PaintedPrinter::setFont(const PrintFont& font) {
    QFont chosen(font.family, font.size);
    chosen.setBold(font.bold);
    m_painter.setFont(chosen);
    m_metrics = QFontMetricsF(m_painter.font(), m_pages.device.get());
}

double PaintedPrinter::TextWidth(const QString& text) const {
    return m_metrics.horizontalAdvance(text) * twipsPerDotAcross(*m_pages.device);
}

double PaintedPrinter::TextHeight() const {
    return m_metrics.height() * twipsPerDotDown(*m_pages.device);
}

void PaintedPrinter::drawText(const QString& text) {
    const QPointF topLeft(CurrentX / twipsPerDotAcross(*m_pages.device),
                          CurrentY / twipsPerDotDown(*m_pages.device));
    m_painter.drawText(topLeft + QPointF(0, m_metrics.ascent()), text);
}

void PaintedPrinter::beginPage() {
    if (!m_pages.newPage())
        fail("The printer does not take another page.");
}

void PaintedPrinter::EndDoc() {
    if (!m_painter.end() || !m_pages.arrived())
        fail("The printout was not finished: the printer has stopped, or the disk is full.");
}

} // namespace lingomat
