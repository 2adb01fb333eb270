#pragma once

#include "ExpressionText.h"
#include "FormContext.h"
#include "KeyRecord.h"
#include "ListColumns.h"
#include "ListEditing.h"
#include "RowMark.h"

#include <QMainWindow>

#include <array>
#include <functional>
#include <optional>
#include <vector>

class QAction;
class QLabel;
class QLayout;
class QInputMethodEvent;
class QKeyEvent;
class QMenu;
class QProgressBar;
class QPushButton;

namespace dao {
class Recordset;
}

namespace lingomat {

class CellOverlay;
class FlexGrid;

/// Look up the packed attributes ("a;b;") of an entry by its ID.
struct EntryLookups {
    std::function<QString(const QString& id)> GetAllBereiche;
    std::function<QString(const QString& id)> GetAllGrammatikalisch;
    std::function<QString(const QString& id)> GetAllFunktional;
};

/// The Vocab List: the entries of the selection as one grid, one entry a row.
///
/// The grid is the one copy of the entries: other forms read its cells through the column numbers (names
/// like Liste::ColScore). An empty list has either no data row or one of height 0; count through
/// countRows(). The window lives as long as the program, closing it hides it.
class Liste final : public QMainWindow, public ListColumnNumbers {
    Q_OBJECT

public:
    explicit Liste(FormContext& context, QWidget* parent = nullptr);
    ~Liste() override;

    // What waits to be written to the database. Who drops it calls
    // forgetChanges() or sets the three numbers to 0.
    qint16 AnzahlGeaendert = 0; ///< changed entries
    qint16 AnzahlGeloescht = 0; ///< deleted entries
    qint16 AnzahlNeu = 0;       ///< rows with "*"
    [[nodiscard]] int pendingChanges() const { return AnzahlGeaendert + AnzahlGeloescht + AnzahlNeu; }
    void forgetChanges();

    int MarkierteZeile = 0; ///< row that carries the mark; 0: none

    [[nodiscard]] FlexGrid& MSFlexGrid1() { return *m_grid; }
    [[nodiscard]] const FlexGrid& MSFlexGrid1() const { return *m_grid; }
    [[nodiscard]] int countRows() const; ///< entries in the grid, the placeholder not counted

    /// Sets the grid up; to be called once, before the window is used. Reads the column options.
    void Form_Load();
    /// Runs by itself whenever the window becomes the active one.
    void Form_Activate();

    // Set-up and texts.
    void SetHeaders();
    void AdjustControls(); ///< places the controls round the grid
    void SetUserInterfaceProperties();
    void SetzeStatus();   ///< writes the title
    void ConditionToUI(); ///< brings title and commands in line with the grid

    // Columns.
    void SaveColWidths(); ///< keeps the widths at which hidden columns come back
    void HideColsAccordingToOptions();
    [[nodiscard]] bool ColIsHidden(int column) const; ///< whether a column may not be resized
    void SetColResize();                              ///< lets drag the border under the mouse, or not

    // Value lists. Without an open database nothing happens.
    void GetProperties();
    void AddStdToComboBoxes();

    // The mark of the current row.
    void SetzeMarke();
    void ResetMarke(); ///< takes the mark away; the current row is 0 then

    // Rows.
    void LoescheListe();       ///< empties the list down to the placeholder; nothing waits to be written then
    void initialisiereListe(); ///< empties the list down to the header, before a selection is loaded
    /// Writes one expression of the current record of RecordsetAuswahl, composed and in its four parts, into
    /// the current row. Language 1, any other number is language 2. Error 94 for a missing part.
    void SetzeAusdruckAusDBinGrid(int language);
    /// Writes the current record of RecordsetAuswahl into `row`, an empty one that was just appended; with
    /// `last` into the last row. A record with the ID of the row above is the same entry once more: the row
    /// goes and the result is false. The row becomes the current one. Errors leave it half filled.
    bool ZeileAusDatensatz(int row, bool last, const EntryLookups& lookups);

    /// Number of a cell in reading order.
    [[nodiscard]] qint16 Fgi(int row, int column) const;

