#pragma once

#include "PaintedPrinter.h"

#include <functional>
#include <memory>
#include <optional>

class QPrinter;
class QWidget;

namespace lingomat {

class Prompts;

/// Asks the user for a printer and gives its pages; none when the user cancelled. `document` names the
/// printout where printers list what they have to do.
using PrinterChooser =
    std::function<std::optional<PaintedPrinter::Pages>(QWidget* parent, const QString& document)>;

/// The toolkit's dialog, which offers the printers of the system and a PDF file.
[[nodiscard]] PrinterChooser printerDialog(Prompts& prompts);

/// The pages of one of the toolkit's printers, or of the PDF file that it prints to.
[[nodiscard]] PaintedPrinter::Pages pagesOf(const std::shared_ptr<QPrinter>& printer);

} // namespace lingomat
