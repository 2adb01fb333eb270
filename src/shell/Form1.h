#pragma once

#include "Desktop.h"
#include "FormContext.h"
#include "PrinterDialog.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QSize>

#include <functional>
#include <memory>
#include <optional>

class QAction;
class QLabel;
class QMenu;
class QPushButton;

namespace lingomat {

class CConverter;
class Form2;
class Help;
class Liste;
class SprachenEingabe;
class Trainer;
class frmSplash;
struct Message;

/// The windows that the main window opens and keeps in step.
struct WorkingForms {
    frmSplash& splash;
    Liste& liste;
    Trainer& trainer;
    Form2& form2;
    Help& help;
};

/// What the main window has to know of the machine.
struct Surroundings {
    QString programFolder;           ///< where the sample files lie
    std::function<QSize()> workArea; ///< of the screen, in pixels
    PrinterChooser choosePrinter;
    Desktop desktop;
};

/// The main window: which database is open, its languages, the number of entries selected, and the way to
/// the three working windows. It opens and closes databases and ends the program.
class Form1 final : public QMainWindow {
    Q_OBJECT

public:
    Form1(FormContext& context, WorkingForms forms, Surroundings surroundings, QWidget* parent = nullptr);
    ~Form1() override;

    /// Loads the form and shows it.
    void start();

    /// Opens the database of the last run, or the sample at a first start, and loads the working windows
    /// hidden. Every failure is told to the user and leaves the program running.
    void Form_Load();
    /// Runs by itself whenever the window becomes the active one.
    void Form_Activate();

    void SetUserInterfaceProperties();
    /// Brings the whole program in line with the shared state: list, commands, displays. `refreshProperties`
    /// has the value lists read anew as well.
    void ConditionToUI(bool refreshProperties);
    void GreyOut();              ///< enabled states of the commands
    void SetzeAnzeigen();        ///< the four status labels
    void UpdateLanguageFields(); ///< names of the languages over the columns of the list

    /// Whether the open file is of a version before 3. A version that cannot be read raises 19001.
    bool IsOldVersion();
    /// Offers to convert the open file into one of the current format, and does it. True: it has been done,
    /// and the new file is to be opened; both are closed.
    bool ConvertDueToOldVersion();
    /// Takes the languages of the open file over into the shared state. False: it is not a language database,
    /// and nothing has changed.
    bool SetLanguageSettings();

    /// A question asked with this window out of the way, so that the box cannot come up behind it. It is
    /// moved off the screen meanwhile; where the display does not let a window move itself it stays, and the
    /// box comes up in front as the latest window.
    QMessageBox::StandardButton ShowMessage(const Message& message);

    void Command1_Click();       ///< "&Selection"
    void Grid_Click();           ///< "&List"
    void Command2_Click();       ///< "&Trainer"
    void Command4_Click();       ///< "&Quit"
    void Menu_Datei_Neu_Click(); ///< "&New Vocab Database..."
    void Sonderzeichen_Click();  ///< "Special &Characters"
    void Optionen_Click();       ///< "&Options..."
    void Datei_Open_Click();     ///< "&Open Vocab Database..."
    void Datei_Drucken_Click();  ///< "&Print...": the entries of the list, in the order of the Trainer
    void Datei_Beispiel_Click(); ///< "Open E&xample..."
    void mnuHelpInhalt_Click();  ///< "&Content"
    void mnuHelpSuchen_Click();  ///< "&Search in Help"
    void mnuHelpInfo_Click();    ///< "&About Lingomat"
    void mnWeb_Click();          ///< "Lingomat in the &Web"

Q_SIGNALS:
    /// All is closed and hidden; the process is to end.
    void exitRequested();
    void optionsRequested(int tab); ///< the options dialog is wanted; tab 0: the one that stands
    void specialCharactersRequested(QWidget& asker); ///< the pad of special characters is wanted

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // Layout.
    void buildWidgets();
    void buildMenus();
    void connectCommands();

