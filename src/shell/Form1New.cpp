#include "Form1.h"

#include "CDBCreator.h"
#include "ErrorTrap.h"
#include "Form2.h"
#include "Globals.h"
#include "Liste.h"
#include "SharedState.h"
#include "ShellMessages.h"
#include "SprachenEingabe.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lingomat {

void Form1::Menu_Datei_Neu_Click() {
    runCommand([this] {
        if (!giveUpPendingChanges())
            return;
        const std::optional<QString> path = askForNewDatabase();
        if (!path) {
            SetzeAnzeigen();
            return;
        }
        if (!askForLanguages() || !closeCurrentDatabase())
            return;
        if (createDatabaseFile(*path))
            beginEmptyDatabase();
    });
}

std::optional<QString> Form1::askForNewDatabase() {
    try {
        return m_context.prompts.saveFile(this, newDatabaseRequest(m_context.state.CurrentDBPath));
    } catch (...) {
        // A dialog that fails is a dialog that was cancelled.
        return {};
    }
}

bool Form1::askForLanguages() {
    m_context.prompts.exec(*m_sprachenEingabe);
    if (!m_sprachenEingabe->LanguagesAccepted) {
        tellLanguagesMissing(m_context.prompts, this);
        return false;
    }
    m_context.state.Lang1Name = m_sprachenEingabe->Language1;
    m_context.state.Lang2Name = m_sprachenEingabe->Language2;
    return true;
}

bool Form1::createDatabaseFile(const QString& path) {
    SharedState& state = m_context.state;
    state.CurrentDBPath = path;
    CDBCreator creator(creatorNotifier(m_context.prompts));
    const auto create = [&] {
        state.DBHandler.Database = creator.CreateNewDatabase(path, false, state);
        return state.DBHandler.Database.isOpen();
    };
    if (create())
        return true;
    // Any other failure has been told already.
    if (creator.FileExisted && replaceFile(path) && create())
        return true;
    abandonDatabase();
    return false;
}

bool Form1::replaceFile(const QString& path) {
    if (ShowMessage(overwriteQuestion(path)) != QMessageBox::Yes)
        return false;
    if (QFile::remove(path))
        return true;
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink())
        return true; // another program was faster
    tellFileNotDeleted(m_context.prompts, this, path);
    return false;
}

void Form1::beginEmptyDatabase() {
    SharedState& state = m_context.state;
    Prompts& prompts = m_context.prompts;
    rememberDatabase();
    if (!state.DBHandler.OpenAllRecordsets()) {
        abandonDatabase();
        return;
    }
    trapped(prompts, [this] { ensureFormsLoaded(); });
    state.DBIsEmpty = true;
    state.DBChanged = true;
    trapped(prompts, [this] { ConditionToUI(true); });
    trapped(prompts, [this] { m_forms.liste.initialisiereListe(); });
    trapped(prompts, [this] { m_forms.form2.initialisiere(); });
}

} // namespace lingomat
