#pragma once

#include <QStringList>
#include <QStringView>

namespace lingomat {

/// What edits the cells of a column of the list.
enum class CellEditor {
    None,       ///< nothing: the column cannot be edited
    WortartBox, ///< a combo box over the cell
    QuelleBox,  ///< the same
    txtEdit,    ///< a text box over the cell
    Expression, ///< the editor of expressions
    Attributes, ///< the dialog that assigns attributes
};

[[nodiscard]] CellEditor editorOf(int column);

/// Whether the editor lies over the cell.
[[nodiscard]] bool isOverlay(CellEditor editor);

/// Whether one edit in the column can change several selected rows.
[[nodiscard]] bool takesSeveralRows(int column);

/// How the attribute columns are called by others.
struct AttributeNames {
    QString modus; ///< of the dialog that assigns them
    QString kind;  ///< of their value list
};
[[nodiscard]] AttributeNames attributeNames(int column);

/// The column that an expression column is sorted by: "All", "Prefix", "Main" or "Suffix". Any other column,
/// and any other mode, is the column itself.
[[nodiscard]] int sortColumn(int column, QStringView mode);

/// `values` that `before` does not hold.
[[nodiscard]] QStringList newValues(const QStringList& before, const QStringList& values);

} // namespace lingomat
