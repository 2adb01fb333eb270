#include "CDBCreator.h"

#include "CDBHandler.h"
#include "EngineError.h"
#include "ExpressionText.h"

#include <array>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

using dao::DataType;
using dao::Field;
using dao::TableDef;

constexpr int LongSize = 4;
constexpr int IntegerSize = 2;
constexpr qint64 DBVersion = 3;

Field longField(const QString& name) {
    return {name, DataType::Long, LongSize, 0, {}, false};
}

Field autoIncrementField(const QString& name) {
    return {name, DataType::Long, LongSize, dao::dbAutoIncrField, {}, false};
}

/// A text field that takes the empty string.
Field freeText(const QString& name, int size) {
    return {name, DataType::Text, size, 0, {}, true};
}

/// A text field that does not.
Field requiredText(const QString& name, int size) {
    return {name, DataType::Text, size, 0, {}, false};
}

Field withDefault(Field field, const dao::Value& value) {
    field.DefaultValue = value;
    return field;
}

TableDef vokabular() {
    Field score{u"Score"_s, DataType::Integer, IntegerSize, 0, 6, false};
    return {u"Vokabular"_s,
            {
                autoIncrementField(u"ID"_s),
                freeText(u"Quelle"_s, QuelleSize),
                freeText(u"Eingabedatum"_s, DateSize),
                freeText(u"Aenderungsdatum"_s, DateSize),
                freeText(u"Beispielsatz"_s, BeispielsatzSize),
                freeText(u"Lang1_Prefix"_s, ExpressionPartSize),
                freeText(u"Lang1_Main"_s, ExpressionPartSize),
                freeText(u"Lang1_Suffix"_s, ExpressionPartSize),
                freeText(u"Lang1_Kommentar"_s, ExpressionPartSize),
                freeText(u"Lang2_Prefix"_s, ExpressionPartSize),
                freeText(u"Lang2_Main"_s, ExpressionPartSize),
                freeText(u"Lang2_Suffix"_s, ExpressionPartSize),
                freeText(u"Lang2_Kommentar"_s, ExpressionPartSize),
                score,
                freeText(u"Zusatzinfo"_s, ZusatzinfoSize),
                freeText(u"Wortart"_s, WortartSize),
            },
            {{u"ID"_s, u"ID"_s, true, true}},
            {}};
}

TableDef attributeList(const QString& name) {
    return {name,
            {autoIncrementField(u"IDA"_s), requiredText(u"Attribut_Text"_s, AttributSize)},
            {{u"IDA"_s, u"IDA"_s, true, true}},
            {}};
}

/// `primary` is recorded alone: one entry has several rows in every link table.
TableDef linkTable(const QString& name, bool primary) {
    return {name, {longField(u"IDV"_s), longField(u"ID"_s)}, {{u"IDV"_s, u"IDV"_s, primary, false}}, {}};
}

struct RelationKind {
    QStringView kind;
    QStringView name;
    QStringView foreignTable;
};
constexpr std::array<RelationKind, 3> RelationKinds{{
    {u"Bereich", u"VokabularBereiche_Z", u"Bereiche_Zwischen"},
    {u"GrammatikalischeAttribute", u"VokabularGrammatikalischeAttribute_Z",
     u"GrammatikalischeAttribute_Zwischen"},
    {u"FunktionaleAttribute", u"VokabularFunktionaleAttribute_Z", u"FunktionaleAttribute_Zwischen"},
}};

} // namespace

CDBCreator::CDBCreator(Notifier notifier) : m_notifier(std::move(notifier)) {}

dao::Database CDBCreator::CreateNewDatabase(const QString& path, bool showMessage,
                                            LanguageFields& languages) {
    FileExisted = false;
    try {
        Database = dao::DBEngine::Workspaces(0).CreateDatabase(path, u";LANGID=0x0409;CP=1252;COUNTRY=0"_s);
        createAll(languages);
        return Database;
    } catch (const dao::Error& error) {
        FileExisted = error.Number() == dao::ErrorNumber::DatabaseExists;
        if (!FileExisted)
            m_notifier.reportError(error.Description());
        else if (m_notifier.storeError)
            m_notifier.storeError(error.Description());
    } catch (const std::exception& error) {
        m_notifier.reportError(QString::fromUtf8(error.what()));
    }
    Database = {}; // a file that was left half made is not held open
    if (FileExisted && showMessage)
        m_notifier.fileExists(path);
    return {};
}

