#pragma once

#include "ListEditing.h"

#include <QObject>

#include <functional>

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QWidget;

namespace lingomat {

class FlexGrid;
class Prompts;
class ValueLists;

/// The controls that lie over the current cell of a grid while it is edited: WortartBox, QuelleBox and
/// txtEdit. At most one is to be seen, and it stands exactly over the cell, as far as the cell is in view.
class CellOverlay final : public QObject {
    Q_OBJECT

public:
    /// `parent` is the widget that the grid stands in.
    CellOverlay(FlexGrid& grid, ValueLists& values, Prompts& prompts, QWidget& parent);

    /// Uses a key that was pressed in a control, with its modifiers; false for one that is the control's own.
    std::function<bool(int key, Qt::KeyboardModifiers modifiers)> onKey;

    /// Shows the control over the current cell with the cell's text and what was typed, the caret behind it,
    /// and gives it the focus.
    void open(CellEditor editor, const QString& cell, const QString& typed);
    void hide();

    /// What is open; None: nothing is.
    [[nodiscard]] CellEditor openEditor() const { return m_open; }
    /// What stands in the open control. Several lines, pasted into it, are one.
    [[nodiscard]] QString text() const;
    /// The field that takes the keys. Only while a control is open.
    [[nodiscard]] QLineEdit& field() const;
    /// Empties all controls.
    void clear();
    /// Puts the open control over its cell again, after something has moved.
    void place();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QComboBox* newBox(const QString& name, const QString& kind, int size, QWidget& parent);
    void watch(QWidget& control);
    [[nodiscard]] QWidget* control(CellEditor editor) const;
    [[nodiscard]] bool keyDown(const QKeyEvent& event) const;

    FlexGrid& m_grid;
    ValueLists& m_values;
    Prompts& m_prompts;
    QComboBox* m_wortartBox = nullptr;
    QComboBox* m_quelleBox = nullptr;
    QLineEdit* m_txtEdit = nullptr;
    CellEditor m_open = CellEditor::None;
    QString m_cell; ///< text that the cell had
};

} // namespace lingomat
