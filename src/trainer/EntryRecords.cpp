#include "EntryRecords.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QString textOf(const dao::Recordset& record, const QString& field) {
    return record.field(field).toText(QString());
}

} // namespace

bool isFound(const dao::Recordset& recordset) {
    return !recordset.EOF_() && !recordset.NoMatch();
}

bool findEntry(dao::Recordset& entries, const QString& key) {
    if (key == NewEntry)
        return false;
    entries.FindFirst(u"ID LIKE '%1'"_s.arg(key));
    return !entries.NoMatch();
}

QString synonymCriterion(const QString& key, int language) {
    if (key == NewEntry)
        return u"Sprache=99"_s; // no row has this language
    return u"VID=%1 AND Sprache=%2"_s.arg(key).arg(language);
}

ExpressionParts entryParts(const dao::Recordset& entries, const LanguageFields& names, int language) {
    if (language == 1)
        return {textOf(entries, names.Lang1PrefixField), textOf(entries, names.Lang1MainField),
                textOf(entries, names.Lang1SuffixField), textOf(entries, names.Lang1KommentarField)};
    return {textOf(entries, names.Lang2PrefixField), textOf(entries, names.Lang2MainField),
            textOf(entries, names.Lang2SuffixField), textOf(entries, names.Lang2KommentarField)};
}

ExpressionParts synonymParts(const dao::Recordset& synonyms) {
    return {textOf(synonyms, u"Prefix"_s), textOf(synonyms, u"Main"_s), textOf(synonyms, u"Suffix"_s),
            textOf(synonyms, u"Kommentar"_s)};
}

QString otherEnd(const dao::Recordset& references, const QString& key) {
    const QString from = textOf(references, u"von"_s);
    return from == key ? textOf(references, u"nach"_s) : from;
}

} // namespace lingomat
