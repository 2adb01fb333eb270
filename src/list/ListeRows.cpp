#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "FlexGrid.h"
#include "Liste.h"
#include "SharedState.h"
#include "StoredDate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr auto ScoreOfNewEntry = "6"_L1;

ExpressionParts readParts(const dao::Recordset& record, const LanguageFields& names, int language) {
    const auto part = [&record](const QString& field) {
        return TruncateText(record.field(field).toText(), ExpressionPartSize);
    };
    if (language == 1)
        return {part(names.Lang1PrefixField), part(names.Lang1MainField), part(names.Lang1SuffixField),
                part(names.Lang1KommentarField)};
    return {part(names.Lang2PrefixField), part(names.Lang2MainField), part(names.Lang2SuffixField),
            part(names.Lang2KommentarField)};
}

} // namespace

void Liste::LoescheListe() {
    trapped(m_context.prompts, [this] {
        m_grid->Clear();
        SetHeaders();
        m_grid->setRows(std::min(m_grid->Rows(), 2));
        if (m_grid->Rows() == 2)
            m_grid->setRowHeight(1, 0);
        forgetChanges(); // the rows are gone, and the next database has other entries of these keys
        ConditionToUI();
    });
}

void Liste::initialisiereListe() {
    m_grid->Clear();
    m_grid->setRows(1);
    m_sorted = false;
    SetHeaders();
    AdjustControls();
}

void Liste::SetzeAusdruckAusDBinGrid(int language) {
    const SharedState& state = m_context.state;
    const ExpressionParts parts = readParts(state.DBHandler.RecordsetAuswahl, state, language);
    const int row = m_grid->Row();
    const int column = language == 1 ? ColSprache1 : ColSprache2;
    const int firstPart = language == 1 ? ColPrefix1 : ColPrefix2;
    m_grid->setTextMatrix(row, column, extract(generiereAusdruck(parts)));
    m_grid->setTextMatrix(row, firstPart, parts.prefix);
    m_grid->setTextMatrix(row, firstPart + 1, parts.main);
    m_grid->setTextMatrix(row, firstPart + 2, parts.suffix);
    m_grid->setTextMatrix(row, firstPart + 3, parts.comment);
    m_grid->setCol(column);
}

bool Liste::ZeileAusDatensatz(int row, bool last, const EntryLookups& lookups) {
    const dao::Recordset& record = m_context.state.DBHandler.RecordsetAuswahl;
    const int target = last ? m_grid->Rows() - 1 : row;
    // By position: a join has several fields called ID, the entry's own is the first.
    const QString id = record.field(0).toText(QString());
    if (target >= 2 && m_grid->TextMatrix(target - 1, ColSchluessel) == id) {
        m_grid->RemoveItem(target);
        return false;
    }

    m_grid->setRow(target);
    m_grid->setTextMatrix(target, ColSchluessel, id);
    SetzeAusdruckAusDBinGrid(1);
    SetzeAusdruckAusDBinGrid(2);
    writeText(target, ColWortart, u"Wortart"_s, WortartSize);
    writeText(target, ColBeispielsatz, u"Beispielsatz"_s, BeispielsatzSize);
    writeText(target, ColZusatzinfo, u"Zusatzinfo"_s, ZusatzinfoSize);
    writeText(target, ColQuelle, u"Quelle"_s, QuelleSize);
    writeDate(target, ColEingabedatum, ColEingabeKey, u"Eingabedatum"_s);
    writeDate(target, ColAenderungsdatum, ColAenderungKey, u"Aenderungsdatum"_s);
    m_grid->setTextMatrix(target, ColScore, record.field(u"Score"_s).toText(ScoreOfNewEntry));
    m_grid->setTextMatrix(target, ColBereich, lookups.GetAllBereiche(id));
    m_grid->setTextMatrix(target, ColGrammatikalisch, lookups.GetAllGrammatikalisch(id));
    m_grid->setTextMatrix(target, ColFunktional, lookups.GetAllFunktional(id));
    return true;
}

void Liste::writeText(int row, int column, const QString& field, int limit) {
    const dao::Recordset& record = m_context.state.DBHandler.RecordsetAuswahl;
    m_grid->setTextMatrix(row, column, TruncateText(extract(record.field(field).toText(QString())), limit));
}

void Liste::writeDate(int row, int displayColumn, int keyColumn, const QString& field) {
    const dao::Recordset& record = m_context.state.DBHandler.RecordsetAuswahl;
    const QString stored = extract(record.field(field).toText(QString()));
    m_grid->setTextMatrix(row, keyColumn, stored);
    m_grid->setTextMatrix(row, displayColumn, FormatDatum(stored));
}

} // namespace lingomat
