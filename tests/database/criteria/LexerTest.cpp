#include "Lexer.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <random>

using namespace Qt::StringLiterals;
using criteria::lex;
using criteria::LexedText;
using criteria::SyntaxError;
using criteria::TokenKind;
using dao::Value;

namespace {

QStringList kinds(const QString& text) {
    static const char* const names[] = {
        "Name", "Literal", "=",  "<>",  "<",    "<=", ">",    ">=",     "(",        ")",    ",",     ".",
        "*",    "AND",     "OR", "NOT", "LIKE", "IS", "NULL", "SELECT", "DISTINCT", "FROM", "WHERE", "End"};
    QStringList result;
    for (const criteria::Token& token : lex(text).tokens)
        result.append(QString::fromLatin1(names[static_cast<int>(token.kind)]));
    return result;
}

QStringList words(const QString& text) {
    return text.split(u' ');
}

/// The single literal of a text.
Value literal(const QString& text) {
    const LexedText lexed = lex(text);
    EXPECT_EQ(lexed.literals.size(), 1U) << text.toStdString();
    return lexed.literals.empty() ? Value() : lexed.literals.front();
}

bool isSyntaxError(const QString& text) {
    try {
        (void)lex(text);
        return false;
    } catch (const SyntaxError&) {
        return true;
    }
}

QString name(const QString& text) {
    const LexedText lexed = lex(text);
    EXPECT_EQ(lexed.tokens.front().kind, TokenKind::Name) << text.toStdString();
    EXPECT_EQ(lexed.tokens.size(), 2U) << text.toStdString();
    return lexed.tokens.front().name.toString();
}

std::u16string shape(const QString& text) {
    return lex(text).shape;
}

} // namespace

TEST(Lexer, KnowsAllSignsAndWords) {
    EXPECT_EQ(kinds(u"= <> < <= > >= ( ) , . *"_s), words(u"= <> < <= > >= ( ) , . * End"_s));
    EXPECT_EQ(kinds(u"AND or Not lIKE is NULL select DISTINCT From where"_s),
              words(u"AND OR NOT LIKE IS NULL SELECT DISTINCT FROM WHERE End"_s));
    EXPECT_EQ(kinds(QString()), words(u"End"_s));
    EXPECT_EQ(kinds(u" \t\r\n\u00A0"_s), words(u"End"_s));
}

TEST(Lexer, NeedsNoBlanks) {
    EXPECT_EQ(kinds(u"(ID=17)AND(Main<>'x')OR a<=b"_s),
              words(u"( Name = Literal ) AND ( Name <> Literal ) OR Name <= Name End"_s));
    EXPECT_EQ(kinds(u"a.b>=-1"_s), words(u"Name . Name >= Literal End"_s));
    EXPECT_EQ(kinds(u"<>=<"_s), words(u"<> = < End"_s));
    EXPECT_EQ(kinds(u"=<"_s), words(u"= < End"_s));
}

TEST(Lexer, NamesAreLettersDigitsAndUnderscoresOfAnyScript) {
    for (const QString& text :
         {u"ID"_s, u"_x"_s, u"Lang1_Main"_s, u"Übung"_s, u"Français_Main"_s, u"Русский"_s, u"日本語"_s,
          u"e\u0301te"_s, u"ANDROID"_s, u"isnt"_s, u"Nullen"_s})
        EXPECT_EQ(name(text), text);
}

TEST(Lexer, ABracketedNameMayHoldAnything) {
    EXPECT_EQ(name(u"[ID]"_s), u"ID");
    EXPECT_EQ(name(u"[two words]"_s), u"two words");
    EXPECT_EQ(name(u"[From]"_s), u"From");
    EXPECT_EQ(name(u"[it's \"odd\" = (1);--]"_s), u"it's \"odd\" = (1);--");
    EXPECT_EQ(name(u"[[]"_s), u"[");
    EXPECT_EQ(name(u"[😀]"_s), u"😀");
    EXPECT_EQ(kinds(u"[a].[b]"_s), words(u"Name . Name End"_s));
}

TEST(Lexer, QuotesOfATextAreDoubledWithin) {
    EXPECT_EQ(literal(u"'Haus'"_s), Value(u"Haus"_s));
    EXPECT_EQ(literal(u"\"Haus\""_s), Value(u"Haus"_s));
    EXPECT_EQ(literal(u"''"_s), Value(u""_s));
    EXPECT_EQ(literal(u"''''"_s), Value(u"'"_s));
    EXPECT_EQ(literal(u"'l''eau'"_s), Value(u"l'eau"_s));
    EXPECT_EQ(literal(u"'\"'"_s), Value(u"\""_s));
    EXPECT_EQ(literal(u"\"'\""_s), Value(u"'"_s));
    EXPECT_EQ(literal(u"\"say \"\"yes\"\"\""_s), Value(u"say \"yes\""_s));
    EXPECT_EQ(literal(u"'a\0b\nc😀--; DROP TABLE x'"_s), Value(u"a\0b\nc😀--; DROP TABLE x"_s));
}

