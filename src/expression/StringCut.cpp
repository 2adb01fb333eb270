#include "StringCut.h"

#include "ExpressionText.h"

using namespace Qt::StringLiterals;

namespace lingomat {

QString StringCut(const QString& text, double width, const std::function<double(const QString&)>& textWidth) {
    if (textWidth(text) <= width)
        return text;
    // Halving: a text of many lines would have to be measured once for each of its characters.
    qsizetype fits = 0;
    qsizetype tooLong = text.size();
    while (tooLong - fits > 1) {
        const qsizetype middle = fits + (tooLong - fits) / 2;
        (textWidth(TruncateText(text, middle)) <= width ? fits : tooLong) = middle;
    }
    const QString fitting = TruncateText(text, fits);
    return TruncateText(fitting, fitting.size() - 1) + "..."_L1;
}

} // namespace lingomat
