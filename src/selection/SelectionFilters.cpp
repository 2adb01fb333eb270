#include "SelectionFilters.h"

#include "CQuery.h"
#include "EqualCharacters.h"
#include "ExpressionText.h"
#include "LanguageFields.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Adds conditions to the criterion, every pattern mapped by the pairs of equal characters.
class CriterionWriter {
public:
    CriterionWriter(CQuery& query, const EqualCharacters& exceptions)
        : m_query(query), m_exceptions(exceptions) {}

    void addPattern(const QString& field, const QString& pattern, bool rel = true) {
        m_query.ExtendQueryString(u"Vokabular"_s, field, m_exceptions.WorkInException(pattern), rel);
    }

    void addAlternatives(const QString& field, const ChosenValues& values) {
        if (!values.restricts())
            return;
        m_query.StartSection();
        for (const QString& value : values.chosen)
            addPattern(field, value, false);
        m_query.StopSection();
    }

    void addDates(const QString& field, const DateRange& range) {
        if (range.restricts())
            m_query.ExtendQueryStringByRegion(field, range.von, range.bis);
    }

private:
    CQuery& m_query;
    const EqualCharacters& m_exceptions;
};

} // namespace

bool allSelected(qsizetype offered, qsizetype chosen) {
    return offered == 0 || chosen == 0 || offered + chosen <= 1;
}

void buildStatement(CQuery& query, const SelectionFilters& filters) {
    const auto insert = [&query](const ChosenValues& values, const QString& kind) {
        if (!values.restricts())
            return;
        for (const QString& value : values.chosen)
            query.RelInsert(value, kind);
    };
    query.RelInitQuery();
    insert(filters.bereich, u"Bereich"_s);
    insert(filters.grammatikalisch, u"Grammatikalisch"_s);
    insert(filters.funktional, u"Funktional"_s);
    insert(filters.referenzen, u"Referenzen"_s);
    query.RelCreateQueryString();
}

void buildCriterion(CQuery& query, const SelectionFilters& filters, const LanguageFields& fields,
                    const EqualCharacters& exceptions) {
    query.InitQuery();
    CriterionWriter writer(query, exceptions);
    if (filters.lang1.active) {
        writer.addPattern(fields.Lang1PrefixField, filters.lang1.prefix);
        writer.addPattern(fields.Lang1MainField, filters.lang1.main);
        writer.addPattern(fields.Lang1SuffixField, filters.lang1.suffix);
        writer.addPattern(fields.Lang1KommentarField, filters.lang1.comment);
    }
    if (filters.lang2.active) {
        writer.addPattern(fields.Lang2PrefixField, filters.lang2.prefix);
        writer.addPattern(fields.Lang2MainField, filters.lang2.main);
        writer.addPattern(fields.Lang2SuffixField, filters.lang2.suffix);
        writer.addPattern(fields.Lang2KommentarField, filters.lang2.comment);
    }
    writer.addAlternatives(u"Wortart"_s, filters.wortart);
    writer.addPattern(u"Beispielsatz"_s, filters.beispielsatz);
    writer.addPattern(u"Zusatzinfo"_s, filters.zusatzinfo);
    writer.addAlternatives(u"Quelle"_s, filters.quelle);
    writer.addDates(u"Eingabedatum"_s, filters.eingabedatum);
    writer.addDates(u"Aenderungsdatum"_s, filters.aenderungsdatum);
    if (filters.minScore != "1"_L1 || filters.maxScore != "6"_L1)
        query.ExtendQueryStringByScore(extract(filters.minScore), extract(filters.maxScore));
}

QString searchCriterion(const CQuery& query) {
    return query.QueryString.isEmpty() ? u"Vokabular.ID LIKE '*'"_s : query.QueryString;
}

} // namespace lingomat
