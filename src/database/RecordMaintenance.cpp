// The operations of CDBHandler that keep links, references and synonyms consistent: the engine records
// the relations of the tables but enforces none.

#include "CDBHandler.h"

#include "EngineError.h"
#include "ExpressionText.h"
#include "PackedList.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int KeyField = 0;  ///< of a list table, of `Vokabular`; of a link table: the entry
constexpr int TextField = 1; ///< of a list table
constexpr int ItemField = 1; ///< of a link table: the list row

/// The criterion goes to the engine as it stands: wildcards in the value act, an apostrophe is an error.
QString like(const QString& field, const QString& value) {
    return field + u" LIKE '"_s + value + u"'"_s;
}

bool found(const dao::Recordset& recordset) {
    return !recordset.EOF_() && !recordset.NoMatch();
}

/// Calls the step for each row that meets the criterion; the step may delete the row.
template <typename Step>
void forEach(dao::Recordset& recordset, const QString& criterion, const Step& step) {
    recordset.FindFirst(criterion);
    while (found(recordset)) {
        step();
        recordset.FindNext(criterion);
    }
}

void deleteEach(dao::Recordset& recordset, const QString& criterion) {
    forEach(recordset, criterion, [&] { recordset.Delete(); });
}

void editAndDelete(dao::Recordset& recordset) {
    recordset.Edit();
    recordset.Delete();
}

} // namespace

bool CDBHandler::SchreibeArrayToDB(const QString& packed, dao::Recordset& list, dao::Recordset& links,
                                   dao::Recordset& vokabular) {
    reported([&] {
        EntferneAllArraysForCurrent(links, vokabular);
        for (const QString& item : splitPacked(packed))
            SchreibeArrayItemToDB(item, list, links, vokabular);
    });
    return true;
}

bool CDBHandler::EntferneAllArraysForCurrent(dao::Recordset& links, dao::Recordset& vokabular) {
    deleteEach(links, like(links.fieldName(KeyField), vokabular.field(KeyField).toText()));
    return true;
}

bool CDBHandler::SchreibeArrayItemToDB(const QString& item, dao::Recordset& list, dao::Recordset& links,
                                       dao::Recordset& vokabular) {
    list.FindFirst(like(list.fieldName(TextField), item));
    if (!found(list)) {
        list.AddNew();
        list.setField(TextField, item);
        list.Update();
        list.setBookmark(list.LastModified());
    }
    links.FindFirst(like(links.fieldName(KeyField), u"*"_s));
    links.AddNew();
    links.setField(KeyField, vokabular.field(KeyField));
    links.setField(ItemField, list.field(KeyField));
    links.Update();
    links.setBookmark(links.LastModified());
    return true;
}

bool CDBHandler::CheckRelationExist(const QString& a, const QString& b, const QString& type) {
    bool exists = false;
    reported([&] {
        const auto between = [](const QString& from, const QString& to) {
            return u"(von LIKE '"_s + from + u"' AND nach LIKE '"_s + to + u"')"_s;
        };
        RecordsetReferenzen.FindFirst(u"("_s + between(a, b) + u" OR "_s + between(b, a) +
                                      u") AND (Typ = '"_s + type + u"')"_s);
        exists = found(RecordsetReferenzen);
    });
    return exists;
}

void CDBHandler::DeleteRelationalEntriesForID(qint16 id) {
    reported([&] {
        DeleteEntryForID(id, RecordsetBereiche_Z);
        DeleteEntryForID(id, RecordsetGrammatikalisch_Z);
        DeleteEntryForID(id, RecordsetFunktional_Z);
        for (const QString& end : {u"von"_s, u"nach"_s})
            forEach(RecordsetReferenzen, like(end, QString::number(id)),
                    [&] { editAndDelete(RecordsetReferenzen); });
    });
}

void CDBHandler::DeleteEntryForID(qint16 id, dao::Recordset& links) {
    deleteEach(links, like(u"IDV"_s, QString::number(id)));
}

bool CDBHandler::BereinigeDB() {
    return reported([this] {
        BereinigeRelationales(RecordsetBereiche_Z, RecordsetBereiche);
        BereinigeRelationales(RecordsetGrammatikalisch_Z, RecordsetGrammatikalisch);
        BereinigeRelationales(RecordsetFunktional_Z, RecordsetFunktional);
        BereinigeSynonyme();
    });
}

void CDBHandler::BereinigeRelationales(dao::Recordset& links, dao::Recordset& list) {
    forEach(list, like(list.fieldName(KeyField), u"*"_s), [&] {
        if (!SearchAttribut_Z(list.field(KeyField).toText(), links))
            editAndDelete(list);
    });
}

bool CDBHandler::SearchAttribut_Z(const QString& key, dao::Recordset& links) {
    links.FindFirst(like(links.fieldName(ItemField), key));
    return found(links);
}

void CDBHandler::BereinigeSynonyme() {
    forEach(RecordsetSynonyme, u"VID LIKE '*'"_s, [this] {
        RecordsetVokabular.FindFirst(like(u"ID"_s, RecordsetSynonyme.field(u"VID"_s).toText()));
        if (!found(RecordsetVokabular))
            editAndDelete(RecordsetSynonyme);
    });
}

bool CDBHandler::findSynonym(qint16 key) {
    RecordsetSynonyme.FindFirst(u"ID="_s + QString::number(key));
    if (found(RecordsetSynonyme))
        return true;
    m_reportError(m_synonymNotFound ? m_synonymNotFound() : u"Synonym not found in database!"_s);
    return false;
}

bool CDBHandler::StoreSynonyme(qint16 key, const QString& vid, const QString& sprache, const QString& prefix,
                               const QString& main, const QString& suffix, const QString& comment,
                               const std::function<void(const QString& newKey)>& addKey) {
    bool stored = false;
    reported([&] {
        dao::Recordset& synonyms = RecordsetSynonyme;
        const bool isNew = key == NewSynonym;
        if (!isNew && !findSynonym(key))
            return;
        if (isNew)
            synonyms.AddNew();
        else
            synonyms.Edit();
        synonyms.setField(u"Prefix"_s, prefix);
        synonyms.setField(u"Main"_s, main);
        synonyms.setField(u"Suffix"_s, suffix);
        synonyms.setField(u"Kommentar"_s, comment);
        if (isNew) {
            synonyms.setField(u"VID"_s, qint64{dao::toInteger16(dao::Value(vid).toInteger())});
            synonyms.setField(u"Sprache"_s, qint64{dao::toInteger16(dao::Value(sprache).toInteger())});
        }
        synonyms.Update();
        if (isNew) {
            synonyms.MoveLast();
            addKey(synonyms.field(u"ID"_s).toText());
        }
        stored = true;
    });
    return stored;
}

bool CDBHandler::DeleteSynonym(qint16 key) {
    bool deleted = false;
    reported([&] {
        if (!findSynonym(key))
            return;
        editAndDelete(RecordsetSynonyme);
        deleted = true;
    });
    return deleted;
}

} // namespace lingomat
