#pragma once

#include "Printer.h"

#include <QFontMetricsF>
#include <QPainter>

#include <functional>
#include <memory>

namespace lingomat {

/// The toolkit's way of printing: paints on a device that has pages.
class PaintedPrinter final : public Printer {
public:
    struct Pages {
        std::shared_ptr<QPaintDevice> device;
        std::function<bool()> newPage; ///< another page; whether there is one
        /// Asked when all is painted: whether it has arrived where it was to go.
        std::function<bool()> arrived;
    };

    /// Throws where the device does not take anything.
    explicit PaintedPrinter(Pages pages);

    [[nodiscard]] double Width() const override;
    [[nodiscard]] double Height() const override;
    void setFont(const PrintFont& font) override;
    [[nodiscard]] double TextWidth(const QString& text) const override;
    [[nodiscard]] double TextHeight() const override;
    void EndDoc() override;

protected:
    void drawText(const QString& text) override;
    void beginPage() override;

private:
    Pages m_pages;
    QPainter m_painter;
    QFontMetricsF m_metrics;
};

} // namespace lingomat
