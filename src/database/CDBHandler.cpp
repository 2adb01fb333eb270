#include "CDBHandler.h"

#include "EngineError.h"
#include "ExpressionText.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int VersionOnError = -99;
/// From this version on the expression fields are named "Lang1_..." and "Lang2_...".
constexpr int FirstVersionWithPlainFieldNames = 2;

/// Value of a property of table `Vokabular`; Null where it has none of that name. Error 3343 where it may
/// have had one: a file without either property would count as one of the oldest form.
dao::Value vokabularProperty(const dao::Database& database, const QString& name) {
    const dao::TableDef& table = database.Table(u"Vokabular"_s);
    for (const dao::Property& property : table.Properties)
        if (property.Name == name)
            return property.Value;
    if (table.PropertiesAreDamaged)
        throw dao::Error(
            dao::ErrorNumber::UnrecognizedFormat,
            u"The file is damaged: property '%1' of the table 'Vokabular' cannot be read."_s.arg(name));
    return {};
}

int versionOf(const dao::Database& database) {
    const dao::Value version = vokabularProperty(database, u"DBVersion"_s);
    return version.isNull() ? 0 : dao::toInteger16(version.toInteger());
}

} // namespace

std::optional<LanguageNames> languageNames(const QString& property) {
    if (property.isEmpty())
        return LanguageNames{u"Spanisch"_s, u"Deutsch"_s};
    LanguageNames names;
    int equalSigns = 0;
    qsizetype start = -1;
    for (qsizetype i = 0; i < property.size(); ++i) {
        if (property[i] == u'=') {
            start = i + 1;
            ++equalSigns;
        } else if (property[i] == u'@') {
            if (start < 0 || equalSigns < 1 || equalSigns > 2)
                return std::nullopt;
            QString& name = equalSigns == 1 ? names.first : names.second;
            name = property.sliced(start, i - start);
        }
    }
    if (names.second.isEmpty()) {
        if (equalSigns == 0)
            return std::nullopt;
        names.second = property.sliced(start);
    }
    return LanguageNames{extract(names.first), extract(names.second)};
}

LanguageFields languageFields(const LanguageNames& names, const QString& prefix1, const QString& prefix2) {
    return {
        names.first,
        names.second,
        prefix1 + u"_Prefix"_s,
        prefix1 + u"_Main"_s,
        prefix1 + u"_Suffix"_s,
        prefix1 + u"_Kommentar"_s,
        prefix2 + u"_Prefix"_s,
        prefix2 + u"_Main"_s,
        prefix2 + u"_Suffix"_s,
        prefix2 + u"_Kommentar"_s,
    };
}

CDBHandler::CDBHandler(ErrorReporter reportError, MessageText synonymNotFound)
    : m_reportError(std::move(reportError)), m_synonymNotFound(std::move(synonymNotFound)) {}

bool CDBHandler::reported(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (const dao::Error& error) {
        if (error.Number() != dao::ErrorNumber::AlreadyReported)
            m_reportError(error.Description());
    } catch (const std::exception& error) {
        m_reportError(QString::fromUtf8(error.what()));
    }
    return false;
}

std::array<CDBHandler::TableRecordset, 11> CDBHandler::recordsets() {
    return {{
        {u"Vokabular"_s, &RecordsetAuswahl},
        {u"Vokabular"_s, &RecordsetVokabular},
        {u"Vokabular"_s, &RecordsetSuche},
        {u"Referenzen"_s, &RecordsetReferenzen},
        {u"GrammatikalischeAttribute"_s, &RecordsetGrammatikalisch},
        {u"GrammatikalischeAttribute_Zwischen"_s, &RecordsetGrammatikalisch_Z},
        {u"FunktionaleAttribute"_s, &RecordsetFunktional},
        {u"FunktionaleAttribute_Zwischen"_s, &RecordsetFunktional_Z},
        {u"Bereiche"_s, &RecordsetBereiche},
        {u"Bereiche_Zwischen"_s, &RecordsetBereiche_Z},
        {u"Synonyme"_s, &RecordsetSynonyme},
    }};
}

bool CDBHandler::OpenAllRecordsets() {
    for (const TableRecordset& each : recordsets())
        *each.recordset = dao::Recordset();
    return reported([this] {
        for (const TableRecordset& each : recordsets())
            *each.recordset =
                Database.OpenRecordset(u"SELECT * FROM "_s + each.table, dao::RecordsetType::Dynaset);
    });
}

void CDBHandler::CloseAllDBObjects() {
    for (const TableRecordset& each : recordsets())
        reported([&each] { each.recordset->Close(); });
    reported([this] { Database.Close(); });
}

int CDBHandler::GetDBVersion() {
    int version = VersionOnError;
    reported([&] { version = versionOf(Database); });
    return version;
}

bool CDBHandler::GetLanguages() {
    bool isLanguageDatabase = false;
    reported([&] {
        Lang1Name.clear();
        Lang2Name.clear();
        const QString property = vokabularProperty(Database, u"Languages"_s).toText(QString());
        const auto names = languageNames(property);
        if (!names)
            return;
        const bool plainNames = !property.isEmpty() && versionOf(Database) >= FirstVersionWithPlainFieldNames;
        static_cast<LanguageFields&>(*this) = plainNames
                                                  ? languageFields(*names, u"Lang1"_s, u"Lang2"_s)
                                                  : languageFields(*names, names->first, names->second);
        isLanguageDatabase = true;
    });
    return isLanguageDatabase;
}

} // namespace lingomat
