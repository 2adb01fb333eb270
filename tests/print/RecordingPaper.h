#pragma once

#include "PaintedPrinter.h"

#include <QString>

#include <memory>
#include <vector>

namespace lingomat {

/// Paper that takes down which text was painted where:
///
///     RecordingPaper paper;
///     program.expectPrinter(paper.output());
///     ...
///     EXPECT_EQ(paper.pages()[0][0].text, u"page1"_s);
class RecordingPaper {
public:
    struct Kind {
        int dotsPerInch = 600;
        double widthInInches = 8;
        double heightInInches = 11.4;
        bool takesPaint = true; ///< whether a printout can begin
        size_t mostPages = 10000;
        bool arrives = true; ///< whether the finished printout gets where it was to go
    };

    /// A text and the top left corner of its line, in twips.
    struct Text {
        double left = 0;
        double top = 0;
        double width = 0;
        QString text{};
        int points = 0;
        bool bold = false;
    };
    using Page = std::vector<Text>;

    RecordingPaper() : RecordingPaper(Kind()) {}
    explicit RecordingPaper(const Kind& kind);

    /// What a printer paints on. It has to go before this paper.
    [[nodiscard]] PaintedPrinter::Pages output() const;
    [[nodiscard]] std::unique_ptr<Printer> printer() const;
    [[nodiscard]] const std::vector<Page>& pages() const;
    [[nodiscard]] bool isFinished() const;

private:
    class Device;
    std::shared_ptr<Device> m_device;
};

} // namespace lingomat
