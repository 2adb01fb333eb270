#include "BenchProgram.h"

#include "BigDatabase.h"
#include "FlexGrid.h"
#include "Globals.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>

#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

/// In the place of the user.
class BenchProgram::StandIn final : public lingomat::Prompts {
public:
    std::function<void(QDialog&)> act;

    QMessageBox::StandardButton message(QWidget*, const lingomat::Message& message) override {
        if (!act || !(message.buttons & QMessageBox::Yes))
            qFatal("the program asks: %s", qPrintable(message.text));
        return QMessageBox::Yes;
    }
    int exec(QDialog& dialog) override {
        if (!act)
            qFatal("the program shows %s", qPrintable(dialog.objectName()));
        dialog.show();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        act(dialog);
        dialog.close();
        return dialog.result();
    }
    std::optional<QString> openFile(QWidget*, const lingomat::FileDialogRequest&) override {
        qFatal("the program wants to open a file");
    }
    std::optional<QString> saveFile(QWidget*, const lingomat::FileDialogRequest&) override {
        qFatal("the program wants to save a file");
    }
    void beep() override {}
};

BenchProgram::BenchProgram() : m_prompts(std::make_unique<StandIn>()) {
    const QString settingsFolder = m_folder.filePath(u"settings"_s);
    if (!QFile::copy(bigDatabase(), databasePath()))
        throw std::runtime_error("the big database cannot be copied");
    lingomat::SettingsStore(settingsFolder)
        .SaveSetting(lingomat::AppName(), u"Parameters"_s, u"RecentDB"_s, databasePath());
    m_application = std::make_unique<lingomat::Application>(
        lingomat::Environment{.prompts = *m_prompts,
                              .random = m_random,
                              .today = [] { return QDate::currentDate(); },
                              .workArea = [] { return QSize(1920, 1080); },
                              .programFolder = QCoreApplication::applicationDirPath(),
                              .settingsFolder = settingsFolder,
                              .language = u"En"_s});
}

BenchProgram::~BenchProgram() = default;

void BenchProgram::start() {
    m_application->start();
    const auto takesCommands = [this] {
        const QWidget& window = m_application->form1();
        return window.isVisible() && window.isEnabled() && !m_application->state().FormIsLoading &&
               m_application->state().databaseIsOpen();
    };
    while (!takesCommands())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void BenchProgram::answerWith(std::function<void(QDialog&)> act) {
    m_prompts->act = std::move(act);
}

void BenchProgram::selectAll() {
    m_application->form1().Command1_Click(); // loads and shows the selection form
    m_application->form2().findChild<QPushButton*>(u"Command4"_s)->click();
    if (m_application->liste().countRows() != BigDatabaseEntries)
        throw std::runtime_error("the selection did not find every entry");
}

lingomat::Prompts& BenchProgram::prompts() {
    return *m_prompts;
}
