#pragma once

#include "FormContext.h"

#include <QStringList>
#include <QWidget>

class QComboBox;
class QFrame;
class QPushButton;
class QStackedWidget;

namespace lingomat {

class FlexGrid;

/// The Trainer's third panel: the entries to which the present one refers, one at a time, in groups by the
/// type of the reference. Both ends of a reference count.
class TrainerReferences final : public QWidget {
    Q_OBJECT

public:
    TrainerReferences(FormContext& context, QWidget* parent);

    /// Shows the references of the entry with that key. Errors are reported.
    void load(const QString& key);
    /// The language that stands first in the display of an entry.
    void setLanguage1First(bool first) { m_language1First = first; }
    void ClearDetails(); ///< shows that there are none, and forgets what was there
    /// Shows the note in place of the references.
    void ClearRelationGrid();
    void InvertRelationGrid(); ///< swaps the two expressions

    // The references of the entry, counted from 1.
    qint16 RefAnzahl = 0;    ///< how many
    qint16 RefIndex = 0;     ///< the one on display
    qint16 RefNummer = 0;    ///< its place within its type
    qint16 RefTypAnzahl = 0; ///< references of its type
    QStringList RefVokabeln; ///< keys of the entries at the other ends
    QStringList RefTypen;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum GridRow { TypeRow, FirstRow, SecondRow, GridRowCount };

    void buildWidgets();
    void InitialisiereNoReferences(); ///< puts the note where the grid stands
    void SetRelationGridSettings();
    void fitRelationGrid();
    void setText(GridRow row, const QString& text);
    [[nodiscard]] bool GetRelations(const QString& key);
    void AddRelTypToCombo(const QString& type);
    void refSort();
    [[nodiscard]] bool getIndexOfNthEntryForCurrent(int n);
    void showReferences();
    void ReferenzenCombo_Click();
    void returnToFirstOfType();
    void DisplayRelation(int index);
    void step(int direction);
    void enableSteps();
    void reportInternalError();

    FormContext& m_context;
    QComboBox* m_combo = nullptr;
    QPushButton* m_back = nullptr;
    QPushButton* m_forward = nullptr;
    QStackedWidget* m_pages = nullptr;
    QFrame* m_note = nullptr;
    FlexGrid* m_grid = nullptr;
    bool m_language1First = true;
    bool RefInArbeit = false; ///< the combo is being set by the program
};

} // namespace lingomat
