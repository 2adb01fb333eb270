#include "Form1.h"

#include "DBEngine.h"
#include "ErrorTrap.h"
#include "Form2.h"
#include "Globals.h"
#include "Liste.h"
#include "ProgramFolder.h"
#include "Progress.h"
#include "SettingsStore.h"
#include "SharedState.h"
#include "ShellMessages.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace lingomat {

void Form1::runCommand(const std::function<void()>& command) {
    const QScopedValueRollback running(m_commandRunning, true);
    trapped(m_context.prompts, command);
}

bool Form1::SetLanguageSettings() {
    SharedState& state = m_context.state;
    if (!state.DBHandler.GetLanguages())
        return false;
    static_cast<LanguageFields&>(state) = state.DBHandler;
    return true;
}

void Form1::Datei_Open_Click() {
    runCommand([this] {
        if (!giveUpPendingChanges())
            return;
        const std::optional<QString> path = askForDatabase();
        if (!path) {
            SetzeAnzeigen();
            return;
        }
        if (!closeCurrentDatabase() || !openDatabaseFile(*path) || !bringToCurrentFormat())
            return;
        continueOpening();
    });
}

bool Form1::giveUpPendingChanges() {
    if (m_forms.liste.pendingChanges() > 0) {
        if (m_context.prompts.message(this, proceedQuestion()) != QMessageBox::Yes) {
            showListe();
            return false;
        }
        m_forms.liste.forgetChanges();
    }
    m_forms.form2.AuswahlGeaendert = true;
    return true;
}

std::optional<QString> Form1::askForDatabase() {
    try {
        return m_context.prompts.openFile(this, openDatabaseRequest(m_context.state.CurrentDBPath));
    } catch (...) {
        // A dialog that fails is a dialog that was cancelled.
        return {};
    }
}

void Form1::Datei_Beispiel_Click() {
    runCommand([this] {
        tellSampleWillOpen(m_context.prompts, this);
        OpenExampleDatabase();
    });
}

void Form1::OpenExampleDatabase() {
    m_forms.form2.AuswahlGeaendert = true;
    if (!closeCurrentDatabase())
        return;
    m_context.progress.setWindowTitle(uiText(u"Beispieldatenbank öffnen"_s, u"Opening sample database"_s));
    const QString name = uiText(u"ExampleGerman.lmt"_s, u"Example.lmt"_s);
    if (openDatabaseFile(programFile(m_surroundings.programFolder, name)))
        continueOpening();
}

bool Form1::closeCurrentDatabase() {
    SharedState& state = m_context.state;
    if (!state.databaseIsOpen())
        return true;
    if (trapped(m_context.prompts, [&state] { state.DBHandler.CloseAllDBObjects(); }))
        return true;
    ConditionToUI(true);
    return false;
}

bool Form1::openDatabaseFile(const QString& path) {
    SharedState& state = m_context.state;
    state.CurrentDBPath = path;
    if (trapped(m_context.prompts,
                [&state, &path] { state.DBHandler.Database = dao::DBEngine::OpenDatabase(path); }))
        return true;
    abandonDatabase();
    return false;
}

void Form1::continueOpening() {
    SharedState& state = m_context.state;
    bool isLanguageDatabase = false;
    trapped(m_context.prompts, [this, &isLanguageDatabase] { isLanguageDatabase = SetLanguageSettings(); });
    if (!isLanguageDatabase) {
        refuseInvalidFile();
        return;
    }
    bool opened = false;
    trapped(m_context.prompts, [&state, &opened] { opened = state.DBHandler.OpenAllRecordsets(); });
    if (!opened) {
        abandonDatabase();
        return;
    }
    fillFromOpenedDatabase();
}

void Form1::fillFromOpenedDatabase() {
    SharedState& state = m_context.state;
    Prompts& prompts = m_context.prompts;
    // While the program loads, the windows come later, each at its place.
    if (!state.FormIsLoading)
        trapped(prompts, [this] { ensureFormsLoaded(); });
    if (m_listeLoaded) {
        trapped(prompts, [this] { m_forms.liste.SetHeaders(); });
        trapped(prompts, [this] { m_forms.liste.AdjustControls(); });
    }
    state.DBIsEmpty = false;
    state.DBChanged = true;

    dao::Recordset& selection = state.DBHandler.RecordsetAuswahl;
    bool isEmpty = false;
    trapped(prompts, [&] { isEmpty = selection.EOF_(); });
    if (isEmpty) {
        tellDatabaseEmpty(prompts, boxParent());
        state.DBIsEmpty = true;
        trapped(prompts, [this] { ConditionToUI(true); });
    }

    rememberDatabase();
    trapped(prompts, [this, &selection] {
        if (selection.RecordCount() >= 1)
            m_context.progress.setMaximum(selection.RecordCount());
    });
    trapped(prompts, [this] { ConditionToUI(true); });
    if (m_form2Loaded)
        trapped(prompts, [this] { m_forms.form2.initialisiere(); });
}

void Form1::rememberDatabase() {
    trapped(m_context.prompts, [this] {
        m_context.settings.SaveSetting(AppName(), u"Parameters"_s, u"RecentDB"_s,
                                       m_context.state.CurrentDBPath);
    });
}

void Form1::refuseInvalidFile() {
    tellInvalidFile(m_context.prompts);
    m_context.progress.hide();
    m_context.progress.setValue(m_context.progress.minimum());
    abandonDatabase();
}

void Form1::closeFileQuietly() {
    dao::Database& database = m_context.state.DBHandler.Database;
    try {
        if (database.isOpen())
            database.Close();
    } catch (...) {
        // The file is given up either way.
    }
}

void Form1::abandonDatabase() {
    closeFileQuietly();
    m_context.state.CurrentDBPath.clear();
    trapped(m_context.prompts, [this] {
        ConditionToUI(true);
        if (m_form2Loaded)
            m_forms.form2.InitialisiereAuswahlBox(); // lessons belong to a file
    });
}

} // namespace lingomat
