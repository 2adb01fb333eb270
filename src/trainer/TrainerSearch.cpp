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
#include <vector>

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

/// The best value first; equal ones stay in the order of the table.
void sortByValue(FlexGrid& grid) {
    struct Match {
        int value;
        QString target;
        QString other;
    };
    std::vector<Match> matches;
    for (int row = 1; row < grid.Rows(); ++row)
        matches.push_back(
            {grid.TextMatrix(row, 2).toInt(), grid.TextMatrix(row, 0), grid.TextMatrix(row, 1)});
    std::stable_sort(matches.begin(), matches.end(),
                     [](const Match& left, const Match& right) { return left.value > right.value; });
    int row = 0;
    for (const Match& match : matches) {
        ++row;
        grid.setTextMatrix(row, 0, match.target);
        grid.setTextMatrix(row, 1, match.other);
        grid.setTextMatrix(row, 2, QString::number(match.value));
    }
}

} // namespace

/// The window to show, and what its rows are read with.
struct Trainer::Meanings {
    Bedeutung form;
    PartReader target; ///< the expression in the language that was asked for
    PartReader other;
    qint16 count = 0; ///< matches in the grid
};

void Trainer::Suche_Click() {
    attempt([this] {
        const SharedState& state = m_context.state;
        const dao::Recordset& entries = m_context.state.DBHandler.RecordsetVokabular;
        const int language = targetLanguage();
        Meanings meanings{
            .form{m_grid->TextMatrix(OtherLanguageRow, 0), m_grid->TextMatrix(TopLanguageRow, 0), this},
            .target{entries, partFields(state, language)},
            .other{entries, partFields(state, 3 - language)}};
        findMeanings(meanings);
        showMeanings(meanings);
    });
}

void Trainer::findMeanings(Meanings& meanings) {
    dao::Recordset& entries = m_context.state.DBHandler.RecordsetVokabular;
    Progress& progress = m_context.progress;
    const auto hideProgress = qScopeGuard([&progress] { progress.hide(); });
    const QString everyEntry = u"ID LIKE '*'"_s;
    // A look-up a row: without this each of them would lock the file for itself.
    const dao::SteadyReading reading(m_context.state.DBHandler.Database);
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
    for (; isFound(entries); entries.FindNext(everyEntry)) {
        progress.setValue(entries.AbsolutePosition());
        CompareAndSetInGrid(meanings);
    }
}

void Trainer::CompareAndSetInGrid(Meanings& meanings) {
    const ExpressionParts parts = meanings.target.parts();
    const int value = matchValue(LetzteEingabe, parts, m_context.state.Exceptions);
    if (value == 0)
        return;
    meanings.count = dao::toInteger16(meanings.count + 1);
    meanings.form.ExtendRow(meanings.count);
    FlexGrid& grid = meanings.form.MSFlexGrid1();
    grid.setTextMatrix(meanings.count, 0, extract(generiereAusdruck(parts)));
    grid.setTextMatrix(meanings.count, 1, extract(generiereAusdruck(meanings.other.parts())));
    grid.setTextMatrix(meanings.count, 2, QString::number(value));
}

void Trainer::showMeanings(Meanings& meanings) {
    FlexGrid& grid = meanings.form.MSFlexGrid1();
    sortByValue(grid);
    if (meanings.count == 0 || grid.TextMatrix(1, 0).isEmpty()) {
        Message none;
        none.text = uiText(u"Zu dem eingegebenen Ausdruck konnte kein Eintrag gefunden werden."_s,
                           u"No entry found for expression."_s);
        m_context.prompts.message(this, none);
        return;
    }
    m_context.prompts.exec(meanings.form);
}

} // namespace lingomat
