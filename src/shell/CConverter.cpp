#include "CConverter.h"

#include "ConvertMessages.h"
#include "EngineError.h"
#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "Globals.h"
#include "Progress.h"
#include "SharedState.h"
#include "ShellMessages.h"
#include "StoredDate.h"
#include "TableLoader.h"
#include "UnfinishedFile.h"
#include "clsCursor.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int CurrentVersion = 3;
constexpr int FirstVersionWithPlainFieldNames = 2;
const QString EveryRow = u"ID LIKE '*'"_s;

const std::array<QString, 14>& copiedFields() {
    static const std::array<QString, 14> fields{
        u"Quelle"_s,       u"Eingabedatum"_s,    u"Aenderungsdatum"_s, u"Beispielsatz"_s, u"Lang1_Prefix"_s,
        u"Lang1_Main"_s,   u"Lang1_Suffix"_s,    u"Lang1_Kommentar"_s, u"Lang2_Prefix"_s, u"Lang2_Main"_s,
        u"Lang2_Suffix"_s, u"Lang2_Kommentar"_s, u"Score"_s,           u"Wortart"_s};
    return fields;
}

const std::array<QString, 9>& tablesOfCurrentFormat() {
    static const std::array<QString, 9> tables{u"Vokabular"_s,
                                               u"Bereiche"_s,
                                               u"Bereiche_Zwischen"_s,
                                               u"GrammatikalischeAttribute"_s,
                                               u"GrammatikalischeAttribute_Zwischen"_s,
                                               u"FunktionaleAttribute"_s,
                                               u"FunktionaleAttribute_Zwischen"_s,
                                               u"Referenzen"_s,
                                               u"Synonyme"_s};
    return tables;
}

/// The names that the fields of expressions have below version 2.
QString nameByLanguage(const QString& field, const LanguageFields& names) {
    struct Pair {
        QLatin1StringView field;
        QString LanguageFields::*name;
    };
    static constexpr Pair pairs[] = {
        {"Lang1_Prefix"_L1, &LanguageFields::Lang1PrefixField},
        {"Lang1_Main"_L1, &LanguageFields::Lang1MainField},
        {"Lang1_Suffix"_L1, &LanguageFields::Lang1SuffixField},
        {"Lang1_Kommentar"_L1, &LanguageFields::Lang1KommentarField},
        {"Lang2_Prefix"_L1, &LanguageFields::Lang2PrefixField},
        {"Lang2_Main"_L1, &LanguageFields::Lang2MainField},
        {"Lang2_Suffix"_L1, &LanguageFields::Lang2SuffixField},
        {"Lang2_Kommentar"_L1, &LanguageFields::Lang2KommentarField},
    };
    for (const Pair& pair : pairs)
        if (field == pair.field)
            return names.*pair.name;
    return field;
}

/// The fields that are never Null in files of our own making: a Null there ends whatever reads it.
bool isPartOfExpression(const QString& field) {
    return field.startsWith("Lang1_"_L1) || field.startsWith("Lang2_"_L1);
}
bool isPartOfSynonym(const QString& field) {
    static const std::array<QString, 4> parts{u"Prefix"_s, u"Main"_s, u"Suffix"_s, u"Kommentar"_s};
    return std::find(parts.begin(), parts.end(), field) != parts.end();
}

bool found(const dao::Recordset& recordset) {
    return !recordset.EOF_() && !recordset.NoMatch();
}

/// Whether an error is the area's own, and not one that the whole work fails of.
bool isOfTheArea(dao::ErrorNumber number) {
    switch (number) {
    case dao::ErrorNumber::InvalidPattern:
    case dao::ErrorNumber::FindSyntax:
    case dao::ErrorNumber::TextTooLong:
    case dao::ErrorNumber::EmptyTextNotAllowed: return true;
    default: return false;
    }
}

/// Runs a step that a value of one row may make fail; the error then tells which row.
template <typename Step>
void forRow(const dao::Value& key, const Step& step) {
    try {
        step();
    } catch (const dao::Error& error) {
        switch (error.Number()) {
        case dao::ErrorNumber::Overflow:
        case dao::ErrorNumber::DuplicateKey:
        case dao::ErrorNumber::TextTooLong:
        case dao::ErrorNumber::DataConversion:
            throw dao::Error(error.Number(), error.Description() + u" (ID %1)"_s.arg(key.toText(QString())));
        default: throw;
        }
    }
}

/// The wait cursor for as long as it lives.
class WaitCursor {
public:
    WaitCursor() { m_cursor.SetCursorToBusy(); }
    ~WaitCursor() { m_cursor.RestoreCursor(); }
    Q_DISABLE_COPY_MOVE(WaitCursor)

private:
    clsCursor m_cursor;
};

} // namespace

