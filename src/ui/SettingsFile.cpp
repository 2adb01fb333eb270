#include "SettingsFile.h"

#include <QStringDecoder>

#include <optional>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

bool isHalfACharacter(QStringView text, qsizetype i) {
    if (text[i].isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    return text[i].isLowSurrogate() && (i == 0 || !text[i - 1].isHighSurrogate());
}

/// `special` are the characters that mean something where the text goes.
QString escaped(const QString& text, QLatin1StringView special) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const char16_t code = character.unicode();
        const bool blankAtAnEnd = character == u' ' && (i == 0 || i + 1 == text.size()); // editors drop these
        if (code < 0x20 || code == 0x7F || character == u'%' || special.contains(character) || blankAtAnEnd)
            result += u'%' + QString::number(code, 16).rightJustified(2, u'0').toUpper();
        else if (isHalfACharacter(text, i) || code == QChar::ByteOrderMark)
            result += u"%u"_s + QString::number(code, 16).rightJustified(4, u'0').toUpper();
        else
            result += character;
    }
    return result;
}

std::optional<QString> unescaped(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'%') {
            if (text[i] < u' ')
                return {};
            result += text[i];
            continue;
        }
        const bool wide = i + 1 < text.size() && text[i + 1] == u'u';
        const qsizetype start = i + (wide ? 2 : 1);
        const qsizetype digits = wide ? 4 : 2;
        bool valid = start + digits <= text.size();
        const ushort code = valid ? text.sliced(start, digits).toUShort(&valid, 16) : ushort(0);
        if (!valid)
            return {};
        result += QChar(code);
        i = start + digits - 1;
    }
    return result;
}

/// The text of one line; nothing where it is no text.
std::optional<QString> decoded(QByteArrayView line) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(line);
    if (decoder.hasError())
        return {};
    if (text.endsWith(u'\r')) // from an editor of another system
        text.chop(1);
    return text;
}

class Parser {
public:
    explicit Parser(SettingsFile& file) : m_file(file) {}

    /// False: the line is none of a settings file.
    bool take(QByteArrayView bytes) {
        const auto line = decoded(bytes);
        if (!line)
            return false;
        if (line->isEmpty() || line->startsWith(u';'))
            return true;
        return line->startsWith(u'[') ? takeSection(*line) : takeValue(*line);
    }

private:
    bool takeSection(QStringView line) {
        m_path = line.endsWith(u']') ? unescaped(line.sliced(1, line.size() - 2)) : std::nullopt;
        return m_path.has_value();
    }

    bool takeValue(QStringView line) {
        const qsizetype equals = line.indexOf(u'=');
        if (!m_path || equals < 0)
            return false;
        const auto key = unescaped(line.first(equals));
        const auto value = unescaped(line.sliced(equals + 1));
        if (!key || !value)
            return false;
        m_file.sections[*m_path].insert(*key, *value);
        return true;
    }

    SettingsFile& m_file;
    std::optional<QString> m_path;
};

} // namespace

SettingsFile SettingsFile::parse(const QByteArray& text, bool* damaged) {
    SettingsFile file;
    Parser parser(file);
    bool allTaken = true;
    qsizetype start = 0;
    while (start < text.size()) {
        const qsizetype feed = text.indexOf('\n', start);
        const qsizetype end = feed < 0 ? text.size() : feed;
        allTaken = parser.take(QByteArrayView(text).sliced(start, end - start)) && allTaken;
        start = end + 1;
    }
    if (damaged)
        *damaged = !allTaken;
    return file;
}

QByteArray SettingsFile::toText() const {
    QString text;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section) {
        text += u'[' + escaped(section.key(), "]"_L1) + u"]\n"_s;
        for (auto entry = section->cbegin(); entry != section->cend(); ++entry)
            text += escaped(entry.key(), "=[;"_L1) + u'=' + escaped(entry.value(), ""_L1) + u'\n';
    }
    return text.toUtf8();
}

bool SettingsFile::removeSection(const QString& path) {
    const auto before = sections.size();
    sections.remove(path);
    const QString below = path + u'\\';
    // Sections are in order, so those below stand side by side.
    auto section = sections.lowerBound(below);
    while (section != sections.end() && section.key().startsWith(below))
        section = sections.erase(section);
    return sections.size() != before;
}

bool SettingsFile::removeKey(const QString& path, const QString& key) {
    const auto section = sections.find(path);
    if (section == sections.end() || !section->remove(key))
        return false;
    if (section->isEmpty())
        sections.erase(section);
    return true;
}

} // namespace lingomat