    // Editing in the cells.
    int MehrfachStart = 0;       ///< row at which the last selection began
    int MehrfachEnde = -1;       ///< row at which it ended; -1: its rows have been changed already
    int LetzteSpalte = 0;        ///< column of the last click
    void SetMehrfachParameter(); ///< reads the selection into MehrfachStart and MehrfachEnde
    /// Text of the control that lies over the current cell; none where the cell is not being edited.
    [[nodiscard]] std::optional<QString> overlayText() const;
    /// Takes over what is being typed, as leaving the cell does: to be called first by every command that
    /// reads the grid or moves its current cell.
    void commitOverlay();
    /// Writes an expression, told by its parts, into the current row, in the language of the current column.
    void AusdruckDialogOK(const ExpressionParts& entered);

    // Sorting, by the current column. Afterwards no row is marked.
    void SortAccordingToCol(); ///< a language column opens a menu that sorts
    void SortByAll();
    void SortByPrefix();
    void SortByMain();
    void SortBySuffix();

    // The record of changes.
    /// Records the entry of the current row as changed. A new row is written whole anyway; an entry that is
    /// no longer in the database is told to the user and not recorded.
    void ZeileGeaendert();
    /// Records the rows that were selected together, but for the one where the edit began.
    void SetzeSelectedZeilenGeaendert();
    /// ID of a grid row, whose record is the current one of RecordsetVokabular then; -1 where the database
    /// has none. Error 6 for an ID above 32767.
    [[nodiscard]] qint16 RowPos_To_RecPos(int row);
    /// Whether the open editor of the current column holds another text than its cell.
    [[nodiscard]] bool CheckIfEntryChanged() const;
    void CheckIndices(); ///< takes deleted entries out of the changed ones

    // Commands.
    void Command1_Click();          ///< "Close": nothing is saved or lost
    void Command2_Click();          ///< "Apply": deletions, changes, new rows, in this order
    void Command3_Click();          ///< "New Row"
    void Command4_Click();          ///< "Delete"
    void Command5_Click();          ///< "OK"
    void Command6_Click();          ///< "Zeichen..."
    void Referenzen_Click();        ///< "Referenzen..."
    void mnSuchen_Click();          ///< "Find in List..."
    void Drucken_Click();           ///< "Drucken"
    void mnAnsichtOptionen_Click(); ///< "Options..." of the columns
    void mnOptionen_Click();        ///< "Options..."

Q_SIGNALS:
    void loadProgress(int value);   ///< how far Form_Load is, on the scale of the splash bar (0 to 100)
    void stateChanged();            ///< the state shared by all forms is another
    void rowsChanged();             ///< rows have come or gone: a training session has to start anew
    void referencesRequested();     ///< of the entry in the current row
    void printRequested();          ///< of the whole list
    void optionsRequested(int tab); ///< the options dialog is wanted; tab 0: the one that stands
    void specialCharactersRequested(QWidget& asker); ///< the pad of special characters is wanted
    /// The expression in the current cell is to be edited. `typed` goes behind its main part, `cell` is the
    /// place of the cell on the screen.
    void expressionEditorRequested(const ExpressionParts& parts, const QString& typed, const QRect& cell);
    /// A value list has grown; the kind is that of ValueLists.
    void valueEntered(const QString& text, const QString& kind);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWidgets();
    void buildMenus();
    void connectEvents();

    // Editing (ListeEdit.cpp).
    void buildOverlay();
    bool gridEvent(QEvent& event);
    void connectEditing();
    void MSFlexGrid1_MouseMove();
    void MSFlexGrid1_Click();
    /// `typed` is empty for a key that types nothing. Whether the key was used.
    bool MSFlexGrid1_KeyPress(int key, const QString& typed);
    void MSFlexGrid1_GotFocus();
    void MSFlexGrid1_LeaveCell();
    [[nodiscard]] bool cellCanBeEdited() const;
    [[nodiscard]] bool severalRowsSelected() const;
    void openEditor(const QString& typed);
    void MSFlexGridEdit(CellEditor overlay, const QString& typed);
    void editAttributes();
    [[nodiscard]] bool allRowsAreMeant();
    void spreadSelection(bool allRows);
    void recordChanges();
    void FlexGridDoCell();
    [[nodiscard]] QString MSFlexGrid_GotFocus();
    void writeSelection(const QString& text);
    void noteValue(const QString& text, const QString& kind);
    void announceNewValues(const QStringList& before, const QString& kind);
    void emergencyCommit();
    void fillPendingRows();

