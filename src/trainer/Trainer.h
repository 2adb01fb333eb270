#pragma once

#include "FormContext.h"
#include "IntegerArray.h"
#include "Recordset.h"
#include "TrainerToolbar.h"

#include <QMainWindow>

#include <array>
#include <functional>
#include <optional>

class QAction;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;

namespace lingomat {

class ConfirmDlg;
class ConfirmForm;
class FlexGrid;
class InputFenster;
class Liste;
class SynonymButtons;
class TrainerPanels;
class VerdictBox;
struct ExpressionParts;

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

    // Judging.
    static constexpr int ScoreRichtig = 0; ///< verdicts, for ChangeErrorCount
    static constexpr int ScoreFalsch = 1;
    QString LetzteEingabe; ///< the last answer typed, cleaned up
    /// Per language, the criterion by which the synonyms of the entry on the screen are walked through;
    /// empty: no walk is under way.
    std::array<QString, 2> SynonymFilter;

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
    void Suche_Click();    ///< "Find": what the last answer could have meant

    void initialisiereSchleife(); ///< opens every position of the loop
    /// Moves Position on to an open entry of the loop. False: no entry is open.
    bool SetIndexAccordingToSchleife();
    /// Row of the list that position `index` of the shuffled order stands for. Error 9 where there is none.
    [[nodiscard]] int returnSequenz(int index) const;
    /// Row of the list at the present position; in random order, the row drawn last.
    [[nodiscard]] int AktuelleZeile() const;
    /// Goes to the entry in the session's recordset of all entries. False: there is no such entry.
    bool PositioniereRecord(const QString& id);

    void DoFehlerhandlingMitSchreiben();  ///< asks for a typed answer and judges it
    void DoFehlerhandlingOhneSchreiben(); ///< asks whether the answer was known
    /// Moves the score of the present entry by a verdict, in the list and in the database at once.
    void ChangeErrorCount(int verdict);
    /// Whether the input equals a synonym of the present entry in the language asked for.
    [[nodiscard]] bool IsSynonym(const QString& input);
    /// Type of the reference to an entry of similar or different meaning that the input equals; empty: none.
    [[nodiscard]] QString CheckForSpecialRelation(const QString& input);
    /// Begins a walk through the synonyms of the entry on the screen in language 1 or 2.
    void SetzeSynonymFilter(int language);
    enum class SynonymStep { Next, Previous };
    /// Shows another synonym of the expression in language 1 or 2, or behind the last one its own text.
    void ZeigeSynonym(SynonymStep step, int language);

    /// Shows a row of the list, with the solution where ZeigeLoesung is 1; 0 empties the display.
    void ZeigeVokabel(int row);
    void RowPositionToUI(); ///< the commands that go back, by the present position
    void OptionsToUI();     ///< brings commands, menus and captions in line with the options
    void InitStatusBar();
    void ClearDetails();       ///< empties the panels
    void InvertVokabelnGrid(); ///< swaps question and solution, for a change of the language on top
    void SetUserInterfaceProperties();

Q_SIGNALS:
    void loadProgress(int value); ///< how far Form_Load is, on the scale of the splash bar (0 to 100)
    void specialCharactersRequested(QWidget& asker); ///< the pad of special characters is wanted
    void optionsRequested(int tab); ///< the options dialog is wanted, with that tab (from 1) on top

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
    [[nodiscard]] QAction* newChoice(QMenu& menu, QLatin1StringView name);
    void buildDialogs();
    void buildStatusBar();
    void connectEvents();
    void connectPanels();

    // VokabelnGrid: fonts and sizes follow the form's font and the room there is.
    void buildVokabelnGrid();
    void fitToFont();
    void fitVokabelnGrid();
    void fitExpression(GridRow row);
    void setExpression(GridRow row, const QString& text);
    void followDraggedBorder();
    void placeOverGrid(); ///< the synonym buttons and the verdict, in the rows that they belong to
    [[nodiscard]] QRect expressionLine(GridRow row) const;
    [[nodiscard]] int sharedHeight() const; ///< room of question and solution together

