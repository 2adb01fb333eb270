#pragma once

#include "FormContext.h"

#include <QHash>
#include <QString>

#include <functional>
#include <optional>

namespace dao {
class Recordset;
}

namespace lingomat {

class FlexGrid;

/// One run that carries rows of the list to the database, entry by entry. What is written stays written.
///
/// Each operation shows its own failure to the user and gives its plain result then, so that a run goes on
/// with the next row. The grid's current cell and selection are as before afterwards, but for those
/// operations that work on the current row. Rows must neither come nor go nor move while a run lives.
class ListSave {
public:
    ListSave(FormContext& context, FlexGrid& grid);

    static constexpr qint16 Stop = -1; ///< the result that ends a run; no key of an entry

    /// Deletes an entry with its links and references. Its key; 0 for one that has gone, and after a failure.
    qint16 DeleteOneRow(qint16 id);
    /// Writes the row with that key and stamps it. Its key; 0 after a failure.
    qint16 UpdateOneRow(qint16 id);
    /// Adds up to `count` of the rows that read "*", from the last one up, and gives each its key. `added` is
    /// told before each how many there were so far. A row that fails keeps its "*", and the next is tried.
    void AddNewRows(int count, const std::function<void(int)>& added);

    /// Copies the current row into the record of RecordsetVokabular in work, and writes its attributes.
    void schreibeGridToDB();
    /// Stamps the record in work and the current row with today's date: "Eingabedatum" or "Aenderungsdatum",
    /// with the column that shows it.
    void setzeZeit(const QString& field, int column);

    // Links of the current entry, kind by kind.
    bool EntferneAllGrammatischesForCurrent();
    bool EntferneAllFunktionalesForCurrent();
    bool EntferneAllBereicheForCurrent();
    void SchreibeGrammatikalischeAttributeFromGridToDB(const QString& packed);
    void SchreibeFunktionaleAttributeFromGridToDB(const QString& packed);
    bool SchreibeGrammatikalischesToDB(const QString& attribute);
    bool SchreibeFunktionalesToDB(const QString& attribute);

private:
    [[nodiscard]] dao::Recordset& entries() const;
    [[nodiscard]] bool findEntry(qint16 id);
    [[nodiscard]] int rowOf(qint16 id);
    [[nodiscard]] QString currentText(int column) const;
    [[nodiscard]] QString valueOf(int column) const;
    void addCurrentRow();
    bool removeLinks(dao::Recordset& links);
    bool addLink(const QString& attribute, dao::Recordset& list, dao::Recordset& links);

    FormContext& m_context;
    FlexGrid& m_grid;
    std::optional<QHash<QString, int>> m_rows; ///< first row of each key
};

} // namespace lingomat
