#pragma once

#include "CDBHandler.h"
#include "SampleData.h"

#include <QDate>
#include <QHash>

namespace lingomat {

/// Fills a new database through its recordsets: phrases first, then entries, synonyms, references.
///
/// Raises dao::Error; the operations of CDBHandler report theirs in their own way besides. What is written
/// by then stays written.
class SampleWriter {
public:
    /// `database` has its recordsets open, `data` outlives the writer, `today` dates the phrases.
    SampleWriter(CDBHandler& database, const SampleData& data, QDate today);

    void writeAll();

    /// Runs the whole phrase table, first half and second half in turn. Named after the first of the
    /// samples; the phrases of another pair of languages go the same way.
    void SchreibeDeutschEnglisch();
    /// Adds one row with the first language filled.
    void schreibeVokabel1(const QString& expression);
    /// Fills the second language of the current row and moves on. The caller goes to the first row before.
    void schreibeVokabel2(const QString& expression);

    void writeEntries();
    /// Synonyms and references name entries that are written already.
    void writeSynonyms();
    void writeReferences();

private:
    void writeEntry(const SampleEntry& entry);
    void writeRow(const SampleEntry& entry);
    void setExpression(const ExpressionParts& first, const ExpressionParts& second);
    void keepKey(const QString& key);

    CDBHandler& m_database;
    const SampleData& m_data;
    QString m_today;              ///< "yyyymmdd"
    QHash<QString, qint64> m_ids; ///< `Vokabular.ID` by key
};

} // namespace lingomat
