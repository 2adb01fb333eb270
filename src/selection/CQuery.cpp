#include "CQuery.h"

#include "ExpressionText.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// The shape that the three look-ups share.
struct Lookup {
    QString statement;
    QString criterion;
    QString field;
    int size; ///< longer values are cut
};

QString packedValues(const dao::Database& database, const Lookup& lookup) {
    dao::Recordset rows = database.OpenRecordset(lookup.statement);
    QString packed;
    rows.FindFirst(lookup.criterion);
    while (!rows.EOF_() && !rows.NoMatch()) {
        const QString value = rows.field(lookup.field).toText(QString());
        if (!packed.isEmpty() && !value.isEmpty())
            packed += u"; "_s;
        packed += TruncateText(extract(value), lookup.size);
        rows.FindNext(lookup.criterion);
    }
    if (!packed.isEmpty())
        packed += u';';
    rows.Close();
    return packed;
}

QString attributeStatement(const QString& table, const QString& id) {
    const QString links = table + u"_Zwischen"_s;
    return u"SELECT Attribut_Text FROM "_s + links + u", "_s + table + u" WHERE "_s + links + u".IDV="_s +
           id + u" AND "_s + links + u".ID="_s + table + u".IDA"_s;
}

/// The join of an attribute's table through its links to the entry.
QString attributeJoin(const QString& table) {
    const QString links = table + u"_Zwischen"_s;
    return u" AND "_s + table + u".IDA="_s + links + u".ID AND "_s + links + u".IDV=Vokabular.ID"_s;
}

QString tableList(const QString& part, const QString& tables) {
    return part.isEmpty() ? QString() : tables;
}

} // namespace

CQuery::CQuery(const dao::Database& database) : m_database(database) {}

void CQuery::InitQuery() {
    QueryString.clear();
    SectionStart = true;
}

QString CQuery::ExtendQueryString(const QString& table, const QString& field, const QString& value,
                                  bool rel) {
    if (value.isEmpty())
        return {};
    AddRel(rel);
    QueryString += table + u".["_s + field + u"] LIKE '"_s + value + u'\'';
    SectionStart = false;
    return {};
}

QString CQuery::ExtendQueryStringByScore(const QString& min, const QString& max) {
    if (min.isEmpty() || max.isEmpty())
        return {};
    AddRel(true);
    QueryString += u"(Score >="_s + min + u" AND Score <="_s + max + u')';
    SectionStart = false;
    return {};
}

QString CQuery::ExtendQueryStringByRegion(const QString& field, const QString& von, const QString& bis) {
    if (von.isEmpty() || bis.isEmpty())
        return {};
    AddRel(true);
    QueryString += u'(' + field + u" >='"_s + von + u"' AND "_s + field + u" <='"_s + bis + u"')"_s;
    SectionStart = false;
    return {};
}

void CQuery::AddRel(bool rel) {
    if (!SectionStart)
        QueryString += rel ? u" AND "_s : u" OR "_s;
}

void CQuery::StartSection() {
    QueryString += SectionStart ? u"("_s : u" AND ("_s;
    SectionStart = true;
}

void CQuery::StopSection() {
    QueryString += u')';
}

void CQuery::RelInitQuery() {
    for (QString* part : {&BereichPart, &WortartPart, &GrammatikalischPart, &FunktionalPart, &ReferenzenPart})
        part->clear();
    RelQueryString.clear();
    OhneBereich = false;
    SectionStart = true;
}

QString CQuery::RelExtendQueryString(const QString& value, bool rel) {
    if (value.isEmpty())
        return {};
    AddRel(rel);
    RelQueryString += u"(Bereiche_Zwischen.IDV = Vokabular.ID AND Bereich_Text='"_s + value +
                      u"' AND Bereiche.ID=Bereiche_Zwischen.ID)"_s;
    SectionStart = false;
    return {};
}

