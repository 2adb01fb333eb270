#include "SampleWriter.h"

#include "StoredDate.h"

using namespace Qt::StringLiterals;

namespace lingomat {

SampleWriter::SampleWriter(CDBHandler& database, const SampleData& data, QDate today)
    : m_database(database), m_data(data), m_today(storedDate(today)) {}

void SampleWriter::writeAll() {
    SchreibeDeutschEnglisch();
    writeEntries();
    writeSynonyms();
    writeReferences();
}

void SampleWriter::SchreibeDeutschEnglisch() {
    for (const SamplePhrase& phrase : m_data.phrases)
        schreibeVokabel1(phrase.first);
    if (m_data.phrases.isEmpty())
        return;
    m_database.RecordsetVokabular.MoveFirst();
    for (qsizetype i = 0; i < m_data.phrases.size(); ++i) {
        keepKey(phraseKey(i + 1));
        schreibeVokabel2(m_data.phrases[i].second);
    }
}

void SampleWriter::schreibeVokabel1(const QString& expression) {
    dao::Recordset& row = m_database.RecordsetVokabular;
    row.AddNew();
    row.setField(u"Eingabedatum"_s, m_today);
    row.setField(u"Aenderungsdatum"_s, m_today);
    setExpression({{}, expression, {}, {}}, {});
    for (const QString& field : {u"Wortart"_s, u"Beispielsatz"_s, u"Zusatzinfo"_s, u"Quelle"_s})
        row.setField(field, QString());
    row.Update();
}

void SampleWriter::schreibeVokabel2(const QString& expression) {
    dao::Recordset& row = m_database.RecordsetVokabular;
    row.Edit();
    row.setField(m_database.Lang2MainField, expression);
    row.Update();
    row.MoveNext();
}

void SampleWriter::writeEntries() {
    for (const SampleEntry& entry : m_data.entries)
        writeEntry(entry);
}

void SampleWriter::writeEntry(const SampleEntry& entry) {
    writeRow(entry);
    dao::Recordset& row = m_database.RecordsetVokabular;
    row.setBookmark(row.LastModified());
    keepKey(entry.key);
    m_database.SchreibeArrayToDB(entry.areas, m_database.RecordsetBereiche, m_database.RecordsetBereiche_Z,
                                 row);
    m_database.SchreibeArrayToDB(entry.grammatical, m_database.RecordsetGrammatikalisch,
                                 m_database.RecordsetGrammatikalisch_Z, row);
    m_database.SchreibeArrayToDB(entry.functional, m_database.RecordsetFunktional,
                                 m_database.RecordsetFunktional_Z, row);
}

void SampleWriter::writeRow(const SampleEntry& entry) {
    dao::Recordset& row = m_database.RecordsetVokabular;
    row.AddNew();
    row.setField(u"Quelle"_s, entry.source);
    row.setField(u"Eingabedatum"_s, entry.entered);
    row.setField(u"Aenderungsdatum"_s, entry.changed);
    row.setField(u"Beispielsatz"_s, entry.samplePhrase);
    setExpression(entry.first, entry.second);
    row.setField(u"Score"_s, entry.score);
    row.setField(u"Zusatzinfo"_s, entry.additionalInfo);
    row.setField(u"Wortart"_s, entry.wortart);
    row.Update();
}

void SampleWriter::setExpression(const ExpressionParts& first, const ExpressionParts& second) {
    dao::Recordset& row = m_database.RecordsetVokabular;
    row.setField(m_database.Lang1PrefixField, first.prefix);
    row.setField(m_database.Lang1MainField, first.main);
    row.setField(m_database.Lang1SuffixField, first.suffix);
    row.setField(m_database.Lang1KommentarField, first.comment);
    row.setField(m_database.Lang2PrefixField, second.prefix);
    row.setField(m_database.Lang2MainField, second.main);
    row.setField(m_database.Lang2SuffixField, second.suffix);
    row.setField(m_database.Lang2KommentarField, second.comment);
}

void SampleWriter::keepKey(const QString& key) {
    m_ids.insert(key, m_database.RecordsetVokabular.field(u"ID"_s).toInteger());
}

void SampleWriter::writeSynonyms() {
    const auto nobodyLists = [](const QString&) {};
    for (const SampleSynonym& synonym : m_data.synonyms) {
        const ExpressionParts& parts = synonym.parts;
        m_database.StoreSynonyme(CDBHandler::NewSynonym, QString::number(m_ids.value(synonym.key)),
                                 QString::number(synonym.language), parts.prefix, parts.main, parts.suffix,
                                 parts.comment, nobodyLists);
    }
}

void SampleWriter::writeReferences() {
    dao::Recordset& row = m_database.RecordsetReferenzen;
    for (const SampleReference& reference : m_data.references) {
        row.AddNew();
        row.setField(u"von"_s, m_ids.value(reference.from));
        row.setField(u"nach"_s, m_ids.value(reference.to));
        row.setField(u"Typ"_s, reference.type);
        row.Update();
    }
}

} // namespace lingomat