    // Sequence.
    void shuffle();
    [[nodiscard]] qint16 randomRow();
    void revealSolution();
    void askNext();
    [[nodiscard]] bool moveToOpenEntry();
    void moveTo(int position);
    void showMovedTo();
    void showCurrentEntry(); ///< the one at Position
    [[nodiscard]] int listRows() const;
    void clearDisplay();
    void forgetEntry(); ///< takes the entry off the screen; the progress stays
    void showEntry(int row);
    void showProgress();
    [[nodiscard]] bool canJudge() const; ///< whether the entry at Position is the one on the screen
    void sayEndOfSequence();
    void attempt(const std::function<void()>& step); ///< under the error trap

    // Answers.
    [[nodiscard]] int targetLanguage() const; ///< the one asked for
    [[nodiscard]] QString currentKey() const; ///< of the list's current row
    [[nodiscard]] ExpressionParts storedParts(int language) const;
    void askForAnswer();
    [[nodiscard]] bool isAnswerRight(const QString& answer);
    [[nodiscard]] bool isExact(const QString& answer);
    [[nodiscard]] bool isKnownSynonym(const QString& input);
    [[nodiscard]] QString knownRelation(const QString& input);
    [[nodiscard]] bool regardAsCorrect(const QString& question);
    [[nodiscard]] bool isErrorWaived();
    [[nodiscard]] bool hasSynonym(const QString& criterion, const QString& input);
    [[nodiscard]] bool meansOtherEntry(const QString& key, const QString& input);
    void acceptAnswer();
    void rejectAnswer();
    void clearVerdict();

    // Synonyms.
    [[nodiscard]] static size_t languageIndex(int language) { return language == 1 ? 0 : 1; }
    [[nodiscard]] int languageOfRow(GridRow row) const;
    void connectSynonyms(const SynonymButtons& buttons, GridRow row);
    [[nodiscard]] bool findSynonym(SynonymStep step, int language);
    void endSynonyms();             ///< in both languages
    void endSynonyms(int language); ///< the next press starts again
    void showSynonymButtons(bool visible);

    // Search.
    struct Meanings;
    void findMeanings(Meanings& meanings);
    void CompareAndSetInGrid(Meanings& meanings);
    void showMeanings(Meanings& meanings);

    // Panels.
    void showDetails(int row);
    void loadReferences();
    void showPanel(int tab);
    void choosePanel(int tab);
    void menDetailsjanein_Click();
    void checkPanel(int tab);

    // Options.
    void Toolbar1_ButtonClick(TrainerToolbar::Button button, bool pressed);
    void chooseOrder(bool Trainer::*order);
    void chooseLanguage(bool Trainer::*language);
    void chooseSelfTest(bool on);
    void chooseWriting(bool on);

    /// The entry on the screen: its key and its own texts. Empty while nothing is shown.
    struct ShownEntry {
        bool isListed = false; ///< false: nothing is shown
        QString key;
        std::array<QString, 2> expressions;
    };

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
    QAction* m_orderEntry = nullptr; ///< menMain
    QAction* m_testEntry = nullptr;  ///< menTestoptionen
    Command m_step;
    Command m_back;
    Command m_forward;
    Command m_first;
    Command m_last;
    std::array<QLabel*, PanelCount> m_statusPanels{};

    TrainerToolbar* m_toolbar = nullptr;
    VerdictBox* m_right = nullptr; ///< Richtig
    VerdictBox* m_wrong = nullptr; ///< NichtWort
    QPushButton* m_search = nullptr;
    QAction* m_searchEntry = nullptr;
    SynonymButtons* m_questionSynonyms = nullptr; ///< UpDown1
    SynonymButtons* m_solutionSynonyms = nullptr; ///< UpDown2
    TrainerPanels* m_panels = nullptr;
    std::array<QAction*, 3> m_panelEntries{};
    QAction* m_detailsEntry = nullptr;
    int VolleBreite = 0;   ///< of the window with its panels, in pixels
    bool RefOffen = false; ///< the references are the panel on top

    InputFenster* m_input = nullptr;
    ConfirmForm* m_confirm = nullptr;
    ConfirmDlg* m_confirmKnown = nullptr;
    ShownEntry m_shown;
    /// Where the walk through the synonyms stands, per language. Other searches move the recordset on.
    std::array<std::optional<dao::Recordset::BookmarkType>, 2> m_synonymPlaces;
};

} // namespace lingomat
