#include "RecordingPaper.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>

namespace lingomat {

namespace {

constexpr double MillimetersPerInch = 25.4;

class RecordingEngine final : public QPaintEngine {
public:
    RecordingEngine(RecordingPaper::Kind kind, std::vector<RecordingPaper::Page>& pages)
        : QPaintEngine(AllFeatures), m_kind(kind), m_pages(pages) {}

    bool begin(QPaintDevice* /*device*/) override { return m_kind.takesPaint; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
    Type type() const override { return User; }

    /// One text may come in several items, one for each script and font.
    void drawTextItem(const QPointF& baseline, const QTextItem& item) override {
        const double twips = double{TwipsPerInch} / m_kind.dotsPerInch;
        const QFontMetricsF metrics(painter()->font(), paintDevice());
        const RecordingPaper::Text text{.left = baseline.x() * twips,
                                        .top = (baseline.y() - metrics.ascent()) * twips,
                                        .width = item.width() * twips,
                                        .text = item.text(),
                                        .points = painter()->font().pointSize(),
                                        .bold = painter()->font().bold()};
        RecordingPaper::Page& page = m_pages.back();
        if (page.empty() || !continues(text, page.back())) {
            page.push_back(text);
            return;
        }
        page.back().text += text.text;
        page.back().width += text.width;
    }

private:
    [[nodiscard]] bool continues(const RecordingPaper::Text& text, const RecordingPaper::Text& last) const {
        const double dot = double{TwipsPerInch} / m_kind.dotsPerInch;
        return qAbs(text.top - last.top) < dot && qAbs(text.left - last.left - last.width) < 2 * dot;
    }

    const RecordingPaper::Kind m_kind;
    std::vector<RecordingPaper::Page>& m_pages;
};

} // namespace

class RecordingPaper::Device final : public QPaintDevice {
public:
    explicit Device(const Kind& wanted) : kind(wanted), m_engine(kind, pages) {}

    QPaintEngine* paintEngine() const override { return &m_engine; }

    const Kind kind;
    std::vector<Page> pages{1};
    bool finished = false;

protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth: return qRound(kind.widthInInches * kind.dotsPerInch);
        case PdmHeight: return qRound(kind.heightInInches * kind.dotsPerInch);
        case PdmWidthMM: return qRound(kind.widthInInches * MillimetersPerInch);
        case PdmHeightMM: return qRound(kind.heightInInches * MillimetersPerInch);
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY: return kind.dotsPerInch;
        case PdmDevicePixelRatio: return 1;
        case PdmDevicePixelRatioScaled: return qRound(devicePixelRatioFScale());
        default: return QPaintDevice::metric(metric);
        }
    }

private:
    mutable RecordingEngine m_engine;
};

RecordingPaper::RecordingPaper(const Kind& kind) : m_device(std::make_shared<Device>(kind)) {}

PaintedPrinter::Pages RecordingPaper::output() const {
    Device* const device = m_device.get();
    return {.device = m_device,
            .newPage =
                [device] {
                    if (device->pages.size() >= device->kind.mostPages)
                        return false;
                    device->pages.emplace_back();
                    return true;
                },
            .arrived =
                [device] {
                    device->finished = true;
                    return device->kind.arrives;
                }};
}

std::unique_ptr<Printer> RecordingPaper::printer() const {
    return std::make_unique<PaintedPrinter>(output());
}

const std::vector<RecordingPaper::Page>& RecordingPaper::pages() const {
    return m_device->pages;
}

bool RecordingPaper::isFinished() const {
    return m_device->finished;
}

} // namespace lingomat
