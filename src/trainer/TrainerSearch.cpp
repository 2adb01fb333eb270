// The search for what the last answer could have meant.

#include "Trainer.h"

#include "AnswerRules.h"
#include "Bedeutung.h"
#include "EntryRecords.h"
#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Progress.h"
#include "SharedState.h"

#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Positions of the four parts of an expression, looked up once instead of at each row.
class PartReader {
public:
    PartReader(const dao::Recordset& entries, const std::array<QString, 4>& fields) : m_entries(entries) {
        for (int position = 0; position < entries.fieldCount(); ++position) {
            const auto field = std::find(fields.begin(), fields.end(), entries.fieldName(position));
            if (field != fields.end())
                m_positions[static_cast<size_t>(field - fields.begin())] = position;
        }
    }

    [[nodiscard]] ExpressionParts parts() const { return {part(0), part(1), part(2), part(3)}; }

private:
    [[nodiscard]] QString part(size_t number) const {
        return m_entries.field(m_positions[number]).toText(QString());
    }

    const dao::Recordset& m_entries;
    std::array<int, 4> m_positions{-1, -1, -1, -1}; ///< -1 raises 3265 when it is read
};

std::array<QString, 4> partFields(const LanguageFields& names, int language) {
    if (language == 1)
        return {names.Lang1PrefixField, names.Lang1MainField, names.Lang1SuffixField,
                names.Lang1KommentarField};
    return {names.Lang2PrefixField, names.Lang2MainField, names.Lang2SuffixField, names.Lang2KommentarField};
}

} // namespace

/// An entry that the text fits, and how well.
struct Trainer::Match {
    int value = 0;
    QString target; ///< its expression in the language that was asked for
    QString other;
};

void Trainer::Suche_Click() {
    attempt([this] { showMeanings(findMeanings()); });
}

std::vector<Trainer::Match> Trainer::findMeanings() {
    const SharedState& state = m_context.state;
    dao::Recordset& entries = m_context.state.DBHandler.RecordsetVokabular;
    Progress& progress = m_context.progress;
    const auto hideProgress = qScopeGuard([&progress] { progress.hide(); });
    const QString everyEntry = u"ID LIKE '*'"_s;
    // A look-up a row: without this each of them would lock the file for itself.
    const dao::SteadyReading reading(state.DBHandler.Database);
    entries.FindFirst(everyEntry);
    const int count = entries.RecordCount();
    if (count >= 1) {
        progress.setWindowTitle(uiText(u"Datenbank wird durchsucht"_s, u"Searching in database"_s));
        progress.setStatus({});
        progress.setMinimum(0);
        progress.setMaximum(count);
        progress.setValue(0);
        progress.showNow();
    }

    const int language = targetLanguage();
    const PartReader target(entries, partFields(state, language));
    const PartReader other(entries, partFields(state, 3 - language));
    std::vector<Match> matches;
    for (; isFound(entries); entries.FindNext(everyEntry)) {
        progress.setValue(entries.AbsolutePosition());
        const ExpressionParts parts = target.parts();
        const int value = matchValue(LetzteEingabe, parts, state.Exceptions);
        if (value > 0)
            matches.push_back(
                {value, extract(generiereAusdruck(parts)), extract(generiereAusdruck(other.parts()))});
    }
    std::stable_sort(matches.begin(), matches.end(),
                     [](const Match& left, const Match& right) { return left.value > right.value; });
    return matches;
}

void Trainer::showMeanings(const std::vector<Match>& matches) {
    if (matches.empty() || matches.front().target.isEmpty()) {
        Message none;
        none.text = uiText(u"Zu dem eingegebenen Ausdruck konnte kein Eintrag gefunden werden."_s,
                           u"No entry found for expression."_s);
        m_context.prompts.message(this, none);
        return;
    }
    Bedeutung meanings(m_grid->TextMatrix(OtherLanguageRow, 0), m_grid->TextMatrix(TopLanguageRow, 0), this);
    FlexGrid& grid = meanings.MSFlexGrid1();
    qint16 row = 0;
    for (const Match& match : matches) {
        row = dao::toInteger16(row + 1);
        meanings.ExtendRow(row);
        grid.setTextMatrix(row, 0, match.target);
        grid.setTextMatrix(row, 1, match.other);
        grid.setTextMatrix(row, 2, QString::number(match.value));
    }
    m_context.prompts.exec(meanings);
}

} // namespace lingomat
