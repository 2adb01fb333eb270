#pragma once

#include "CQuery.h"
#include "FormContext.h"
#include "Liste.h"
#include "clsCursor.h"
#include "clsDateEinsteller.h"

#include <QMainWindow>

#include <array>
#include <memory>

class QAction;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;
class QTabBar;

namespace lingomat {

class CSelection;
class DateFilter;
class ListPairFrame;
class ScoreFilter;
class Trainer;
struct ListPair;
struct SelectionFilters;

/// The selection: filters in, the entries that meet them into the Vocab List and on to the Trainer.
///
/// A run replaces RecordsetAuswahl; there is one selection at a time. Of every pair of lists the left one
/// holds what can be chosen, the right one what was chosen. Closing the window hides it, filters and all.
/// The filters can be kept as a lesson; recalling one fills the window and runs nothing.
class Form2 final : public QMainWindow {
    Q_OBJECT

public:
    Form2(FormContext& context, Liste& liste, Trainer& trainer, QWidget* parent = nullptr);
    ~Form2() override;

    /// A filter value changed since the last run. The four list buttons leave it alone.
    bool AuswahlGeaendert = false;

    /// Fills the window; to be called once, before it is used.
    void Form_Load();
    /// Every filter back to its default, bounds of the dates read anew. For when another database was opened.
    void initialisiere();
    void SetUserInterfaceProperties();
    void InitialisiereAuswahlBox(); ///< empties cmbName and offers the lessons of the open database

    /// Empties all twelve lists and offers anew what the value lists and the database hold.
    void InitialisiereSelectionboxes();
    void SetScrollbarsToAllSelectionBoxes();
    void HidePictureBoxes();   ///< hides the seven pages
    void HideSelectionboxes(); ///< hides all lists and what belongs to the references alone
    /// Shows one pair of lists: "Quelle", "Bereich", "Wortart", "Grammatikalisch", "Funktional",
    /// "Referenzen".
    void PositioniereListboxes(const QString& kind);
    /// Offers a value that was just stored, without looking whether the list has it. The kinds are those of
    /// PositioniereListboxes, but "Funktionales"; any other does nothing.
    void NeuerAuswahlwert(const QString& text, const QString& kind);

    void SetTabToStandard(); ///< four tabs
    void SetTabToAdvanced(); ///< nine tabs; the five that are added have German captions

    void SetzeEingabeDatum();    ///< date of entry: the whole range of the database
    void SetzeAenderungsDatum(); ///< date of change: the whole range of the database
    [[nodiscard]] const clsDateEinsteller& EingabeEinsteller() const { return m_entryDates; }
    [[nodiscard]] const clsDateEinsteller& AenderungEinsteller() const { return m_changeDates; }

    /// Whether a pair of lists restricts nothing.
    [[nodiscard]] static bool AllSelected(const QListWidget& left, const QListWidget& right);
    /// All attributes of an entry, joined by ";". Not used by the run. An error is reported and gives "".
    [[nodiscard]] QString AllGrammatikalisches(const QString& id);
    [[nodiscard]] QString AllFunktionales(const QString& id);
    [[nodiscard]] static QString QueryStringForExpression(const QString& text); ///< always empty
    void initialisiereListe();                                                  ///< empties the Vocab List
    void SetLangEingabe(const QString& language); ///< nothing to do: the gates count when the query is built
    /// Keeps the lower score below the upper one: "MinText", "MaxText", "MinSlider", "MaxSlider" tell what
    /// changed. True only for a slider whose value was accepted.
    bool CheckScoreValues(const QString& kind);

Q_SIGNALS:
    /// The Vocab List was filled, the Trainer restarted, SelectionValid set.
    void selectionMade();
    void specialCharactersRequested(QWidget& asker); ///< the pad of special characters is wanted

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct LanguageBoxes {
        QCheckBox* gate = nullptr;
        QLineEdit* prefix = nullptr;
        QLineEdit* main = nullptr;
        QLineEdit* suffix = nullptr;
        QLineEdit* comment = nullptr;
        [[nodiscard]] std::array<QLineEdit*, 4> all() const { return {prefix, main, suffix, comment}; }
    };