void CDBCreator::createAll(LanguageFields& languages) {
    const dao::WriteBurst burst(Database);
    Database.appendTable(vokabular());
    const QString names = u"Lang1="_s + languages.Lang1Name + u"@Lang2="_s + languages.Lang2Name;
    Database.appendProperty(u"Vokabular"_s, {u"Languages"_s, DataType::Text, names});
    Database.appendProperty(u"Vokabular"_s, {u"DBVersion"_s, DataType::Integer, DBVersion});
    languages = languageFields({languages.Lang1Name, languages.Lang2Name}, u"Lang1"_s, u"Lang2"_s);

    CreateTableBereiche(Database);
    CreateTableBereiche_Zwischen(Database);
    MakeRelation(u"Bereich"_s, Database);
    CreateTableGrammatikalischeAttribute(Database);
    CreateTableGrammatikalischeAttribute_Zwischen(Database);
    MakeRelation(u"GrammatikalischeAttribute"_s, Database);
    CreateTableFunktionaleAttribute(Database);
    CreateTableFunktionaleAttribute_Zwischen(Database);
    MakeRelation(u"FunktionaleAttribute"_s, Database);
    CreateTableRelations(Database);
    MakeRelation(u"Relations"_s, Database);
    CreateTableSynonym(Database);
}

void CDBCreator::CreateTableBereiche(dao::Database& database) {
    database.appendTable({u"Bereiche"_s,
                          {autoIncrementField(u"ID"_s), requiredText(u"Bereich_Text"_s, BereichSize)},
                          {{u"ID"_s, u"ID"_s, true, true}},
                          {}});
}

void CDBCreator::CreateTableBereiche_Zwischen(dao::Database& database) {
    database.appendTable(linkTable(u"Bereiche_Zwischen"_s, true));
}

void CDBCreator::CreateTableGrammatikalischeAttribute(dao::Database& database) {
    database.appendTable(attributeList(u"GrammatikalischeAttribute"_s));
}

void CDBCreator::CreateTableGrammatikalischeAttribute_Zwischen(dao::Database& database) {
    database.appendTable(linkTable(u"GrammatikalischeAttribute_Zwischen"_s, false));
}

void CDBCreator::CreateTableFunktionaleAttribute(dao::Database& database) {
    database.appendTable(attributeList(u"FunktionaleAttribute"_s));
}

void CDBCreator::CreateTableFunktionaleAttribute_Zwischen(dao::Database& database) {
    database.appendTable(linkTable(u"FunktionaleAttribute_Zwischen"_s, false));
}

void CDBCreator::CreateTableRelations(dao::Database& database) {
    const QString unknown = u"unbekannte Referenz"_s;
    database.appendTable({u"Referenzen"_s,
                          {
                              withDefault(longField(u"von"_s), QString()),
                              withDefault(longField(u"nach"_s), QString()),
                              withDefault(requiredText(u"Typ"_s, ReferenceTypeSize), unknown),
                              withDefault(requiredText(u"SubTyp"_s, ReferenceTypeSize), unknown),
                          },
                          {{u"von"_s, u"von"_s, true, false}},
                          {}});
}

void CDBCreator::CreateTableSynonym(dao::Database& database) {
    database.appendTable({u"Synonyme"_s,
                          {
                              withDefault(autoIncrementField(u"ID"_s), QString()),
                              withDefault(longField(u"VID"_s), QString()),
                              withDefault(longField(u"Sprache"_s), QString()),
                              withDefault(freeText(u"Prefix"_s, ExpressionPartSize), QString()),
                              withDefault(freeText(u"Main"_s, ExpressionPartSize), QString()),
                              withDefault(freeText(u"Suffix"_s, ExpressionPartSize), QString()),
                              withDefault(freeText(u"Kommentar"_s, ExpressionPartSize), QString()),
                          },
                          {{u"VID"_s, u"VID"_s, true, false}},
                          {}});
}

void CDBCreator::MakeRelation(const QString& kind, dao::Database& database) {
    if (kind == u"Relations"_s)
        return;
    for (const RelationKind& relation : RelationKinds) {
        if (kind != relation.kind)
            continue;
        database.appendRelation({relation.name.toString(), u"Vokabular"_s, relation.foreignTable.toString(),
                                 u"ID"_s, u"IDV"_s, dao::dbRelationDontEnforce});
        return;
    }
    m_notifier.internalError();
}

} // namespace lingomat
