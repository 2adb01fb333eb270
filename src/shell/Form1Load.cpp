#include "Form1.h"

#include "DBEngine.h"
#include "ErrorTrap.h"
#include "ExceptionSettings.h"
#include "Form2.h"
#include "Globals.h"
#include "Liste.h"
#include "ProgramFolder.h"
#include "ScreenCheck.h"
#include "SettingsStore.h"
#include "SharedState.h"
#include "ShellMessages.h"
#include "Trainer.h"
#include "frmSplash.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Lays a form out as a first showing would, without anything on the screen.
void showOffScreen(QWidget& form) {
    form.setAttribute(Qt::WA_DontShowOnScreen);
    form.show();
    form.hide();
    form.setAttribute(Qt::WA_DontShowOnScreen, false);
}

} // namespace

bool Form1::loadStep(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (...) {
        reportError(m_context.prompts, currentExceptionDescription());
        return false;
    }
}

void Form1::setBar(int value) {
    m_forms.splash.setBar(value);
}

void Form1::setLoadStatus(const QString& text) {
    m_forms.splash.setStatus(text);
}

void Form1::Form_Load() {
    SharedState& state = m_context.state;
    state.FormIsLoading = true;
    for (const int value : {5, 6, 10})
        setBar(value);

    loadStep([this] { SetUserInterfaceProperties(); });
    state.DBIsEmpty = false;
    state.SelectionValid = false;
    state.MarkePath = programFile(m_surroundings.programFolder, u"marke.gif"_s);
    loadStep([this, &state] {
        state.CurrentDBPath = m_context.settings.GetSetting(AppName(), u"Parameters"_s, u"RecentDB"_s);
    });
    setBar(13);

    loadDatabase();
    state.FormIsLoading = false;
}

void Form1::loadDatabase() {
    SharedState& state = m_context.state;
    const bool firstStart = state.CurrentDBPath.isEmpty();
    if (firstStart && !openSampleAtFirstStart())
        return;
    if (!openRecentDatabase() || !bringToCurrentFormatAtStart())
        return;

    for (const int value : {42, 45, 48, 50})
        setBar(value);
    setLoadStatus(uiText(u"Sprachen werden extrahiert ..."_s, u"Retrieving languages ..."_s));
    bool isLanguageDatabase = false;
    loadStep([this, &isLanguageDatabase] { isLanguageDatabase = SetLanguageSettings(); });
    if (!isLanguageDatabase) {
        tellInvalidFile(m_context.prompts);
        endLoadWithoutDatabase();
        return;
    }
    if (!openRecordsetsAtStart())
        return;
    checkIfEmptyAtStart();
    setBar(62);
    loadStep([&state] { state.DBHandler.BereinigeDB(); });

    loadWorkingForms();

    state.Exceptions.clear();
    loadStep([this, &state] { GetExceptions(state.Exceptions, m_context.settings); });
    setBar(95);
    loadStep([this] { ConditionToUI(true); });
    setBar(100);
    loadStep([this] {
        loadForm2();
        m_forms.form2.InitialisiereSelectionboxes();
    });
    loadStep([this] { screenCheck(); });
    if (firstStart)
        welcome(m_context.prompts, boxParent());
}

void Form1::saveDefaultExceptions() {
    SettingsStore& settings = m_context.settings;
    loadStep([&settings] { settings.SaveSetting(AppName(), u"Exceptions"_s, u"Exc_1"_s, u"!¡"_s); });
    loadStep([&settings] { settings.SaveSetting(AppName(), u"Exceptions"_s, u"Exc_2"_s, u"?¿"_s); });
}

bool Form1::openSampleAtFirstStart() {
    saveDefaultExceptions();
    loadStep([this] { OpenExampleDatabase(); });
    if (!m_context.state.databaseIsOpen()) {
        loadStep([this] { ConditionToUI(true); });
        return false;
    }
    m_forms.splash.refresh();
    return true;
}

bool Form1::openRecentDatabase() {
    SharedState& state = m_context.state;
    setBar(20);
    setLoadStatus(uiText(u"Datenbank wird geöffnet ..."_s, u"Opening database ..."_s));
    setBar(22);
    const bool opened =
        loadStep([&state] { state.DBHandler.Database = dao::DBEngine::OpenDatabase(state.CurrentDBPath); });
    if (!opened) {
        endLoadWithoutDatabase();
        return false;
    }
    for (const int value : {25, 27, 30, 33, 35, 40})
        setBar(value);
    setLoadStatus(uiText(u"Datenbank geöffnet ..."_s, u"Database is open ..."_s));
    return true;
}

bool Form1::openRecordsetsAtStart() {
    SharedState& state = m_context.state;
    for (const int value : {52, 55})
        setBar(value);
    setLoadStatus(uiText(u"Datenbank wird gelesen ..."_s, u"Reading database ..."_s));
    bool opened = false;
    loadStep([&state, &opened] { opened = state.DBHandler.OpenAllRecordsets(); });
    if (!opened) {
        endLoadWithoutDatabase();
        return false;
    }
    for (const int value : {57, 60})
        setBar(value);
    return true;
}

void Form1::checkIfEmptyAtStart() {
    SharedState& state = m_context.state;
    bool isEmpty = false;
    loadStep([&state, &isEmpty] { isEmpty = state.DBHandler.RecordsetAuswahl.EOF_(); });
    if (!isEmpty)
        return;
    setLoadStatus(uiText(u"Datenbank ist leer"_s, u"Databse is empty"_s));
    m_forms.splash.refresh();
    tellDatabaseEmpty(m_context.prompts, boxParent());
    state.DBIsEmpty = true;
}

void Form1::loadWorkingForms() {
    setLoadStatus(uiText(u"Vokabelliste initialisieren ..."_s, u"Initializing Vocab List ..."_s));
    loadStep([this] { loadListe(); });
    setBar(80);
    loadStep([this] { m_forms.liste.SetHeaders(); });
    loadStep([this] { m_forms.liste.AdjustControls(); });
    setBar(81);
    setLoadStatus(uiText(u"Vokabeltrainer initialisieren ..."_s, u"Initializing Trainer ..."_s));
    loadStep([this] { loadTrainer(); });
    setBar(95);
}

void Form1::endLoadWithoutDatabase() {
    closeFileQuietly();
    m_context.state.CurrentDBPath.clear();
    loadStep([this] { ConditionToUI(true); });
    m_context.state.FormIsLoading = false;
    loadStep([this] { screenCheck(); });
}

void Form1::screenCheck() {
    loadForm2(); // it has its size from then on
    const QWidget& form = m_forms.form2;
    const QSize needed = form.size().expandedTo(form.minimumSizeHint());
    if (screenTooSmall(m_surroundings.workArea(), needed))
        tellScreenTooSmall(m_context.prompts, boxParent());
}

void Form1::loadListe() {
    if (std::exchange(m_listeLoaded, true))
        return;
    m_forms.liste.Form_Load();
    showOffScreen(m_forms.liste);
}

void Form1::loadTrainer() {
    if (std::exchange(m_trainerLoaded, true))
        return;
    m_forms.trainer.Form_Load();
    showOffScreen(m_forms.trainer);
}

void Form1::loadForm2() {
    if (std::exchange(m_form2Loaded, true))
        return;
    m_forms.form2.Form_Load();
}

void Form1::ensureFormsLoaded() {
    loadListe();
    loadTrainer();
    loadForm2();
}

} // namespace lingomat