TEST(Lexer, ATextThatIsNotClosedIsNoSentence) {
    for (const QString& text : {u"'"_s, u"\""_s, u"'a"_s, u"'a''"_s, u"Main = 'l'eau'"_s, u"'a\""_s,
                                u"''' "_s, u"["_s, u"[]"_s, u"[a"_s, u"]"_s, u"[]a]"_s})
        EXPECT_TRUE(isSyntaxError(text)) << text.toStdString();
}

TEST(Lexer, Numbers) {
    EXPECT_EQ(literal(u"0"_s), Value(0));
    EXPECT_EQ(literal(u"-17"_s), Value(-17));
    EXPECT_EQ(literal(u"007"_s), Value(7));
    EXPECT_EQ(literal(u"9223372036854775807"_s), Value(std::numeric_limits<qint64>::max()));
    EXPECT_EQ(literal(u"9223372036854775808"_s), Value(9223372036854775808.0));
    EXPECT_EQ(literal(u"1.5"_s), Value(1.5));
    EXPECT_EQ(literal(u".5"_s), Value(0.5));
    EXPECT_EQ(literal(u"-0.25"_s), Value(-0.25));
    for (const QString& text :
         {u"1.2.3"_s, u"1e5"_s, u"17x"_s, u"1_0"_s, u"-"_s, u"- 1"_s, u"+1"_s, u"1..2"_s})
        EXPECT_TRUE(isSyntaxError(text)) << text.toStdString();
}

TEST(Lexer, APatternIsATextAlsoWhereItIsWrittenAsANumber) {
    EXPECT_EQ(literal(u"ID LIKE 17"_s), Value(u"17"_s));
    EXPECT_EQ(literal(u"ID LIKE '17'"_s), Value(u"17"_s));
    EXPECT_EQ(literal(u"ID = 17"_s), Value(17));
}

TEST(Lexer, SignsThatTheLanguageDoesNotHaveAreRefused) {
    for (const QString& sign : {u";"_s,
                                u"--"_s,
                                u"/*"_s,
                                u"!"_s,
                                u"!="_s,
                                u"=="_s,
                                u"?"_s,
                                u"?1"_s,
                                u"@x"_s,
                                u":x"_s,
                                u"$1"_s,
                                u"#1/1/2001#"_s,
                                u"a|b"_s,
                                u"a||b"_s,
                                u"a+b"_s,
                                u"a&b"_s,
                                u"%"_s,
                                u"^"_s,
                                u"~"_s,
                                u"`a`"_s,
                                u"{"_s,
                                u"\\"_s,
                                QString(QChar(0)),
                                u"a\0b"_s,
                                u"😀"_s,
                                QString(QChar(0xD800)),
                                QString(QChar(0xFFFF)),
                                u"\u0301"_s,
                                u"\uFEFF"_s}) {
        const bool refused = isSyntaxError(u"ID = 1 "_s + sign);
        EXPECT_TRUE(refused || sign == u"=="_s) << sign.toStdString();
    }
}

TEST(Lexer, TheShapeForgetsTheLiterals) {
    EXPECT_EQ(shape(u"ID = 1"_s), shape(u"ID  =  22"_s));
    EXPECT_EQ(shape(u"a = 'x' AND b LIKE 'y'"_s), shape(u"[a]='z' and [b] like ''"_s));
    EXPECT_EQ(shape(u"a LIKE 'x*'"_s), shape(u"a LIKE '?'"_s));
}

TEST(Lexer, TheShapeTellsApartWhatCompilesDifferently) {
    const QString texts[] = {
        u"a = 1"_s,           u"a = '1'"_s,    u"a LIKE '1'"_s,
        u"a LIKE '1*'"_s,     u"a LIKE '*'"_s, u"NOT a LIKE '1'"_s,
        u"a NOT LIKE '1'"_s,  u"[a = 1]"_s,    u"b = 1"_s,
        u"a.b = 1"_s,         u"a <> 1"_s,     u"a < 1"_s,
        u"a = 1 AND b = 1"_s, u"(a = 1)"_s,    u"a = t"_s,
        u"a = 1 OR b = 1"_s,  u"a = n"_s,      u"[a]t"_s,
        u"a IS NULL"_s,       u"a 1"_s,        u"ab"_s,
        u"[a n]"_s,           u"a '1'"_s,
    };
    for (std::size_t i = 0; i < std::size(texts); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_NE(shape(texts[i]), shape(texts[j]))
                << texts[i].toStdString() << " | " << texts[j].toStdString();
}

TEST(Lexer, AnyTextIsEitherReadOrRefused) {
    const QString alphabet = u"aI_1.'\"[]()<>=,*? \t-#!%;\\é猫\u0301LIKEANDOR\xD83D\xDE00"_s + QChar(0);
    std::mt19937 random(20020301);
    int read = 0;
    for (int round = 0; round < 20000; ++round) {
        QString text;
        const auto length = random() % 24;
        for (std::size_t i = 0; i < length; ++i)
            text += alphabet[static_cast<qsizetype>(random() % static_cast<unsigned>(alphabet.size()))];
        try {
            const LexedText lexed = lex(text);
            EXPECT_EQ(lexed.tokens.back().kind, TokenKind::End);
            ++read;
        } catch (const SyntaxError&) {
            continue;
        }
    }
    EXPECT_GT(read, 500);
}
