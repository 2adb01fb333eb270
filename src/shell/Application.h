#pragma once

#include "ColumnOptions.h"
#include "Desktop.h"
#include "FontHelp.h"
#include "Form1.h"
#include "Form2.h"
#include "FormContext.h"
#include "Help.h"
#include "Liste.h"
#include "Progress.h"
#include "Prompts.h"
#include "SettingsStore.h"
#include "SharedState.h"
#include "Trainer.h"
#include "ValueLists.h"
#include "frmOptions.h"
#include "frmSplash.h"

#include <functional>
#include <optional>

namespace lingomat {

/// What the program takes from its surroundings. A test puts its own in place of each.
struct Environment {
    Prompts& prompts;
    RandomSource& random;
    std::function<QDate()> today;
    std::function<QSize()> workArea; ///< of the screen, in pixels
    PrinterChooser choosePrinter = {};
    QString programFolder;                 ///< see findProgramFolder()
    std::optional<QString> settingsFolder; ///< none: the user's own
    QString language = builtInterfaceLanguage();
    Desktop desktop = userDesktop();
};

/// The program: everything that its forms share, the forms themselves, and the wires between them.
///
/// Forms call only what lies below them. What they tell or want upwards is a signal, and each is connected
/// in connectForms() and nowhere else. The connections are direct, so a signal is a call.
class Application final {
public:
    explicit Application(const Environment& environment);
    Q_DISABLE_COPY_MOVE(Application)

    /// Shows the splash, which has the main window loaded and shown as soon as the event loop runs.
    void start();
    /// The references of the list's current entry, modally.
    void showReferences();
    void editExpression(const ExpressionParts& parts, const QString& typed, const QRect& cell);

    [[nodiscard]] SharedState& state() { return m_state; }
    [[nodiscard]] SettingsStore& settings() { return m_settings; }
    [[nodiscard]] frmSplash& splash() { return m_splash; }
    [[nodiscard]] Form1& form1() { return m_form1; }
    [[nodiscard]] Form2& form2() { return m_form2; }
    [[nodiscard]] Liste& liste() { return m_liste; }
    [[nodiscard]] Trainer& trainer() { return m_trainer; }
    [[nodiscard]] Help& help() { return m_help; }
    [[nodiscard]] frmOptions& options() { return m_options; }

    /// Shows the options modally, with that tab (from 1) on top; 0 leaves the one that stands.
    void showOptions(int tab);

private:
    void connectForms();

    // In the order in which they need one another. The splash sets the globals, so it is the first.
    frmSplash m_splash;
    SharedState m_state;
    SettingsStore m_settings;
    ValueLists m_values;
    ColumnOptions m_columns;
    Progress m_progress;
    FormContext m_context;
    Help m_help;
    FontHelp m_fontHelp;
    Liste m_liste;
    Trainer m_trainer;
    frmOptions m_options;
    Form2 m_form2;
    Form1 m_form1;
};

} // namespace lingomat
