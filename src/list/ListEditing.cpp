#include "ListEditing.h"

#include "ListColumns.h"

#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

using Column = ListColumnNumbers;

/// The columns that each mode sorts by, language for language.
struct SortMode {
    QStringView name;
    std::array<int, 2> columns;
};

constexpr SortMode sortModes[] = {
    {u"All", {Column::ColSprache1, Column::ColSprache2}},
    {u"Prefix", {Column::ColPrefix1, Column::ColPrefix2}},
    {u"Main", {Column::ColHaupt1, Column::ColHaupt2}},
    {u"Suffix", {Column::ColSuffix1, Column::ColSuffix2}},
};

} // namespace

CellEditor editorOf(int column) {
    switch (column) {
    case Column::ColSprache1:
    case Column::ColSprache2: return CellEditor::Expression;
    case Column::ColWortart: return CellEditor::WortartBox;
    case Column::ColGrammatikalisch:
    case Column::ColFunktional:
    case Column::ColBereich: return CellEditor::Attributes;
    case Column::ColBeispielsatz:
    case Column::ColZusatzinfo: return CellEditor::txtEdit;
    case Column::ColQuelle: return CellEditor::QuelleBox;
    default: return CellEditor::None;
    }
}

bool isOverlay(CellEditor editor) {
    return editor == CellEditor::WortartBox || editor == CellEditor::QuelleBox ||
           editor == CellEditor::txtEdit;
}

bool takesSeveralRows(int column) {
    switch (column) {
    case Column::ColSprache1:
    case Column::ColSprache2:
    case Column::ColEingabedatum:
    case Column::ColAenderungsdatum:
    case Column::ColScore: return false;
    default: return true;
    }
}

AttributeNames attributeNames(int column) {
    switch (column) {
    case Column::ColGrammatikalisch: return {u"GrammatikalischeAttribute"_s, u"Grammatikalisch"_s};
    case Column::ColFunktional: return {u"FunktionaleAttribute"_s, u"Funktionales"_s};
    default: return {u"Bereich"_s, u"Bereich"_s};
    }
}

int sortColumn(int column, QStringView mode) {
    if (column != Column::ColSprache1 && column != Column::ColSprache2)
        return column;
    const auto* found = std::find_if(std::begin(sortModes), std::end(sortModes),
                                     [mode](const SortMode& candidate) { return candidate.name == mode; });
    return found == std::end(sortModes) ? column : found->columns[column == Column::ColSprache1 ? 0 : 1];
}

QStringList newValues(const QStringList& before, const QStringList& values) {
    const QSet<QString> known(before.begin(), before.end());
    QStringList added;
    std::copy_if(values.begin(), values.end(), std::back_inserter(added),
                 [&known](const QString& value) { return !known.contains(value); });
    return added;
}

} // namespace lingomat
