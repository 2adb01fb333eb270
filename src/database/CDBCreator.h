#pragma once

#include "DBEngine.h"
#include "LanguageFields.h"

#include <functional>

namespace lingomat {

/// Writes a new, empty vocabulary database.
class CDBCreator {
public:
    /// What the class has to say to the user, and the one failure that ends the program.
    struct Notifier {
        std::function<void(const QString& path)> fileExists;
        std::function<void(const QString& description)> reportError;
        std::function<void()> internalError;
        /// Keeps the description of an error that is not shown; may be left out.
        std::function<void(const QString& description)> storeError = {};
    };

    explicit CDBCreator(Notifier notifier);

    dao::Database Database;   ///< the file that was created
    bool FileExisted = false; ///< why the last CreateNewDatabase failed: the file was there already

    /// Creates the whole file for the two languages named in `languages`, and sets its eight field names.
    /// A database that is not open on failure; what was made by then stays on the disk. An existing file is
    /// never overwritten: `showMessage` tells whether the user hears of it. Any other error is reported.
    dao::Database CreateNewDatabase(const QString& path, bool showMessage, LanguageFields& languages);

    void CreateTableBereiche(dao::Database& database);
    void CreateTableBereiche_Zwischen(dao::Database& database);
    void CreateTableGrammatikalischeAttribute(dao::Database& database);
    void CreateTableGrammatikalischeAttribute_Zwischen(dao::Database& database);
    void CreateTableFunktionaleAttribute(dao::Database& database);
    void CreateTableFunktionaleAttribute_Zwischen(dao::Database& database);
    void CreateTableRelations(dao::Database& database);
    void CreateTableSynonym(dao::Database& database);
    /// One of "Bereich", "GrammatikalischeAttribute", "FunktionaleAttribute", "Relations" (does nothing).
    void MakeRelation(const QString& kind, dao::Database& database);

private:
    void createAll(LanguageFields& languages);

    Notifier m_notifier;
};

} // namespace lingomat