void CQuery::RelInsert(const QString& value, const QString& kind) {
    struct Chain {
        const char16_t* kind;
        QString CQuery::*part;
        const char16_t* condition;
    };
    static constexpr Chain chains[] = {
        {u"Bereich", &CQuery::BereichPart, u"Bereich_Text='"},
        {u"Grammatikalisch", &CQuery::GrammatikalischPart, u"GrammatikalischeAttribute.[Attribut_Text]='"},
        {u"Funktional", &CQuery::FunktionalPart, u"FunktionaleAttribute.[Attribut_Text]='"},
        {u"Referenzen", &CQuery::ReferenzenPart, u"Referenzen.Typ='"},
    };
    for (const Chain& chain : chains) {
        if (QStringView(chain.kind) != kind)
            continue;
        QString& part = this->*chain.part;
        if (!part.isEmpty())
            part += u" OR "_s;
        part += QString::fromUtf16(chain.condition) + value + u'\'';
        return;
    }
}

QString CQuery::insertBereichPart() const {
    if (!BereichPart.isEmpty())
        return u", Bereiche, Bereiche_Zwischen"_s;
    return OhneBereich ? u", Bereiche_Zwischen"_s : QString();
}

QString CQuery::insertWortartPart() const {
    return tableList(WortartPart, u", Wortart, [Wortart_Zwischen]"_s);
}

QString CQuery::insertGrammatikalischPart() const {
    return tableList(GrammatikalischPart,
                     u", GrammatikalischeAttribute, [GrammatikalischeAttribute_Zwischen]"_s);
}

QString CQuery::insertFunktionalPart() const {
    return tableList(FunktionalPart, u", FunktionaleAttribute, [FunktionaleAttribute_Zwischen]"_s);
}

QString CQuery::insertReferenzenPart() const {
    return tableList(ReferenzenPart, u", Referenzen"_s);
}

void CQuery::RelCreateQueryString() {
    RelQueryString = u"SELECT DISTINCT * FROM Vokabular"_s + insertBereichPart() +
                     insertGrammatikalischPart() + insertFunktionalPart() + insertReferenzenPart();
    const bool restricted = !BereichPart.isEmpty() || !GrammatikalischPart.isEmpty() ||
                            !FunktionalPart.isEmpty() || !ReferenzenPart.isEmpty();
    if (!restricted && !OhneBereich)
        return;

    RelQueryString += u" WHERE "_s;
    bool groupWritten = false;
    const auto addGroup = [&](const QString& part, const QString& join) {
        if (part.isEmpty())
            return;
        if (groupWritten)
            RelQueryString += u" AND "_s;
        groupWritten = true;
        RelQueryString += u'(' + part + u')' + join;
    };
    addGroup(BereichPart, u" AND Bereiche.ID=Bereiche_Zwischen.ID AND Bereiche_Zwischen.IDV=Vokabular.ID"_s);
    if (OhneBereich) {
        if (!BereichPart.isEmpty())
            RelQueryString += u" OR "_s;
        RelQueryString += u"(Vokabular.ID <> Bereiche_Zwischen.IDV)"_s;
    }
    addGroup(GrammatikalischPart, attributeJoin(u"GrammatikalischeAttribute"_s));
    addGroup(FunktionalPart, attributeJoin(u"FunktionaleAttribute"_s));
    addGroup(ReferenzenPart, u" AND Referenzen.von=Vokabular.ID"_s);
}

QString CQuery::GetAllBereiche(const QString& id) const {
    return packedValues(
        m_database,
        {u"SELECT Bereich_Text, Bereiche_Zwischen.IDV FROM Bereiche_Zwischen, Bereiche WHERE Bereiche_Zwischen.IDV="_s +
             id + u" AND Bereiche_Zwischen.ID=Bereiche.ID"_s,
         u"Bereiche_Zwischen.IDV="_s + id, u"Bereich_Text"_s, BereichSize});
}

QString CQuery::GetAllGrammatikalisch(const QString& id) const {
    return packedValues(m_database, {attributeStatement(u"GrammatikalischeAttribute"_s, id),
                                     u"Attribut_Text LIKE '*'"_s, u"Attribut_Text"_s, AttributSize});
}

QString CQuery::GetAllFunktional(const QString& id) const {
    return packedValues(m_database, {attributeStatement(u"FunktionaleAttribute"_s, id),
                                     u"Attribut_Text LIKE '*'"_s, u"Attribut_Text"_s, AttributSize});
}

} // namespace lingomat
