#pragma once

#include "DBEngine.h"
#include "LanguageFields.h"

#include <array>
#include <functional>
#include <optional>
#include <utility>

namespace lingomat {

using LanguageNames = std::pair<QString, QString>;

/// The names that property `Languages` holds ("Lang1=...@Lang2=..."), trimmed. An empty text is the oldest
/// form of file: Spanisch and Deutsch. Nothing for a text that no language database has.
[[nodiscard]] std::optional<LanguageNames> languageNames(const QString& property);

/// Names and field names: each prefix is followed by "_Prefix", "_Main", "_Suffix" and "_Kommentar".
[[nodiscard]] LanguageFields languageFields(const LanguageNames& names, const QString& prefix1,
                                            const QString& prefix2);

/// The open database: its file, its eleven recordsets, its languages. One object serves every file in turn.
///
/// The operations catch what goes wrong, hand the description to the error reporter and say so in their
/// result; nothing is undone.
class CDBHandler : public LanguageFields {
public:
    /// Stores the description of an error and shows it to the user.
    using ErrorReporter = std::function<void(const QString& description)>;

    /// Message of a synonym whose row is gone, in the language of the interface.
    using MessageText = std::function<QString()>;

    explicit CDBHandler(ErrorReporter reportError, MessageText synonymNotFound = {});

    dao::Database Database;            ///< set by whoever opens or creates the file
    dao::Recordset RecordsetAuswahl;   ///< the selection; the list, the Trainer and the entry count read it
    dao::Recordset RecordsetVokabular; ///< all entries, for writing and for finding by `ID`
    dao::Recordset RecordsetSuche;     ///< all entries, for searching while the other two stay where they are
    dao::Recordset RecordsetReferenzen;
    dao::Recordset RecordsetGrammatikalisch;
    dao::Recordset RecordsetGrammatikalisch_Z;
    dao::Recordset RecordsetFunktional;
    dao::Recordset RecordsetFunktional_Z;
    dao::Recordset RecordsetBereiche;
    dao::Recordset RecordsetBereiche_Z;
    dao::Recordset RecordsetSynonyme;

    /// Opens the eleven recordsets, in the order above, all on whole tables. An error is reported; those
    /// opened before it stay open. False then, so that a caller can close the file.
    bool OpenAllRecordsets();
    /// Closes recordsets and file. Each step is tried; each error is reported.
    void CloseAllDBObjects();
    /// Reads the languages and composes the field names. False: not a language database (errors reported).
    bool GetLanguages();
    /// The file's version; 0 where it names none, -99 after an error (reported).
    int GetDBVersion();

    // Record maintenance. Several values of one entry travel packed: each item followed by ";".

    /// Replaces the links of the current row of `vokabular` by the items of `packed`. Always true.
    bool SchreibeArrayToDB(const QString& packed, dao::Recordset& list, dao::Recordset& links,
                           dao::Recordset& vokabular);
    bool EntferneAllArraysForCurrent(dao::Recordset& links, dao::Recordset& vokabular);
    /// Links one item, adding it to its list table where it is new.
    bool SchreibeArrayItemToDB(const QString& item, dao::Recordset& list, dao::Recordset& links,
                               dao::Recordset& vokabular);
    /// Whether a reference of that type stands between the two entries, in either direction.
    bool CheckRelationExist(const QString& a, const QString& b, const QString& type);
    void DeleteRelationalEntriesForID(qint16 id); ///< links and references of an entry; its synonyms stay
    void DeleteEntryForID(qint16 id, dao::Recordset& links);
    /// Removes list rows that no entry uses, and synonyms of entries that are gone. False after an error.
    bool BereinigeDB();
    void BereinigeRelationales(dao::Recordset& links, dao::Recordset& list);
    void BereinigeSynonyme();
    bool SearchAttribut_Z(const QString& key, dao::Recordset& links);

    static constexpr qint16 NewSynonym = -1;
    /// Writes a synonym: `key` of an existing one, or NewSynonym. `addKey` is told the key of a new one.
    bool StoreSynonyme(qint16 key, const QString& vid, const QString& sprache, const QString& prefix,
                       const QString& main, const QString& suffix, const QString& comment,
                       const std::function<void(const QString& newKey)>& addKey);
    bool DeleteSynonym(qint16 key);

private:
    struct TableRecordset {
        QString table;
        dao::Recordset* recordset;
    };
    [[nodiscard]] std::array<TableRecordset, 11> recordsets();
    /// Runs a step; false after an error, which has been reported.
    bool reported(const std::function<void()>& step);
    /// Makes the synonym the current one of its recordset; false, and a message, where there is none.
    bool findSynonym(qint16 key);

    ErrorReporter m_reportError;
    MessageText m_synonymNotFound;
};

} // namespace lingomat
