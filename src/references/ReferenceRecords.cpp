#include "ReferenceRecords.h"

#include "ExpressionText.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QString criterionBetween(const QString& id1, const QString& id2, const QString& type) {
    const auto direction = [](const QString& from, const QString& to) {
        return u"(von LIKE "_s + literalPattern(from) + u" AND nach LIKE "_s + literalPattern(to) + u')';
    };
    return u"("_s + direction(id1, id2) + u" OR "_s + direction(id2, id1) + u") AND Typ LIKE "_s +
           literalPattern(type);
}

bool found(const dao::Recordset& references) {
    return !references.EOF_() && !references.NoMatch();
}

} // namespace

QString literalPattern(const QString& text) {
    QString pattern = u"'"_s;
    for (const QChar character : text) {
        if (character == u'*' || character == u'?' || character == u'#' || character == u'[') {
            pattern += u'[';
            pattern += character;
            pattern += u']';
        } else {
            pattern += character;
            if (character == u'\'')
                pattern += character;
        }
    }
    return pattern + u'\'';
}

QString referencesOf(const QString& id) {
    const QString pattern = literalPattern(id);
    return u"von LIKE "_s + pattern + u" OR nach LIKE "_s + pattern;
}

bool findReference(dao::Recordset& references, const QString& id1, const QString& id2, const QString& type) {
    references.FindFirst(criterionBetween(id1, id2, type));
    return found(references);
}

bool findThisReference(dao::Recordset& references, const QString& id1, const QString& id2,
                       const QString& type) {
    const QString criterion = criterionBetween(id1, id2, type);
    references.FindFirst(criterion);
    while (found(references)) {
        if (references.field(u"Typ"_s).toText() == type)
            return true;
        references.FindNext(criterion);
    }
    return findReference(references, id1, id2, type);
}

QString expressionOf(const dao::Recordset& entries, const LanguageFields& fields, int language) {
    const auto part = [&entries](const QString& field) { return entries.field(field).toText(QString()); };
    if (language == 1)
        return extract(generiereAusdruck(part(fields.Lang1PrefixField), part(fields.Lang1MainField),
                                         part(fields.Lang1SuffixField), part(fields.Lang1KommentarField)));
    return extract(generiereAusdruck(part(fields.Lang2PrefixField), part(fields.Lang2MainField),
                                     part(fields.Lang2SuffixField), part(fields.Lang2KommentarField)));
}

} // namespace lingomat
