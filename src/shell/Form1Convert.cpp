// Files that cannot be worked on as they are: those of an older version, and those of the current version
// that are not in the program's own store.

#include "CConverter.h"
#include "ConvertMessages.h"
#include "ErrorTrap.h"
#include "Form1.h"
#include "Globals.h"
#include "SettingsStore.h"
#include "SharedState.h"
#include "ShellMessages.h"
#include "frmSplash.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int CurrentVersion = 3;

} // namespace

bool Form1::IsOldVersion() {
    const int version = m_context.state.DBHandler.GetDBVersion();
    if (version < 0)
        throw dao::alreadyReported();
    return version < CurrentVersion;
}

Form1::FileFormat Form1::fileFormat() {
    if (IsOldVersion())
        return FileFormat::ToBeConverted;
    CDBHandler& handler = m_context.state.DBHandler;
    if (!handler.Database.isJet())
        return FileFormat::Current;
    return handler.GetDBVersion() == CurrentVersion ? FileFormat::ToBeConverted : FileFormat::Later;
}

bool Form1::ConvertDueToOldVersion() {
    SharedState& state = m_context.state;
    if (m_context.prompts.message(boxParent(), convertQuestion(state.CurrentDBPath)) != QMessageBox::Yes)
        return false;
    if (!SetLanguageSettings()) {
        tellNoLanguages(m_context.prompts, boxParent());
        // Not the names of the file that was open before.
        const LanguageFields unnamed = languageFields({}, u"Spanisch"_s, u"Deutsch"_s);
        static_cast<LanguageFields&>(state.DBHandler) = unnamed;
        static_cast<LanguageFields&>(state) = unnamed;
    }
    if (m_converter == nullptr)
        m_converter = std::make_unique<CConverter>(
            m_context,
            CConverter::Surroundings{.boxParent = [this] { return boxParent(); },
                                     .ask = [this](const Message& message) { return askInFront(message); }});
    return m_converter->Convert();
}

/// While this window is not up, the splash is in front of everything else.
QMessageBox::StandardButton Form1::askInFront(const Message& message) {
    return isVisible() ? ShowMessage(message) : m_context.prompts.message(boxParent(), message);
}

bool Form1::bringToCurrentFormat() {
    SharedState& state = m_context.state;
    // A version that cannot be read counts as a new one; what comes next decides then.
    FileFormat format = FileFormat::Unknown;
    trapped(m_context.prompts, [this, &format] { format = fileFormat(); });
    if (format == FileFormat::Later)
        tellLaterVersion(m_context.prompts, boxParent(), state.CurrentDBPath);
    bool isConverted = false;
    if (format == FileFormat::ToBeConverted)
        trapped(m_context.prompts, [this, &isConverted] { isConverted = ConvertDueToOldVersion(); });
    if (isConverted) {
        if (!openDatabaseFile(m_converter->newName()))
            return false;
        rememberDatabase();
        return true;
    }
    if (format == FileFormat::Current || (format == FileFormat::Unknown && !state.DBHandler.Database.isJet()))
        return true;
    if (format == FileFormat::Unknown) {
        trapped(m_context.prompts, [this] { SetLanguageSettings(); });
        refuseInvalidFile();
        return false;
    }
    abandonDatabase();
    return false;
}

bool Form1::bringToCurrentFormatAtStart() {
    SharedState& state = m_context.state;
    FileFormat format = FileFormat::Unknown;
    loadStep([this, &format] { format = fileFormat(); });
    if (format == FileFormat::Later)
        tellLaterVersion(m_context.prompts, boxParent(), state.CurrentDBPath);
    bool isConverted = false;
    if (format == FileFormat::ToBeConverted)
        loadStep([this, &isConverted] { isConverted = ConvertDueToOldVersion(); });
    if (isConverted)
        return openConvertedAtStart();
    if (format == FileFormat::Current || (format == FileFormat::Unknown && !state.DBHandler.Database.isJet()))
        return true;
    if (format == FileFormat::Unknown) {
        loadStep([this] { SetLanguageSettings(); });
        tellInvalidFile(m_context.prompts);
        endLoadWithoutDatabase();
        return false;
    }
    closeFileQuietly();
    state.CurrentDBPath.clear();
    loadStep([this] { ConditionToUI(true); });
    m_forms.splash.hide();
    return false;
}

bool Form1::openConvertedAtStart() {
    SharedState& state = m_context.state;
    state.CurrentDBPath = m_converter->newName();
    const bool opened =
        loadStep([&state] { state.DBHandler.Database = dao::DBEngine::OpenDatabase(state.CurrentDBPath); });
    if (!opened) {
        endLoadWithoutDatabase();
        return false;
    }
    rememberDatabase();
    m_forms.splash.refresh();
    return true;
}

} // namespace lingomat
