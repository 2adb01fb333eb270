#pragma once

#include <QDialog>

#include <functional>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace lingomat {

class FlexGrid;
class Prompts;
class ValueLists;

/// The cells that attributes are assigned to: the grid's current one, and those of the same column in the
/// other rows of the selection.
struct AttributeCells {
    FlexGrid& grid;
    std::function<void()> ZeileGeaendert; ///< records the current row as changed, before its cell is written
    int MehrfachStart = 0;                ///< row at which the selection began
    int MehrfachEnde = 0;                 ///< row at which it ended; below 0: none is pending
};

/// Assigns areas, grammatical or functional attributes to the current cell, and to those of the other
/// selected rows if the user wants that. Made anew for each use, and modal; Modus is to be set before it is
/// shown.
///
/// A new value that was added is known to the value lists at once, also when the dialog is cancelled then.
class AddListBox final : public QDialog {
    Q_OBJECT

public:
    AddListBox(Prompts& prompts, ValueLists& values, AttributeCells cells, QWidget* parent = nullptr);

    QString Modus;    ///< "Bereich", "GrammatikalischeAttribute" or "FunktionaleAttribute"
    QString Ergebnis; ///< what OK made of the assigned values: each followed by ";"

    void SetUserInterfaceProperties();

Q_SIGNALS:
    void specialCharactersRequested(QWidget& asker); ///< the pad of special characters is wanted

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Mode;
    [[nodiscard]] const Mode& mode() const;

    void buildWidgets();
    void connectEvents();
    void Form_Load();
    void LbAvailable_Click();
    void LbSelected_Click();
    void txtSelected_Change();
    void Add_Click();    ///< "Add >>"
    void Remove_Click(); ///< "<< Remove"
    void OK_Click();
    void cmClose_Click(); ///< "Cancel"
    void cmdFont_Click(); ///< "Special Characters"

    void assign(const QString& value);
    [[nodiscard]] bool isAssigned(const QString& value) const;
    void offer(const QString& value);
    void enableAdd(bool enabled);
    void updateScrollExtents();
    void writeCell();
    void DoSelectedRows();

    Prompts& m_prompts;
    ValueLists& m_values;
    AttributeCells m_cells;
    QListWidget* LbAvailable = nullptr;
    QListWidget* LbSelected = nullptr;
    QLineEdit* txtSelected = nullptr;
    QPushButton* Add = nullptr;
    QPushButton* Remove = nullptr;
    QPushButton* OK = nullptr;
};

} // namespace lingomat
