#pragma once

#include <QString>
#include <QStringList>

namespace lingomat {

class CQuery;
class EqualCharacters;
struct LanguageFields;

/// Whether a pair of lists restricts nothing: everything chosen is the same as nothing chosen, and one value
/// in all can never restrict.
[[nodiscard]] bool allSelected(qsizetype offered, qsizetype chosen);

/// A pair of lists: what was chosen, and how many values are left to choose from.
struct ChosenValues {
    qsizetype offered = 0;
    QStringList chosen{};
    [[nodiscard]] bool restricts() const { return !allSelected(offered, chosen.size()); }
};

/// Patterns for the four parts of an expression; an empty one restricts nothing.
struct LanguageFilter {
    bool active = true;
    QString prefix{};
    QString main{};
    QString suffix{};
    QString comment{};
};

/// A range of dates, yyyymmdd. It restricts unless it is the range of the whole database.
struct DateRange {
    QString von{};
    QString bis{};
    QString lowest{};
    QString highest{};
    [[nodiscard]] bool restricts() const { return von != lowest || bis != highest; }
};

/// What the user filled in, all of it text.
struct SelectionFilters {
    ChosenValues bereich{};
    ChosenValues grammatikalisch{};
    ChosenValues funktional{};
    ChosenValues referenzen{};
    LanguageFilter lang1{};
    LanguageFilter lang2{};
    ChosenValues wortart{};
    QString beispielsatz{};
    QString zusatzinfo{};
    ChosenValues quelle{};
    DateRange eingabedatum{};
    DateRange aenderungsdatum{};
    QString minScore = QStringLiteral("1");
    QString maxScore = QStringLiteral("6");
};

/// First stage: the statement, from areas, attributes and types of references. Their values are compared
/// as they are.
void buildStatement(CQuery& query, const SelectionFilters& filters);

/// Second stage: the criterion, from everything that the entry's own columns hold. Patterns pass through
/// the pairs of equal characters; no wildcard is added to them.
void buildCriterion(CQuery& query, const SelectionFilters& filters, const LanguageFields& fields,
                    const EqualCharacters& exceptions);

/// What to search with: the criterion, or one that every entry meets where there is none.
[[nodiscard]] QString searchCriterion(const CQuery& query);

} // namespace lingomat
