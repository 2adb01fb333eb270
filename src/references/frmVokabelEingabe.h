#pragma once

#include "AusdruckForm.h"
#include "ExpressionText.h"
#include "FormContext.h"

#include <QDialog>

#include <array>
#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRect;

namespace lingomat {

class FlexGrid;
class FontHelp;

/// What the editor of an expression needs of the list.
struct EditedCell {
    const FlexGrid& grid;                 ///< its current cell is the one that is edited
    std::function<void()> Command2_Click; ///< saves everything that is pending
    std::function<void(const ExpressionParts& parts)> AusdruckDialogOK; ///< takes what was entered
};

/// Edits the expression of one language in one cell of the list: above its four parts, below, on demand, the
/// synonyms. These are stored at once, and Cancel does not undo that.
class frmVokabelEingabe final : public QDialog {
    Q_OBJECT

public:
    frmVokabelEingabe(FormContext& context, FontHelp& pad, EditedCell cell, QWidget* parent = nullptr);
    ~frmVokabelEingabe() override;

    QString VokabelID;             ///< ID of the entry; "*" for a new one
    QString SpracheNr;             ///< "1" or "2"
    bool SynonymeSichtbar = false; ///< the lower half is open
    qint16 VolleHoehe = 0;         ///< height with the lower half open, in pixels

    /// Shows the dialog modally at a cell (in screen coordinates) with these parts. `typed` goes behind the
    /// main part: the key that opened the editor, or what was pasted.
    void edit(const ExpressionParts& parts, const QString& typed, const QRect& cell);

    void initializeForm(); ///< empties the fields and closes the lower half
    /// Loads the synonyms of the entry in the current row, in the language of the current column. A new entry
    /// has to be saved first; the user is asked. False where there is nothing to load from.
    [[nodiscard]] bool InitSynonymeList();
    void ConditionToUI();
    void SetUserInterfaceProperties();
    void setVisible(bool visible) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWidgets();
    [[nodiscard]] QWidget* buildLowerHalf();
    [[nodiscard]] QPushButton* newButton(QWidget& parent, const QString& name,
                                         void (frmVokabelEingabe::*click)());
    void connectEvents();
    void cmdSynonyme_Click(); ///< "Edit Synonyms"
    void cmdAdd_Click();      ///< "Add..."
    void cmdChange_Click();   ///< "Change..."
    void cmdDelete_Click();   ///< "Delete"
    void cmdOK_Click();
    void cmdCancel_Click(); ///< "Cancel"
    void cmdFont_Click();   ///< "Special Characters..."
    bool KeyPress(int key);

    void openLowerHalf(bool open);
    void loadSynonyms();
    void clearLists();
    [[nodiscard]] bool askForSynonym(const ExpressionParts& start);
    bool store(qint16 key, const ExpressionParts& parts);
    /// Runs a step for the key of a synonym; false where it has none, and after an error.
    bool withKeyAt(int index, const std::function<bool(qint16 key)>& step);
    [[nodiscard]] ExpressionParts partsAt(int index) const;
    void setPartsAt(int index, const ExpressionParts& parts);
    /// Key of a synonym; error 6 for one beyond 16 bits. None: the row was never stored.
    [[nodiscard]] std::optional<qint16> keyAt(int index) const;
    void reportFailure();

    FormContext& m_context;
    FontHelp& m_pad;
    EditedCell m_cell;
    AusdruckForm m_synonymForm;
    std::array<QLineEdit*, 4> m_fields{}; ///< prefix, main, suffix, comment
    QPushButton* m_synonymsButton = nullptr;
    QPushButton* m_change = nullptr;
    QPushButton* m_delete = nullptr;
    QWidget* m_lowerHalf = nullptr;
    QLabel* m_synonymsLabel = nullptr;
    QListWidget* lstSynonyme = nullptr;
    // Item for item beside it. Not to be sorted.
    QListWidget* lstID = nullptr;
    std::array<QListWidget*, 4> m_partLists{}; ///< lstPrefix, lstMain, lstSuffix, lstKommentar
};

} // namespace lingomat
