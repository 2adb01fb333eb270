#pragma once

#include "StoredList.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>

namespace lingomat {

/// A list on the screen that a person edits by keys and mouse. Five entries in a file; what it wants of
/// others is noted.
struct EditBench : StoredList {
    explicit EditBench(const QString& language = QStringLiteral("En"));

    // The person.
    void go(int row, int column); ///< by code; no row but this one is selected then
    void click(int row, int column, Qt::KeyboardModifiers modifiers = {});
    /// Selects the rows of a column with the mouse, from one to the other.
    void drag(int from, int to, int column);
    void type(const QString& text); ///< into whatever has the focus
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void paste(const QString& text);
    void wheel(QWidget& over, int notches = -1);
    void deactivate();
    void activate();

    // What the person sees.
    [[nodiscard]] QComboBox& wortartBox() { return child<QComboBox>(list, "WortartBox"); }
    [[nodiscard]] QComboBox& quelleBox() { return child<QComboBox>(list, "QuelleBox"); }
    [[nodiscard]] QLineEdit& txtEdit() { return child<QLineEdit>(list, "txtEdit"); }
    /// The overlay that is to be seen; none: null. More than one fails the test.
    [[nodiscard]] QWidget* overlay();
    [[nodiscard]] QString overlayText();
    /// Place of the current cell, as far as it is in view, and of the overlay, both in the window.
    [[nodiscard]] QRect cellPlace();
    [[nodiscard]] QRect overlayPlace();
    [[nodiscard]] QStringList column(int column); ///< texts of all data rows
    [[nodiscard]] int beeps() { return context.prompts.beeps(); }
    void expectQuestion(bool yes);
    /// Saves, and tells whose rows were written: entries that the save has dated.
    [[nodiscard]] QStringList savedRows();

    struct EditorCall {
        ExpressionParts parts;
        QString typed;
        QRect cell;
    };
    QList<EditorCall> editors; ///< of expressions, that were asked for
    QStringList values;        ///< "kind: text" for each new value that was told
};

} // namespace lingomat
