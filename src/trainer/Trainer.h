#pragma once

#include "FormContext.h"
#include "IntegerArray.h"

#include <QMainWindow>

#include <array>
#include <functional>

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;

namespace lingomat {

class FlexGrid;
class Liste;

/// The Trainer: walks the rows of the list's grid, question by question.
///
/// It has no entries of its own. A session is the rows that the grid had at the last restart, addressed by
/// number: whoever changes the rows restarts it (Command6_Click). The window lives as long as the program;
/// closing it hides it and leaves the session as it stands. The options last for the run.
class Trainer final : public QMainWindow {
    Q_OBJECT

public:
    Trainer(FormContext& context, Liste& liste, QWidget* parent = nullptr);
    ~Trainer() override;

    // Options. Exactly one of the orders and one of the languages is set.
    bool Reihenfolge_sequentiell = true; ///< the list's order
    bool Reihenfolge_shuffle = false;    ///< one shuffled permutation
    bool Reihenfolge_random = false;     ///< every step draws a row
    bool Lang1Zuerst = true;             ///< asked from language 1 to language 2
    bool Lang2Zuerst = false;
    bool Selbsttest = false; ///< the answer is judged; no moving by hand
    bool Schleife = false;   ///< repeat until every entry was answered right; acts with Selbsttest only
    bool Schreiben = false;  ///< the answer is typed
    bool FehlerBestaetigen = false;
    bool MainOnly = false;

    // The session.
    qint16 AnzahlEintraege = 0;  ///< its entries
    qint16 Position = 0;         ///< place in the walk; 0: nothing was shown yet
    qint16 ZeigeLoesung = 0;     ///< 1: the next rendering shows the solution, 0: it blanks it
    qint16 AnzahlRichtig = 0;    ///< entries answered right
    qint16 RundenPosition = 0;   ///< entries visited in the present round of the loop
    IntegerArray Sequenz;        ///< shuffled order: position to row
    IntegerArray SchleifeStatus; ///< per position: LoopEntryDone once answered right

    /// Sets the form up and begins a session; to be called once, before the window is used.
    void Form_Load();
    /// Runs by itself whenever the window becomes the active one.
    void Form_Activate();

    // Commands. Each reports its own errors.
    void Command6_Click(); ///< "Restart"
    void Command3_Click(); ///< one step: to the solution, or to the next question
    void Command2_Click(); ///< one entry forward
    void Command1_Click(); ///< one entry back
    void back_Click();     ///< to the first entry
    void ToEnd_Click();    ///< to the last entry
    void Command4_Click(); ///< "Close"

    void initialisiereSchleife(); ///< opens every position of the loop
    /// Moves Position on to an open entry of the loop. False: no entry is open.
    bool SetIndexAccordingToSchleife();
    /// Row of the list that position `index` of the shuffled order stands for. Error 9 where there is none.
    [[nodiscard]] int returnSequenz(int index) const;
    /// Row of the list at the present position; in random order, the row drawn last.
    [[nodiscard]] int AktuelleZeile() const;
    /// Goes to the entry in the session's recordset of all entries. False: there is no such entry.
    bool PositioniereRecord(const QString& id);

    /// Shows a row of the list, with the solution where ZeigeLoesung is 1; 0 empties the display.
    void ZeigeVokabel(int row);
    void RowPositionToUI(); ///< the commands that go back, by the present position
    void OptionsToUI();     ///< brings commands, menus and captions in line with the options
    void InitStatusBar();
    void SetUserInterfaceProperties();

Q_SIGNALS:
    void loadProgress(int value); ///< how far Form_Load is, on the scale of the splash bar (0 to 100)

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum Panel { PanelEntriesLabel, PanelEntries, PanelPositionLabel, PanelPosition, PanelCount };
    /// Rows of VokabelnGrid.
    enum GridRow { TopLanguageRow, QuestionRow, OtherLanguageRow, SolutionRow, GridRowCount };

    /// A button and the menu entry that does the same.
    struct Command {
        QPushButton* button = nullptr;
        QAction* entry = nullptr;

        void setEnabled(bool enabled) const;
    };

    // Layout.
    void buildWidgets();
    [[nodiscard]] QPushButton* newButton(QLatin1StringView name, const QIcon& icon);
    void buildMenus();
    [[nodiscard]] QAction* newEntry(QMenu& menu, QLatin1StringView name, const QKeySequence& key);
    [[nodiscard]] QAction* newChoice(QMenu& menu, QActionGroup& group, QLatin1StringView name);
    void buildStatusBar();
    void connectEvents();

    // VokabelnGrid: fonts and sizes follow the form's font and the room there is.
    void buildVokabelnGrid();
    void fitToFont();
    void fitVokabelnGrid();
    void fitExpression(GridRow row);
    void setExpression(GridRow row, const QString& text);
    void followDraggedBorder();
    [[nodiscard]] int sharedHeight() const; ///< room of question and solution together

    // Sequence.
    void shuffle();
    [[nodiscard]] qint16 randomRow();
    void revealSolution();
    void askNext();
    [[nodiscard]] bool moveToOpenEntry();
    void moveTo(int position);
    void showMovedTo();
    void clearDisplay();
    void showEntry(int row);
    void sayEndOfSequence();
    void attempt(const std::function<void()>& step); ///< under the error trap

    // Options.
    void chooseOrder(bool Trainer::*order);
    void chooseLanguage(bool Trainer::*language);
    void InvertVokabelnGrid();

    FormContext& m_context;
    Liste& m_liste;

    FlexGrid* m_grid = nullptr; ///< VokabelnGrid
    int m_captionHeight = 0;    ///< of the rows with the languages
    int m_questionHeight = 0;
    double m_questionShare = 0.5; ///< of the room that question and solution share
    QProgressBar* m_progressBar = nullptr;
    QPushButton* m_restart = nullptr;
    QPushButton* m_close = nullptr;
    QAction* m_restartEntry = nullptr;
    QAction* m_closeEntry = nullptr;
    Command m_step;
    Command m_back;
    Command m_forward;
    Command m_first;
    Command m_last;
    std::array<QLabel*, PanelCount> m_panels{};
    QAction* m_sequential = nullptr;
    QAction* m_shuffled = nullptr;
    QAction* m_random = nullptr;
    QAction* m_language1First = nullptr;
    QAction* m_language2First = nullptr;
};

} // namespace lingomat
