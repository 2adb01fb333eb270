#include "Printer.h"

namespace lingomat {

void Printer::Print(const QString& text) {
    drawText(text);
    CurrentX = 0;
    CurrentY += TextHeight();
}

void Printer::NewPage() {
    beginPage();
    CurrentX = 0;
    CurrentY = 0;
}

} // namespace lingomat
