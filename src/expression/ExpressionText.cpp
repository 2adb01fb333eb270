#include "ExpressionText.h"

#include "CharacterClasses.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr QChar Blank = u' ';
const QLatin1String Ellipsis("...");

void appendParted(QString& line, const QString& part) {
    if (part.isEmpty()) {
        return;
    }
    if (!line.isEmpty() && !line.endsWith(Blank)) {
        line += Blank;
    }
    line += part;
}

/// Whether a cut in front of `position` would part the two halves of one character.
bool splitsCharacter(const QString& text, qsizetype position) {
    return position > 0 && position < text.size() && text.at(position).isLowSurrogate() &&
           text.at(position - 1).isHighSurrogate();
}

void dropLastCharacter(QString& text) {
    text.chop(splitsCharacter(text, text.size() - 1) ? 2 : 1);
}

} // namespace

QString generiereAusdruck(const QString& prefix, const QString& main, const QString& suffix,
                          const QString& comment) {
    QString line = prefix;
    appendParted(line, main);
    appendParted(line, suffix);
    appendParted(line, comment.isEmpty() ? QString() : u'(' + comment + u')');
    return line;
}

QString generiereAusdruck(const ExpressionParts& parts) {
    return generiereAusdruck(parts.prefix, parts.main, parts.suffix, parts.comment);
}

QString extract(const QString& text) {
    const auto isText = [](QChar character) { return character != Blank; };
    const auto first = std::find_if(text.begin(), text.end(), isText);
    const auto last = std::find_if(text.rbegin(), std::make_reverse_iterator(first), isText).base();
    return text.mid(first - text.begin(), last - first);
}

QString TruncateText(const QString& text, qsizetype length) {
    const qsizetype allowed = std::max<qsizetype>(length, 0);
    return text.left(splitsCharacter(text, allowed) ? allowed - 1 : allowed);
}

QString FitTextToWidth(const QString& text, int width, const std::function<int(const QString&)>& textWidth) {
    constexpr qsizetype ShortestToCut = 5;
    if (textWidth(text) <= width) {
        return text;
    }
    QString fitted = text + Ellipsis;
    while (fitted.size() >= ShortestToCut && textWidth(fitted) > width) {
        fitted.chop(Ellipsis.size());
        dropLastCharacter(fitted);
        fitted += Ellipsis;
    }
    return fitted;
}

qsizetype positionOfInternalCharacter(const QString& text) {
    const auto isInternal = [](QChar character) { return character == u'@' || character == u';'; };
    const auto found = std::find_if(text.begin(), text.end(), isInternal);
    return found == text.end() ? 0 : found - text.begin() + 1;
}

bool IsBuchstabe(const QString& text) {
    return text.size() == 1 && IsAsciiLetter(text.front());
}

int MyStoI(const QString& text) {
    return text.size() == 1 && IsDigitCharacter(text.front()) ? text.front().unicode() - u'0' : 0;
}

QString MyItoS(int number) {
    return QString::number(number);
}

} // namespace lingomat
