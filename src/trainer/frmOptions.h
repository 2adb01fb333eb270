#pragma once

#include "OptionRules.h"

#include <QDialog>

#include <array>
#include <functional>

class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QTabBar;

namespace lingomat {

class Liste;
class PairEditor;
class Trainer;
struct FormContext;

/// The options: those of the Trainer, the pairs of characters that count as equal, the columns of the list.
///
/// The dialog is filled with what is in force whenever it opens. Nothing is taken over before "Apply" or
/// "OK"; the Trainer's options then last for the run, pairs and columns are kept in the settings.
class frmOptions final : public QDialog {
    Q_OBJECT

public:
    frmOptions(FormContext& context, Trainer& trainer, Liste& liste, QWidget* parent = nullptr);
    ~frmOptions() override;

    static constexpr int TabOfOrder = 1;
    static constexpr int TabOfTest = 2;
    static constexpr int TabOfPairs = 3;
    static constexpr int TabOfColumns = 4;

    void setTab(int number); ///< from 1; any other number leaves the tab that stands

    void GetOptions(); ///< from the Trainer into the controls
    /// From the controls into the Trainer; also applies and saves the columns.
    void SetOptions();
    void SetListColVisibility();     ///< the stored columns into the check boxes
    void SaveColsSettings();         ///< from the check boxes into section "List"
    void PrepareExceptionsOptions(); ///< from the pairs in force into the grid
    void SetExceptions();            ///< from the grid into section "Exceptions"
    void SetUserInterfaceProperties();

    void cmdApply_Click();  ///< "Apply"; restarts the session in any case
    void cmdOK_Click();     ///< "OK"
    void cmdCancel_Click(); ///< "Cancel"

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The controls that stand for a member of the Trainer.
    enum Option {
        Sequential,
        Shuffle,
        Random,
        Language1First,
        Language2First,
        SelfTest,
        Loop,
        Write,
        ConfirmError,
        MainOnly,
        OptionCount
    };
    static constexpr int TabCount = 4;
    static constexpr int ColumnCount = 10;

    void Form_Activate();
    void centre();

    // Layout.
    void buildWidgets();
    void buildOrderTab(QBoxLayout& column);
    void buildTestTab(QBoxLayout& column);
    void buildPairsTab(QBoxLayout& column);
    void buildColumnsTab(QBoxLayout& column);
    [[nodiscard]] QBoxLayout* newTab(int number);
    void addOption(QBoxLayout& frame, Option option);
    [[nodiscard]] QScrollArea* newExplanation(const QString& name);
    [[nodiscard]] QPushButton* newButton(const QString& name, void (frmOptions::*click)());
    void takeFirstSize(); ///< once the texts are known
    void connectOptions();
    void selectNextTab(int step);

    // Texts.
    void nameLanguages();
    void explain(Option option);
    [[nodiscard]] QString explanation(Option option) const;

    // Exclusions.
    [[nodiscard]] OptionChoices choices() const;
    void showChoices(const OptionChoices& choices);
    void settle(ChangedOption changed);
    void say(LoopNote note);

    void attempt(const std::function<void()>& step); ///< under the error trap

    FormContext& m_context;
    Trainer& m_trainer;
    Liste& m_liste;

    QTabBar* m_tabs = nullptr;
    QStackedWidget* m_panels = nullptr;
    std::array<QAbstractButton*, OptionCount> m_options{};
    QLabel* m_orderExplanation = nullptr; ///< Erklaerung_Reihenfolge
    QLabel* m_testExplanation = nullptr;  ///< KommentarLabel
    PairEditor* m_pairs = nullptr;
    std::array<QCheckBox*, ColumnCount> m_columns{};
    QPushButton* m_ok = nullptr;
    bool m_isSetting = false; ///< the controls are being set by the program
};

} // namespace lingomat
