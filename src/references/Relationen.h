#pragma once

#include "FormContext.h"

#include <QDialog>

#include <memory>

class QLabel;
class QPushButton;

namespace lingomat {

class FlexGrid;
class Liste;
class RowMark;

/// The references of the entry in the current row of the list, seen from either end.
///
/// Each change is written to the database at once; there is no cancel. Form_Load comes before showing, which
/// showReferences() sees to.
class Relationen final : public QDialog {
    Q_OBJECT

public:
    enum Column : int { ColMarke, ColTyp, ColSprache1, ColSprache2, ColID, ColSpare, ColumnTotal };

    Relationen(FormContext& context, const Liste& list, QWidget* parent = nullptr);
    ~Relationen() override;

    bool StatusAnlegen = true;    ///< whether NeueRelation is to create a reference, or to change one
    qint16 MarkierteZeile = -1;   ///< row that carries the mark; 0 or below: none
    qint16 AnzahlZeilen = 0;      ///< references in the grid
    qint16 MinZeilen = 0;         ///< rows of the grid at the start, the head included
    bool SortierungAktiv = false; ///< a click on a column head is being handled

    [[nodiscard]] const FlexGrid& MSFlexGrid1() const { return *m_grid; }
    [[nodiscard]] QString cell(Column column) const; ///< of the marked row
    void setMarkedType(const QString& type);
    /// ID of the entry itself; "*" for one that is not in the database yet.
    [[nodiscard]] QString ownID() const;

    /// False where there is nothing to show: the user has been told why.
    [[nodiscard]] bool Form_Load();
    /// Loads the grid. False for an entry that is not in the database yet, and after an error.
    bool AktualisiereListe();
    /// Adds one row. For an entry that does not exist there is a message instead.
    void AddOneRow(const QString& id, const QString& typ);
    void LeereZeilenNachHinten(); ///< moves empty rows to the end
    void ExtendRow(); ///< makes the row of the newest reference the current one, adding it if need be
    /// Deletes one record. False where there was none, and after an error; the user has been told.
    bool DeleteOneRow(const QString& id1, const QString& id2, const QString& typ);
    void MakeStdNumRows(); ///< fills the grid up to its first height
    void ResetMarke();     ///< takes the mark away
    void SetUserInterfaceProperties();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildWidgets();
    void connectEvents();
    void setColumns();
    void shareWidth();
    void OK_Click();
    void Add_Click();    ///< "Add..."
    void Change_Click(); ///< "Change..."
    void Delete_Click(); ///< "Delete"
    void grid_SelChange();
    void grid_MouseDown(int column);
    void grid_MouseMove();

    void showNewReference();
    void enableRowCommands(bool enabled);
    void critical(const QString& german, const QString& english);
    [[nodiscard]] bool rowIsEmpty(int row) const;

    FormContext& m_context;
    const Liste& m_list;
    FlexGrid* m_grid = nullptr;
    std::unique_ptr<RowMark> m_mark;
    QLabel* m_label2 = nullptr;
    QLabel* m_label3 = nullptr;
    QPushButton* m_change = nullptr;
    QPushButton* m_delete = nullptr;
};

/// Shows the references of the list's current entry, modally.
void showReferences(FormContext& context, const Liste& list, QWidget* parent);

} // namespace lingomat
