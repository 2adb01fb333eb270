#pragma once

#include "FlexGrid.h"
#include "Liste.h"
#include "TestContext.h"

#include <QHash>

#include <memory>

namespace lingomat {

/// A list whose rows stand in a small file, with an open session, and a second reader of that file.
struct ReferencesBench {
    using Fields = QHash<QString, dao::Value>;

    explicit ReferencesBench(const QString& language = QStringLiteral("En"));

    /// Adds an entry to the file and as a row to the list. Returns its ID.
    QString add(const QString& main1, const QString& main2 = {}, const Fields& fields = {});
    /// Appends a row to the list that is not in the file yet.
    void addNewRow();
    void addReference(const QString& von, const QString& nach, const QString& type);
    void addSynonym(const QString& vid, int language, const QString& main);
    void addRow(dao::Recordset& table, const Fields& fields);
    void deleteEntry(const QString& id);
    /// Makes the entry's row the current one of the list.
    void goTo(const QString& id, int column = Liste::ColSprache1);

    /// What another connection reads: "1>2 See also", in the order of the table.
    [[nodiscard]] QStringList storedReferences() const;
    /// "1/1 prefix|main|suffix|comment": entry, language and parts.
    [[nodiscard]] QStringList storedSynonyms() const;
    [[nodiscard]] CDBHandler& session() { return context.state.DBHandler; }

    TestContext context;
    Liste list;
    FlexGrid& grid; ///< of the list
    QString path;
};

} // namespace lingomat
