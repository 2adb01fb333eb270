#include "Lexer.h"

#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace criteria {

namespace {

constexpr std::array<std::pair<QStringView, TokenKind>, 10> Keywords{{
    {u"AND", TokenKind::And},
    {u"OR", TokenKind::Or},
    {u"NOT", TokenKind::Not},
    {u"LIKE", TokenKind::Like},
    {u"IS", TokenKind::Is},
    {u"NULL", TokenKind::Null},
    {u"SELECT", TokenKind::Select},
    {u"DISTINCT", TokenKind::Distinct},
    {u"FROM", TokenKind::From},
    {u"WHERE", TokenKind::Where},
}};

std::optional<TokenKind> keyword(QStringView word) {
    for (const auto& [text, kind] : Keywords)
        if (word.size() == text.size() && word.compare(text, Qt::CaseInsensitive) == 0)
            return kind;
    return std::nullopt;
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool startsName(QChar c) {
    if (c.unicode() < 0x80)
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
    return c.isLetter();
}

bool continuesName(QChar c) {
    return startsName(c) || isDigit(c) || (c.unicode() >= 0x80 && (c.isNumber() || c.isMark()));
}

class Lexer {
public:
    explicit Lexer(QStringView text) : m_text(text) {
        m_result.tokens.reserve(static_cast<std::size_t>(text.size() / 4 + 2));
        m_result.shape.reserve(static_cast<std::size_t>(text.size()));
    }

    LexedText run() {
        while (skipBlanks(), m_at < m_text.size())
            next();
        m_result.tokens.push_back({TokenKind::End, {}});
        return std::move(m_result);
    }

private:
    [[nodiscard]] QChar peek(qsizetype ahead = 0) const {
        return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : QChar();
    }

    void skipBlanks() {
        while (m_at < m_text.size() && m_text[m_at].isSpace())
            ++m_at;
    }

    void next() {
        const QChar c = peek();
        if (startsName(c))
            return word();
        if (c == u'[')
            return bracketedName();
        if (c == u'\'' || c == u'"')
            return quotedText(c);
        if (isDigit(c) || (c == u'.' && isDigit(peek(1))) || (c == u'-' && isDigit(peek(1))))
            return number();
        sign(c);
    }

    // In the shape a sign or keyword is one character from a range that no name can hold.
    void add(TokenKind kind) {
        m_result.tokens.push_back({kind, {}});
        m_result.shape += static_cast<char16_t>(static_cast<int>(kind) + 1);
    }

    void addName(QStringView name) {
        m_result.tokens.push_back({TokenKind::Name, name});
        m_result.shape += u'[';
        m_result.shape.append(name.utf16(), static_cast<std::size_t>(name.size()));
        m_result.shape += u']';
    }

    void addLiteral(dao::Value value, QStringView digits = {}) {
        const bool isPattern = !m_result.tokens.empty() && m_result.tokens.back().kind == TokenKind::Like;
        if (isPattern && !value.isText())
            value = value.toText();
        if (isPattern)
            m_result.shape += u"=*?"[static_cast<int>(patternKind(value.toText()))];
        m_result.shape += value.isText() ? u't' : u'n';
        m_result.tokens.push_back({TokenKind::Literal, digits, static_cast<int>(m_result.literals.size())});
        m_result.literals.push_back(std::move(value));
    }

    void word() {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && continuesName(m_text[m_at]))
            ++m_at;
        const QStringView text = m_text.sliced(start, m_at - start);
        if (const auto kind = keyword(text))
            add(*kind);
        else
            addName(text);
    }

    void bracketedName() {
        const qsizetype close = m_text.indexOf(u']', m_at);
        if (close <= m_at + 1)
            throw SyntaxError();
        addName(m_text.sliced(m_at + 1, close - m_at - 1));
        m_at = close + 1;
    }

    void quotedText(QChar quote) {
        QString text;
        for (++m_at; m_at < m_text.size(); ++m_at) {
            if (m_text[m_at] != quote) {
                text += m_text[m_at];
            } else if (peek(1) == quote && m_at + 1 < m_text.size()) {
                text += quote;
                ++m_at;
            } else {
                ++m_at;
                return addLiteral(std::move(text));
            }
        }
        throw SyntaxError();
    }

    void number() {
        const qsizetype start = m_at++;
        while (m_at < m_text.size() && (isDigit(m_text[m_at]) || m_text[m_at] == u'.'))
            ++m_at;
        if (startsName(peek()))
            throw SyntaxError();
        const QStringView text = m_text.sliced(start, m_at - start);
        bool good = false;
        if (const qint64 whole = text.toLongLong(&good); good)
            return addLiteral(whole, text);
        if (const double real = text.toDouble(&good); good)
            return addLiteral(real, text);
        throw SyntaxError();
    }

    void sign(QChar c) {
        const QChar after = peek(1);
        m_at += (c == u'<' && (after == u'=' || after == u'>')) || (c == u'>' && after == u'=') ? 2 : 1;
        switch (c.unicode()) {
        case u'=': return add(TokenKind::Equal);
        case u'<':
            if (after == u'>')
                return add(TokenKind::NotEqual);
            return after == u'=' ? add(TokenKind::LessOrEqual) : add(TokenKind::Less);
        case u'>': return after == u'=' ? add(TokenKind::GreaterOrEqual) : add(TokenKind::Greater);
        case u'(': return add(TokenKind::Open);
        case u')': return add(TokenKind::Close);
        case u',': return add(TokenKind::Comma);
        case u'.': return add(TokenKind::Dot);
        case u'*': return add(TokenKind::Star);
        default: throw SyntaxError();
        }
    }

    QStringView m_text;
    qsizetype m_at = 0;
    LexedText m_result;
};

} // namespace

LexedText lex(QStringView text) {
    return Lexer(text).run();
}

} // namespace criteria