CConverter::CConverter(FormContext& context, Surroundings surroundings)
    : m_context(context),
      m_surroundings(std::move(surroundings)),
      m_creator({.fileExists = {},
                 .reportError =
                     [this](QString description) {
                         reportError(m_context.prompts,
                                     m_file ? description.replace(m_file->path(), m_newName) : description);
                     },
                 .internalError = {}}),
      m_handler([this](const QString& description) {
          if (m_storingAreas)
              reportAreaError(description);
          else
              reportError(m_context.prompts, description);
      }) {}

CConverter::~CConverter() = default;

CDBHandler& CConverter::old() {
    return m_context.state.DBHandler;
}

QWidget* CConverter::boxParent() const {
    return m_surroundings.boxParent();
}

QString CConverter::NewDBName() {
    const FileDialogRequest request = convertedNameRequest(m_context.state.CurrentDBPath);
    return m_context.prompts.saveFile(boxParent(), request).value_or(QString());
}

bool CConverter::Convert() {
    const int version = old().GetDBVersion();
    if (version < 0)
        return false;
    m_areaErrors = 0;
    m_entriesWithoutKey = 0;
    bool done = false;
    try {
        tellWhatIsLost(version);
        if (createFile()) {
            copyAll(version);
            m_file->takePlace(m_replace);
            done = true;
        }
    } catch (...) {
        m_context.progress.hide();
        reportCurrentException(m_context.prompts);
    }
    m_context.progress.hide();
    if (!done && m_handler.Database.isOpen())
        m_handler.Database.Close();
    m_creator.Database = {};
    m_handler.Database = {};
    m_file.reset();
    if (done)
        tellWhatWasLost();
    return done;
}

void CConverter::tellWhatIsLost(int version) {
    QList<dao::RowLoss> losses = old().Database.RowLosses();
    const auto isOfNoInterest = [version](const dao::RowLoss& loss) {
        const auto& tables = tablesOfCurrentFormat();
        const bool isTable = std::find(tables.begin(), tables.end(), loss.Table) != tables.end();
        const bool isCopied = version < CurrentVersion ? loss.Table == u"Vokabular"_s : isTable;
        return !isCopied && loss.Table != u"MSysObjects"_s;
    };
    losses.removeIf(isOfNoInterest);
    const bool lacksEntries = std::any_of(losses.begin(), losses.end(), [](const dao::RowLoss& loss) {
        return loss.Table == u"Vokabular"_s && loss.Rows > 0;
    });
    if (lacksEntries && old().Database.OpenRecordset(u"SELECT * FROM Vokabular"_s).RecordCount() == 0)
        throw dao::Error(dao::ErrorNumber::UnrecognizedFormat,
                         u"The file '%1' is damaged. None of its entries can be read."_s.arg(
                             m_context.state.CurrentDBPath));
    if (!losses.isEmpty())
        tellLosses(m_context.prompts, boxParent(), m_context.state.CurrentDBPath, losses);
}

bool CConverter::createFile() {
    if (!chooseTarget())
        return false;
    m_file = std::make_unique<UnfinishedFile>(m_newName);
    m_handler.Database = m_creator.CreateNewDatabase(m_file->path(), false, m_context.state);
    if (!m_handler.Database.isOpen())
        throw dao::alreadyReported();
    return true;
}

bool CConverter::chooseTarget() {
    while (true) {
        m_newName = NewDBName();
        if (m_newName.isEmpty())
            return false;
        const QFileInfo target(m_newName);
        m_replace = target.exists() || target.isSymLink();
        if (!m_replace)
            return true;
        switch (m_surroundings.ask(overwriteQuestion(m_newName))) {
        case QMessageBox::Yes:
            if (mayReplace())
                return true;
            break;
        case QMessageBox::No: break;
        default: m_context.progress.hide(); return false;
        }
    }
}

/// The source is never overwritten; what cannot be is an error.
bool CConverter::mayReplace() {
    if (isSameFile(m_newName, m_context.state.CurrentDBPath)) {
        tellSourceIsTarget(m_context.prompts, boxParent(), m_newName);
        return false;
    }
    const QFileInfo target(m_newName);
    if (target.exists() && (!target.isFile() || !target.isWritable()))
        throw dao::Error(
            dao::ErrorNumber::CannotOpenFile,
            u"Cannot write the file '%1'. Permission is missing, or it is no file."_s.arg(m_newName));
    return true;
}

void CConverter::copyAll(int version) {
    const WaitCursor cursor;
    if (!m_handler.OpenAllRecordsets())
        throw dao::alreadyReported();
    {
        dao::WriteBatch batch(m_handler.Database);
        if (version < CurrentVersion)
            copyOldRows(version);
        else
            copyTables();
        batch.commit();
    }
    m_context.progress.hide();
    closeBoth();
}

// Older versions: row by row.