    // Its keys (ListeKeys.cpp).
    void MSFlexGrid1_KeyDown(const QKeyEvent& event);
    bool keyPressInGrid(const QKeyEvent& event);
    bool backspaceInGrid(const QKeyEvent& event);
    bool inputMethodInGrid(QInputMethodEvent& event);
    bool EditKeyCode(int key, Qt::KeyboardModifiers modifiers);
    bool MSFlexGridDoSonderzeichen(int key);
    bool MSFlexGrid_KeyPress_Standard(int key);
    void stepColumn(int step);
    void stepRow(int step);

    // The editor of expressions (ListeExpression.cpp).
    [[nodiscard]] int firstPartColumn() const;
    [[nodiscard]] ExpressionParts initialisiereAusdruckDialog() const;
    void MoveAusdruckDialog(const ExpressionParts& parts, const QString& typed);

    // Sorting (ListeSort.cpp).
    void buildSortMenu();
    void nameSortMenus();
    void SortWord(const QString& mode);
    void sortByMenu(int column, void (Liste::*sort)());
    void sortBy(int column);
    void headerClick(int column);
    void popUpAtHeader(QMenu& menu);

    // Commands.
    enum class Saving { Done, CleanUpFailed, Stopped };
    [[nodiscard]] QLayout* buildCommands(QWidget& body);
    void fillFileMenu(QMenu& menu);
    void fillViewMenu(QMenu& menu, QMenu& columns);
    void connectCommands();
    void addRow();
    void deleteRow();
    void clearOnlyRow();
    [[nodiscard]] qint16 newRows() const;
    [[nodiscard]] bool mayShowReferences();
    void saveChanges();
    [[nodiscard]] Saving saveRows();
    void showSaveProgress();
    void setSaveProgress(int value);
    void hideSaveProgress();
    void updateSelectionValid();
    void enableSaving(bool enabled);

    void mnAnsicht_Click(ListColumn column);
    void setFirstWidths();
    void clearValueList(const QString& box);
    void fillValueList(const QString& kind, dao::Recordset& table, const QString& field,
                       const QString& criterion);
    void writeText(int row, int column, const QString& field, int limit);
    void writeDate(int row, int displayColumn, int keyColumn, const QString& field);
    [[nodiscard]] RowMark& mark();

    static constexpr int KeptWidths = ColScore - ColSprache1 + 1;

    FormContext& m_context;
    FlexGrid* m_grid = nullptr;

    // Editing.
    CellOverlay* m_overlay = nullptr;
    bool CtrlGedrueckt = false; ///< the key that comes next pastes
    bool m_committing = false;  ///< also while the user is asked about it
    bool m_fillPending = false; ///< the other rows of the selection have not been asked about yet

    // Sorting.
    QMenu* m_wordSort = nullptr;
    QMenu* m_mnSpanisch = nullptr; ///< of the first language
    QMenu* m_mnDeutsch = nullptr;  ///< of the second language
    bool SortKlick = false;        ///< the click was one on a header and opens no editor
    bool m_sorted = false;         ///< and no row was marked since

    // Commands.
    QPushButton* m_command1 = nullptr;
    QPushButton* m_command2 = nullptr;
    QPushButton* m_command3 = nullptr;
    QPushButton* m_command4 = nullptr;
    QPushButton* m_command5 = nullptr;
    QPushButton* m_command6 = nullptr;
    QPushButton* m_referenzen = nullptr;
    QPushButton* m_drucken = nullptr;
    QAction* m_mnNeueZeile = nullptr;
    QAction* m_mnZeileLoeschen = nullptr;
    QAction* m_mnDrucken = nullptr;
    QAction* m_mnSpeichern = nullptr;
    QAction* m_mnSuchen = nullptr;
    QAction* m_mnSchliessen = nullptr;
    QAction* m_mnReferenzen = nullptr;
    QAction* m_mnSonderzeichen = nullptr;
    QAction* m_mnAnsichtOptionen = nullptr;
    QAction* m_mnOptionen = nullptr;
    QLabel* m_lblProgress = nullptr;
    QProgressBar* m_progressBar = nullptr;

    // The record of changes.
    KeyRecord GeaenderteZeilen{AnzahlGeaendert};
    KeyRecord GeloeschteZeilen{AnzahlGeloescht};
    std::vector<qint16> NeueZeilen; ///< never read: new rows are found by their "*"

    std::array<QAction*, ListColumnCount> m_columnEntries{};
    std::array<qint16, KeptWidths> SpaltenBreiten{};
    std::optional<RowMark> m_mark;
};

} // namespace lingomat
