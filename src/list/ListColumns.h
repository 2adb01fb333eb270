#pragma once

#include "ColumnOptions.h"

#include <QString>

#include <array>
#include <optional>

namespace lingomat {

/// Numbers of the list's columns. Code reaches the four parts of an expression by adding 0 to 3 to
/// ColPrefix1 or ColPrefix2.
struct ListColumnNumbers {
    static constexpr int ColMarke = 0;      ///< the mark of the current row; fixed
    static constexpr int ColSchluessel = 1; ///< the entry's ID as text; "*": not in the database yet
    static constexpr int ColSprache1 = 2;   ///< whole expression, derived from the four parts
    static constexpr int ColSprache2 = 3;
    static constexpr int ColWortart = 4;
    static constexpr int ColGrammatikalisch = 5; ///< packed: items each followed by ";"
    static constexpr int ColFunktional = 6;      ///< packed
    static constexpr int ColBereich = 7;         ///< packed
    static constexpr int ColBeispielsatz = 8;
    static constexpr int ColZusatzinfo = 9;
    static constexpr int ColQuelle = 10;
    static constexpr int ColEingabedatum = 11;    ///< dd.mm.yy
    static constexpr int ColAenderungsdatum = 12; ///< dd.mm.yy
    static constexpr int ColScore = 13;
    static constexpr int ColPrefix1 = 14;
    static constexpr int ColHaupt1 = 15;
    static constexpr int ColSuffix1 = 16;
    static constexpr int ColKommentar1 = 17;
    static constexpr int ColPrefix2 = 18;
    static constexpr int ColHaupt2 = 19;
    static constexpr int ColSuffix2 = 20;
    static constexpr int ColKommentar2 = 21;
    static constexpr int ColEingabeKey = 22;   ///< yyyymmdd: sort key of ColEingabedatum
    static constexpr int ColAenderungKey = 23; ///< yyyymmdd: sort key of ColAenderungsdatum
};
inline constexpr int ListColumnTotal = 24;

/// First width of a column, told in the grid's default width.
enum class ColumnWidth { Zero, Third, Default, Double };

struct ListColumnRule {
    int number;
    ColumnWidth width;
    std::optional<ListColumn> option = {}; ///< what hides the column; none: always as it is
    const char* menuEntry = nullptr;       ///< objectName of the entry that shows and hides it
};

/// All columns, in the order of their numbers.
inline constexpr auto listColumnTable = [] {
    using Column = ListColumnNumbers;
    return std::array<ListColumnRule, ListColumnTotal>{{
        {Column::ColMarke, ColumnWidth::Third},
        {Column::ColSchluessel, ColumnWidth::Zero},
        {Column::ColSprache1, ColumnWidth::Double},
        {Column::ColSprache2, ColumnWidth::Double},
        {Column::ColWortart, ColumnWidth::Default, ListColumn::Wortart, "mnAnsichtWortart"},
        {Column::ColGrammatikalisch, ColumnWidth::Default, ListColumn::Grammatikalisch,
         "mnAnsichtGrammatikalisch"},
        {Column::ColFunktional, ColumnWidth::Default, ListColumn::Funktional, "mnAnsichtFunktional"},
        {Column::ColBereich, ColumnWidth::Double, ListColumn::Bereich, "mnAnsichtBereich"},
        {Column::ColBeispielsatz, ColumnWidth::Double, ListColumn::Beispielsatz, "mnAnsichtBeispielsatz"},
        {Column::ColZusatzinfo, ColumnWidth::Double, ListColumn::Zusatzinfo, "mnAnsichtZusatzinfo"},
        {Column::ColQuelle, ColumnWidth::Default, ListColumn::Quelle, "mnAnsichtQuelle"},
        {Column::ColEingabedatum, ColumnWidth::Default, ListColumn::Eingabedatum, "mnAnsichtEingabedatum"},
        {Column::ColAenderungsdatum, ColumnWidth::Default, ListColumn::Aenderungsdatum,
         "mnAnsichtAenderungsdatum"},
        {Column::ColScore, ColumnWidth::Default, ListColumn::Score, "mnAnsichtScore"},
        {Column::ColPrefix1, ColumnWidth::Zero},
        {Column::ColHaupt1, ColumnWidth::Zero},
        {Column::ColSuffix1, ColumnWidth::Zero},
        {Column::ColKommentar1, ColumnWidth::Zero},
        {Column::ColPrefix2, ColumnWidth::Zero},
        {Column::ColHaupt2, ColumnWidth::Zero},
        {Column::ColSuffix2, ColumnWidth::Zero},
        {Column::ColKommentar2, ColumnWidth::Zero},
        {Column::ColEingabeKey, ColumnWidth::Zero},
        {Column::ColAenderungKey, ColumnWidth::Zero},
    }};
}();

/// First width of a column in pixels.
[[nodiscard]] int firstWidth(ColumnWidth width, int defaultWidth);

/// Whether the border of a column must not be dragged: the columns without width, and of the hidden ones
/// the first, guarded from both sides. Hidden columns behind the first are left alone.
[[nodiscard]] bool columnIsGuarded(int column, const ColumnOptions& options);

/// Number of entries in a grid of so many rows, header included. A single data row without height is the
/// placeholder of an empty list and counts as none.
[[nodiscard]] int countRows(int rows, int heightOfRow1);

/// Title of the window: with the number of entries as soon as there is a data row, placeholder or not.
[[nodiscard]] QString listTitle(int rows, int heightOfRow1);

} // namespace lingomat