    // Form_Load, part by part. Where one gives false, the load is over.
    void loadDatabase();
    bool openSampleAtFirstStart();
    bool openRecentDatabase();
    bool bringToCurrentFormatAtStart();
    bool openConvertedAtStart();
    bool openRecordsetsAtStart();
    void checkIfEmptyAtStart();
    void loadWorkingForms();
    void saveDefaultExceptions();
    void endLoadWithoutDatabase();
    /// One step of Form_Load: whatever goes wrong is shown, 19001 too, and the next step follows.
    bool loadStep(const std::function<void()>& step);
    void setBar(int value);
    void setLoadStatus(const QString& text);

    // Database commands.
    void runCommand(const std::function<void()>& command);
    /// Asks where changes are pending, and drops them. False: the user wants to keep them.
    [[nodiscard]] bool giveUpPendingChanges();
    [[nodiscard]] std::optional<QString> askForDatabase();
    [[nodiscard]] std::optional<QString> askForNewDatabase();
    [[nodiscard]] bool askForLanguages();
    bool createDatabaseFile(const QString& path);
    /// Deletes a file that stands where the new one is to be, if the user wants it.
    [[nodiscard]] bool replaceFile(const QString& path);
    void beginEmptyDatabase();
    void rememberDatabase(); ///< the next start opens it
    void OpenExampleDatabase();
    bool closeCurrentDatabase();
    bool openDatabaseFile(const QString& path);
    /// What has to be done with an open file before it can be worked on. Unknown: its version cannot be read.
    enum class FileFormat { Current, ToBeConverted, Later, Unknown };
    [[nodiscard]] FileFormat fileFormat();
    bool bringToCurrentFormat();
    QMessageBox::StandardButton askInFront(const Message& message);
    void continueOpening();
    void fillFromOpenedDatabase();
    void refuseInvalidFile();
    void closeFileQuietly();
    void abandonDatabase();

    // Printing.
    [[nodiscard]] std::optional<PaintedPrinter::Pages> choosePrinter(QWidget* asker);
    void printList(Printer& printer);

    // Working windows.
    void ensureFormsLoaded();
    void loadListe();
    void loadTrainer();
    void loadForm2();
    void openForm(QWidget& form);
    void showListe();

    void endProgram();
    void screenCheck();
    /// The window that a box belongs to: this one cannot be seen while it loads.
    [[nodiscard]] QWidget* boxParent();

    FormContext& m_context;
    WorkingForms m_forms;
    Surroundings m_surroundings;
    std::unique_ptr<CConverter> m_converter; ///< made at its first use

    SprachenEingabe* m_sprachenEingabe = nullptr;
    QMenu* m_menuAnsicht = nullptr;
    QAction* m_menuDateiNeu = nullptr;
    QAction* m_dateiOpen = nullptr;
    QAction* m_dateiBeispiel = nullptr;
    QAction* m_dateiDrucken = nullptr;
    QAction* m_menuDateiBeenden = nullptr;
    QAction* m_menuAnsichtAuswahl = nullptr;
    QAction* m_menuAuswahlListe = nullptr;
    QAction* m_menuAnsichtVokabeltrainer = nullptr;
    QAction* m_sonderzeichen = nullptr;
    QAction* m_optionen = nullptr;
    QAction* m_mnuHelpInhalt = nullptr;
    QAction* m_mnuHelpSuchen = nullptr;
    QAction* m_mnuHelpInfo = nullptr;
    QAction* m_mnWeb = nullptr;
    QLabel* m_dbAnzeige = nullptr;
    QLabel* m_lang1Label = nullptr;
    QLabel* m_lang2Label = nullptr;
    QLabel* m_anzahlLabel = nullptr;
    QPushButton* m_command1 = nullptr;
    QPushButton* m_grid = nullptr;
    QPushButton* m_command2 = nullptr;
    QPushButton* m_command4 = nullptr;

    bool m_listeLoaded = false;
    bool m_trainerLoaded = false;
    bool m_form2Loaded = false;
    bool m_commandRunning = false; ///< activations in between are not the user's
    bool m_ended = false;
};

} // namespace lingomat