void CConverter::copyOldRows(int version) {
    dao::Recordset& rows = old().RecordsetAuswahl;
    rows = old().Database.OpenRecordset(u"SELECT * FROM Vokabular"_s, dao::RecordsetType::Dynaset);
    rows.FindFirst(EveryRow);
    if (rows.RecordCount() > 0)
        showProgress(rows.RecordCount());
    qint64 copied = 0;
    for (; found(rows); rows.FindNext(EveryRow)) {
        copyOldRow(version);
        ++copied;
        advanceProgress();
    }
    m_entriesWithoutKey = rows.RecordCount() - copied;
}

void CConverter::copyOldRow(int version) {
    dao::Recordset& rows = m_handler.RecordsetAuswahl;
    forRow(old().RecordsetAuswahl.field(u"ID"_s), [&] {
        rows.AddNew();
        for (const QString& field : copiedFields())
            CopyOneScalar(field, version);
        rows.Update();
    });
    rows.setBookmark(rows.LastModified());
    ConvertScalarToNDim(u"Bereiche"_s);
}

void CConverter::CopyOneScalar(const QString& field, int oldVersion) {
    const QString oldName =
        oldVersion >= FirstVersionWithPlainFieldNames ? field : nameByLanguage(field, old());
    const dao::Value value = old().RecordsetAuswahl.field(oldName);
    if (value.toText(QString()).isEmpty()) {
        if (isPartOfExpression(field))
            m_handler.RecordsetAuswahl.setField(field, u""_s);
        return; // the new row holds the default
    }
    const bool isDate = field == u"Eingabedatum"_s || field == u"Aenderungsdatum"_s;
    m_handler.RecordsetAuswahl.setField(field, isDate ? dao::Value(DateToStored(value.toText())) : value);
}

void CConverter::ConvertScalarToNDim(const QString& field) {
    if (field != u"Bereiche"_s)
        return;
    QString areas = extract(old().RecordsetAuswahl.field(u"Bereich"_s).toText(QString()));
    areas.replace(u'@', u';');
    m_storingAreas = true;
    const auto done = qScopeGuard([this] { m_storingAreas = false; });
    m_handler.SchreibeArrayToDB(areas, m_handler.RecordsetBereiche, m_handler.RecordsetBereiche_Z,
                                m_handler.RecordsetAuswahl);
}

/// The first is shown; over thousands of rows, a box for each would keep the user from everything. Called
/// while the error is under way.
void CConverter::reportAreaError(const QString& description) {
    try {
        throw;
    } catch (const dao::Error& error) {
        if (!isOfTheArea(error.Number()))
            throw;
    }
    if (m_areaErrors++ == 0)
        reportError(m_context.prompts, description);
}

// The current version: table by table.

void CConverter::copyTables() {
    qint64 rows = 0;
    for (const QString& table : tablesOfCurrentFormat())
        rows += old().Database.OpenRecordset(u"SELECT * FROM "_s + table).RecordCount();
    if (rows > 0)
        showProgress(rows);
    for (const QString& table : tablesOfCurrentFormat())
        copyTable(table);
}

void CConverter::copyTable(const QString& table) {
    dao::Recordset source = old().Database.OpenRecordset(u"SELECT * FROM "_s + table);
    dao::TableLoader target(m_handler.Database, table);
    const QStringList fields = target.fieldNames();
    std::vector<dao::Value> row(static_cast<std::size_t>(fields.size()));
    const bool isSynonym = table == u"Synonyme"_s;
    for (; !source.EOF_(); source.MoveNext()) {
        std::transform(fields.begin(), fields.end(), row.begin(), [&](const QString& field) {
            const dao::Value value = source.field(field);
            const bool isPart = isSynonym ? isPartOfSynonym(field) : isPartOfExpression(field);
            return value.isNull() && isPart ? dao::Value(u""_s) : value;
        });
        forRow(row.front(), [&] { target.add(row); });
        advanceProgress();
    }
}

void CConverter::showProgress(qint64 rows) {
    Progress& progress = m_context.progress;
    progress.setWindowTitle(uiText(u"Konvertieren"_s, u"Convert"_s));
    progress.setStatus(uiText(u"Datei wird konvertiert ..."_s, u"File is being converted ..."_s));
    progress.setMinimum(0);
    progress.setMaximum(static_cast<int>(std::min<qint64>(rows, std::numeric_limits<int>::max())));
    progress.setValue(0);
    progress.showNow();
}

void CConverter::advanceProgress() {
    Progress& progress = m_context.progress;
    progress.setValue(progress.value() + 1);
}

void CConverter::closeBoth() {
    m_handler.CloseAllDBObjects();
    CDBHandler& source = old();
    if (source.RecordsetAuswahl.isOpen())
        source.RecordsetAuswahl.Close();
    source.Database.Close();
}

void CConverter::tellWhatWasLost() {
    if (m_areaErrors > 1)
        tellLostAreas(m_context.prompts, boxParent(), m_areaErrors - 1);
    if (m_entriesWithoutKey > 0)
        tellLostEntries(m_context.prompts, boxParent(), m_entriesWithoutKey);
}

} // namespace lingomat
