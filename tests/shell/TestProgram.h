#pragma once

#include "Application.h"
#include "ChildFinder.h"
#include "FixedRandom.h"
#include "ScriptedPrompts.h"
#include "TestFiles.h"

#include <QTemporaryDir>

#include <deque>
#include <memory>

class QLabel;

namespace lingomat {

/// A desktop that only notes what it is asked for.
struct NotedDesktop {
    bool hasBrowser = true;
    bool programsStart = true;
    QStringList installed; ///< names of programs on the search path
    QList<QUrl> opened;
    QStringList started;

    [[nodiscard]] Desktop inPlace();
};

/// The whole program on an empty home of its own, with a program folder, settings, clock and screen that the
/// test decides on. Nothing is delivered with it until installSamples().
class TestProgram {
public:
    explicit TestProgram(QString interfaceLanguage = QStringLiteral("En"));
    ~TestProgram();
    Q_DISABLE_COPY_MOVE(TestProgram)

    /// A file in the test's own folder, which goes with the test.
    [[nodiscard]] QString path(const QString& name) const { return m_home.filePath(name); }
    [[nodiscard]] QString programFolder() const { return path(QStringLiteral("program")); }
    [[nodiscard]] QString settingsFolder() const { return path(QStringLiteral("settings")); }
    /// The sample file of the interface language.
    [[nodiscard]] QString sample() const;
    /// Puts a sample with some entries into the program folder.
    void installSample();
    /// Puts the help of both languages into the program folder.
    void installHelp();
    /// Makes the program start with that file.
    void rememberDatabase(const QString& path);
    [[nodiscard]] QString recentDatabase() const { return setting("Parameters", "RecentDB"); }
    [[nodiscard]] QString setting(const char* section, const char* key) const;

    /// Makes the program, without starting it.
    Application& make();
    /// Starts it as main() does and waits until the main window has come up.
    Application& start();
    /// A start with a sound database of some entries, remembered from the last run.
    Application& startWithDatabase();
    /// Takes the program away, as the end of the process would.
    void end();
    [[nodiscard]] Application& app() { return *m_application; }

    /// Text of a label of the main window.
    [[nodiscard]] QString label(const char* name);
    [[nodiscard]] bool isEnabled(const char* control);
    void click(const char* button); ///< a button of the main window
    void choose(const char* entry); ///< a menu entry of the main window

    /// The answer to the next question for a printer: its paper, or none for Cancel. The question has to
    /// come.
    void expectPrinter(std::optional<PaintedPrinter::Pages> paper);

    const QString language;
    ScriptedPrompts prompts;
    Prompts* promptsInPlace = nullptr; ///< what the program is given instead, if set before make()
    FixedRandom random;
    QDate today{2002, 3, 1};
    QSize workArea{1600, 1200};
    NotedDesktop desktop;

private:
    std::optional<PaintedPrinter::Pages> answerPrinter();

    QTemporaryDir m_home;
    std::deque<std::optional<PaintedPrinter::Pages>> m_printers;
    std::unique_ptr<Application> m_application;
};

} // namespace lingomat
