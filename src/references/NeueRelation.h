#pragma once

#include "FormContext.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace lingomat {

class FlexGrid;
class Liste;
class Relationen;
class RowMark;

/// Creates references from the current entry to others, or changes the type of the one that is marked in
/// Relationen, whose StatusAnlegen tells which. Made anew for each use; it stays open after a store, so that
/// several references can be made one after the other.
///
/// What is stored as the type is the text itself, and with it its language.
class NeueRelation final : public QDialog {
    Q_OBJECT

public:
    enum Column : int { ColMarke, ColSprache1, ColSprache2, ColID, ColumnTotal };

    NeueRelation(FormContext& context, Relationen& references, const Liste& list, QWidget* parent = nullptr);
    ~NeueRelation() override;

    qint16 MarkierteZeile = -1;   ///< row that carries the mark; 0 or below: none
    qint16 VolleHoehe = 0;        ///< height of the form that creates, in pixels
    QString AlterTyp;             ///< of the reference to be changed, at first and after each store
    bool SortierungAktiv = false; ///< a click on a column head is being handled

    void SetAsCreate();
    void SetAsChange();
    /// Store what the form shows. False where nothing was stored; the user has been told why.
    bool CreateRelation();
    bool ChangeRelation();
    /// Whether a reference of that type stands between the two entries, in either direction; it is the
    /// current record then.
    [[nodiscard]] bool FindRelation(const QString& id1, const QString& id2, const QString& typ);
    void checkComboValue(); ///< enables the action button if there is something to store
    void InitialisiereComboxBox();
    void AddToCombo(const QString& text);
    void AddTypToCombo();
    void InitialisiereFlexGrid();
    void SortGrid();
    void SetzeMarke();
    void ResetMarke();
    void Set2ndVoc(); ///< shows the marked entry beside the current one
    void SetUserInterfaceProperties();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWidgets();
    void shareWidth();
    [[nodiscard]] QWidget* buildPicker();
    void connectEvents();
    void Form_Load();
    void Command1_Click(); ///< "Create" or "Change"
    void Command2_Click(); ///< "Close"
    void cmdSuchen_Click();
    void grid_SelChange();
    void grid_MouseDown(int column);
    void grid_MouseMove();

    void setMode(bool create);
    void store(bool create);
    [[nodiscard]] bool alreadyExists(const QString& other, const QString& type);
    void fillGrid();

    FormContext& m_context;
    Relationen& m_references;
    const Liste& m_list;
    bool m_creating = true;

    QLineEdit* m_text1 = nullptr; ///< the current entry
    QLineEdit* m_text2 = nullptr;
    QLineEdit* m_text3 = nullptr; ///< the other one
    QLineEdit* m_text4 = nullptr;
    QComboBox* m_type = nullptr;
    QLabel* m_instruction = nullptr;
    QPushButton* m_action = nullptr;
    QPushButton* m_search = nullptr;
    QWidget* m_picker = nullptr; ///< the grid and the search
    FlexGrid* m_grid = nullptr;
    std::unique_ptr<RowMark> m_mark;
};

} // namespace lingomat
