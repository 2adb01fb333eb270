#pragma once

#include <QString>

namespace lingomat {

/// Twips to an inch, the unit of all lengths on paper.
inline constexpr int TwipsPerInch = 1440;

struct PrintFont {
    QString family;
    int size = 0; ///< in points
    bool bold = false;

    friend bool operator==(const PrintFont&, const PrintFont&) = default;
};

/// Paper to write on, line by line and page by page. Lengths are twips; places are counted from the top left
/// corner of the area that can be printed on. What fails throws, with an English description.
class Printer {
public:
    virtual ~Printer() = default;

    // Where the next text goes.
    double CurrentX = 0;
    double CurrentY = 0; ///< top of the line

    [[nodiscard]] virtual double Width() const = 0; ///< of the area that can be printed on
    [[nodiscard]] virtual double Height() const = 0;
    virtual void setFont(const PrintFont& font) = 0;
    // In the present font.
    [[nodiscard]] virtual double TextWidth(const QString& text) const = 0;
    [[nodiscard]] virtual double TextHeight() const = 0; ///< of a line

    /// Writes one line of text and goes on to the left end of the next line. What does not fit runs off the
    /// page.
    void Print(const QString& text);
    /// Goes on to the top left corner of another page.
    void NewPage();
    /// Finishes the printout and sends it off. Nothing can be printed afterwards.
    virtual void EndDoc() = 0;

protected:
    virtual void drawText(const QString& text) = 0; ///< at CurrentX, CurrentY
    virtual void beginPage() = 0;                   ///< behind the present one
};

} // namespace lingomat
