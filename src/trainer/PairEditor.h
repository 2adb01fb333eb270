#pragma once

#include "RowMark.h"

#include <QGroupBox>
#include <QStringList>

class QLineEdit;
class QPushButton;

namespace lingomat {

class FlexGrid;
class Prompts;

/// The list of character pairs that count as equal, with the two boxes in which a pair is entered.
///
/// The grid has a row a pair: the mark of the selected one, the left character, a joining word, the right
/// character. An empty list is one row of height 0.
class PairEditor final : public QGroupBox {
    Q_OBJECT

public:
    PairEditor(Prompts& prompts, QWidget* parent);

    /// Empties list and boxes.
    void clear();
    /// Enters a pair and presses "Add".
    void enter(const QString& left, const QString& right);
    /// The two characters of each row, joined; the row of an empty list gives an empty text.
    [[nodiscard]] QStringList pairs() const;

    void SetUserInterfaceProperties();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum Column { MarkColumn, LeftColumn, WordColumn, RightColumn, ColumnCount };

    void buildWidgets();
    [[nodiscard]] QLineEdit* newBox(const QString& name);
    [[nodiscard]] QPushButton* newButton(const QString& name, void (PairEditor::*click)());
    void Add_Click();
    void Remove_Click();
    void MSFlexGrid1_Click();
    void limitToOneCharacter(QLineEdit& box);
    void select(int row);
    void setButtons();
    void fitColumns();
    void hideLastRow();
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] bool hasPair(const QString& left, const QString& right) const;

    static constexpr int NoRow = -1;

    Prompts& m_prompts;
    FlexGrid* m_grid = nullptr;
    QLineEdit* m_text1 = nullptr;
    QLineEdit* m_text2 = nullptr;
    QPushButton* m_add = nullptr;
    QPushButton* m_remove = nullptr;
    RowMark m_mark;
    int m_selected = NoRow;
};

} // namespace lingomat
