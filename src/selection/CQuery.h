#pragma once

#include "Database.h"

#include <QString>

namespace lingomat {

/// Writes the two texts of a selection, and looks up the attributes of one entry.
///
/// RelQueryString is a whole statement with the restrictions that need a join; QueryString is the criterion
/// on the entry's own columns. Values go in as they stand: whoever opens or searches with the texts has to
/// expect that a quote in a value makes them malformed.
class CQuery {
public:
    /// `database` is read at every look-up, so it may be another file by then.
    explicit CQuery(const dao::Database& database);

    QString RelQueryString;
    QString QueryString;

    // The criterion. The returned texts are always empty.

    void InitQuery();
    /// `table.[field] LIKE 'value'`; nothing for an empty value. `rel`: joined by AND, else by OR.
    QString ExtendQueryString(const QString& table, const QString& field, const QString& value, bool rel);
    /// Both bounds inclusive, compared as numbers; nothing where one is empty.
    QString ExtendQueryStringByScore(const QString& min, const QString& max);
    /// Both bounds inclusive, compared as texts; nothing where one is empty.
    QString ExtendQueryStringByRegion(const QString& field, const QString& von, const QString& bis);
    /// The word before the next condition. None before the first one of the criterion or of a section.
    void AddRel(bool rel);
    void StartSection();
    void StopSection();

    // The statement. Values of one kind are alternatives, all kinds together have to be met.

    void RelInitQuery();
    QString RelExtendQueryString(const QString& value, bool rel); ///< no caller
    /// Adds a value: "Bereich", "Grammatikalisch", "Funktional", "Referenzen". Any other kind does nothing.
    void RelInsert(const QString& value, const QString& kind);
    void RelCreateQueryString();

    // The tables that a kind brings in, each with a comma before it; empty without a value of the kind.
    [[nodiscard]] QString insertBereichPart() const;
    [[nodiscard]] QString insertWortartPart() const;
    [[nodiscard]] QString insertGrammatikalischPart() const;
    [[nodiscard]] QString insertFunktionalPart() const;
    [[nodiscard]] QString insertReferenzenPart() const;

    // What an entry has, as the list shows it: "Sport; Reisen;". Errors of the database pass through.
    [[nodiscard]] QString GetAllBereiche(const QString& id) const;
    [[nodiscard]] QString GetAllGrammatikalisch(const QString& id) const;
    [[nodiscard]] QString GetAllFunktional(const QString& id) const;

private:
    const dao::Database& m_database;
    bool SectionStart = false;
    QString BereichPart;
    bool OhneBereich = false; ///< asks for entries without any area; nothing sets it
    QString WortartPart;      ///< nothing fills it: the part of speech is part of the criterion
    QString GrammatikalischPart;
    QString FunktionalPart;
    QString ReferenzenPart;
};

} // namespace lingomat