    // Set-up.
    void buildWidgets();
    QWidget* buildPages();
    QWidget* buildLanguagePage();
    QWidget* buildMiscellaneousPage();
    QWidget* buildButtons();
    QLayout* buildHead();
    void buildLessons();
    LanguageBoxes addLanguageColumn(QWidget& page, int number);
    void buildMasters();
    void buildMenus();
    void connectEvents();
    void connectMenus();
    void connectLessons();
    void showLanguageNames();

    // Events.
    void Command1_Click(); ///< "OK": runs where something changed, then closes
    void Command2_Click(); ///< "Clear All"
    void Command3_Click(); ///< "Close"
    void Command4_Click(); ///< "Apply": the selection run
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdAddAll_Click();
    void cmdRemoveAll_Click();
    void tbsOptions_Click();
    void TabStrip1_Click();
    void addTab(int number, const QString& caption);
    void selectTab(int number);
    void selectNextTab();
    void filterChanged() { AuswahlGeaendert = true; }
    void gateChanged(const QString& language);
    void cmbName_Change();
    void cmbName_Click();
    void cmdSpeichern_Click(); ///< "Save"
    void cmdLoeschen_Click();  ///< "Delete"
    void askForLesson();       ///< mnAuswahlNeu, mnAuswahlOpen
    void recallLesson();
    void showLessonCommands(bool save, bool remove);

    // The run.
    [[nodiscard]] SelectionFilters filters() const;
    void runSelection();
    [[nodiscard]] bool mayDropUnsavedRows();
    void showProgress();
    void hideProgress();
    void openSelection(const QString& criterion);
    void fillList(const QString& criterion);
    void ZeileAusDatensatz(int row, bool last);
    void handOver();
    void reportNoHits();
    void showCount(int count);

    [[nodiscard]] const ListPair* currentPair() const;
    [[nodiscard]] QStringList master(const ListPair& pair) const;
    void refill(const ListPair& pair, QListWidget& target);
    QString joinedAttributes(const QString& id, dao::Recordset& links, const QString& keyField,
                             dao::Recordset& attributes);

    FormContext& m_context;
    Liste& m_liste;
    Trainer& m_trainer;
    clsDateEinsteller m_entryDates;
    clsDateEinsteller m_changeDates;
    clsCursor m_cursor;
    CQuery m_query;
    EntryLookups m_lookups;
    std::unique_ptr<CSelection> m_lessons;
    bool StandardTabs = false;
    bool m_nameTyped = false;  ///< the change of cmbName that comes next is the user's typing
    bool m_nameChosen = false; ///< the last one was not, and no choice has been seen since

    QComboBox* m_cmbName = nullptr;
    QPushButton* m_cmdSpeichern = nullptr;
    QPushButton* m_cmdLoeschen = nullptr;
    QAction* m_mnAuswahlSpeichern = nullptr;
    QAction* m_mnAuswahlDelete = nullptr;
    QTabBar* m_tabStrip = nullptr;
    QTabBar* m_tabs = nullptr;
    QStackedWidget* m_pages = nullptr;
    ListPairFrame* m_lists = nullptr;
    ScoreFilter* m_score = nullptr;
    QWidget* m_languagePage = nullptr;
    LanguageBoxes m_lang1;
    LanguageBoxes m_lang2;
    DateFilter* m_entryFilter = nullptr;
    DateFilter* m_changeFilter = nullptr;
    QWidget* m_samplePage = nullptr;
    QWidget* m_infoPage = nullptr;
    QLineEdit* m_beispielsatz = nullptr;
    QLineEdit* m_zusatzinfo = nullptr;
    std::array<QComboBox*, 3> m_masters{};
    QPushButton* m_command1 = nullptr;
    QPushButton* m_command2 = nullptr;
    QPushButton* m_command3 = nullptr;
    QPushButton* m_command4 = nullptr;
};

} // namespace lingomat
