#include "Parser.h"

#include "QtPrinters.h"
#include "TreeText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using criteria::parsedSelect;

TEST(SelectParser, ReadsColumnsTablesAndCondition) {
    const QString table[][2] = {
        {u"SELECT * FROM Vokabular"_s, u"* from Vokabular"_s},
        {u"select distinct Main from Synonyme"_s, u"distinct Main from Synonyme"_s},
        {u"SELECT a, b, c FROM t"_s, u"a, b, c from t"_s},
        {u"SELECT t.a, u.a FROM t, u"_s, u"t.a, u.a from t, u"_s},
        {u"SELECT t.*, u.a FROM t, u"_s, u"t.*, u.a from t, u"_s},
        {u"SELECT *, a FROM t"_s, u"*, a from t"_s},
        {u"SELECT [a b] FROM [t u] WHERE [a b] = 1"_s, u"a b from t u where a b = 1"_s},
        {u"SELECT DISTINCT Vokabular.* FROM Vokabular, Bereiche_Zwischen WHERE Vokabular.ID = "
         u"Bereiche_Zwischen.IDV AND (Bereiche_Zwischen.ID = 1 OR Bereiche_Zwischen.ID = 2)"_s,
         u"distinct Vokabular.* from Vokabular, Bereiche_Zwischen where and(Vokabular.ID = "
         u"Bereiche_Zwischen.IDV, or(Bereiche_Zwischen.ID = 1, Bereiche_Zwischen.ID = 2))"_s},
    };
    for (const auto& [text, expected] : table)
        EXPECT_EQ(parsedSelect(text), expected) << text.toStdString();
}

TEST(SelectParser, WhatIsNoSelectIsASyntaxError) {
    for (const QString& text : {
             QString(),
             u"SELECT"_s,
             u"SELECT *"_s,
             u"SELECT * FROM"_s,
             u"SELECT FROM t"_s,
             u"SELECT a b FROM t"_s,
             u"SELECT a, FROM t"_s,
             u"SELECT , a FROM t"_s,
             u"SELECT * FROM t u"_s,
             u"SELECT * FROM t,"_s,
             u"SELECT * FROM t WHERE"_s,
             u"SELECT * FROM t WHERE a"_s,
             u"SELECT * FROM t ORDER BY a"_s,
             u"SELECT * FROM t GROUP BY a"_s,
             u"SELECT * FROM t LIMIT 1"_s,
             u"SELECT count(*) FROM t"_s,
             u"SELECT 1 FROM t"_s,
             u"SELECT 'a' FROM t"_s,
             u"SELECT * FROM (SELECT * FROM t)"_s,
             u"SELECT * FROM t; DELETE FROM t"_s,
             u"SELECT * FROM t UNION SELECT * FROM u"_s,
             u"DELETE FROM t"_s,
             u"UPDATE t SET a = 1"_s,
             u"INSERT INTO t VALUES (1)"_s,
             u"DROP TABLE t"_s,
             u"PRAGMA x"_s,
             u"ATTACH x"_s,
             u"SELECT DISTINCT DISTINCT a FROM t"_s,
             u"DISTINCT a FROM t"_s,
             u"SELECT * FROM 'file.db'"_s,
             u"SELECT * FROM a.b"_s,
             u"SELECT t. FROM t"_s,
             u"SELECT t.a.b FROM t"_s,
             u"SELECT *.a FROM t"_s,
             u"SELECT ALL a FROM t"_s,
             u"SELECT a AS b FROM t"_s,
             u"t"_s,
         })
        EXPECT_EQ(parsedSelect(text), u"syntax error") << text.toStdString();
}
