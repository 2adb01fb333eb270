#include "TestProgram.h"

#include "Globals.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

Desktop NotedDesktop::inPlace() {
    return {.openUrl =
                [this](const QUrl& address) {
                    opened.append(address);
                    return hasBrowser;
                },
            .findProgram =
                [this](const QString& name) {
                    return installed.contains(name) ? "/usr/bin/"_L1 + name : QString();
                },
            .startProgram =
                [this](const QString& program, const QStringList&) {
                    started.append(program);
                    return programsStart;
                }};
}

TestProgram::TestProgram(QString interfaceLanguage) : language(std::move(interfaceLanguage)) {
    setInterfaceLanguage(language);
    LastErrorText.clear();
    QDir().mkpath(programFolder());
    QFile::copy(QStringLiteral(LINGOMAT_MARK), programFolder() + "/marke.gif"_L1);
}

TestProgram::~TestProgram() {
    EXPECT_TRUE(m_printers.empty()) << "a question for a printer did not come";
    end();
    setInterfaceLanguage(u"En"_s);
}

QString TestProgram::sample() const {
    return programFolder() + (language == u"En"_s ? "/Example.lmt"_L1 : "/ExampleGerman.lmt"_L1);
}

void TestProgram::installSample() {
    writeDatabase(sample(),
                  {.lang2 = language == u"En"_s ? u"Englisch"_s : u"Spanisch"_s, .entries = someEntries()});
}

void TestProgram::installHelp() {
    if (!QFile::link(QStringLiteral(LINGOMAT_HELP), programFolder() + "/help"_L1))
        throw std::runtime_error("the help cannot be put into the program folder");
}

void TestProgram::rememberDatabase(const QString& path) {
    SettingsStore(settingsFolder()).SaveSetting(AppName(), u"Parameters"_s, u"RecentDB"_s, path);
}

QString TestProgram::setting(const char* section, const char* key) const {
    return SettingsStore(settingsFolder())
        .GetSetting(AppName(), QString::fromLatin1(section), QString::fromLatin1(key));
}

Application& TestProgram::make() {
    end();
    Prompts& given = promptsInPlace ? *promptsInPlace : static_cast<Prompts&>(prompts);
    m_application = std::make_unique<Application>(
        Environment{.prompts = given,
                    .random = random,
                    .today = [this] { return today; },
                    .workArea = [this] { return workArea; },
                    .choosePrinter = [this](QWidget*, const QString&) { return answerPrinter(); },
                    .programFolder = programFolder(),
                    .settingsFolder = settingsFolder(),
                    .language = language,
                    .desktop = desktop.inPlace()});
    return *m_application;
}

Application& TestProgram::start() {
    Application& application = make();
    application.start();
    const bool isUp = QTest::qWaitFor(
        [&application] { return application.form1().isVisible() && !application.splash().isVisible(); });
    if (!isUp)
        throw std::runtime_error("the main window did not come up");
    return application;
}

Application& TestProgram::startWithDatabase() {
    const QString file = path(u"vocab.lmt"_s);
    writeDatabase(file, {.entries = someEntries()});
    rememberDatabase(file);
    return start();
}

void TestProgram::end() {
    m_application.reset();
}

QString TestProgram::label(const char* name) {
    return child<QLabel>(app().form1(), name).text();
}

bool TestProgram::isEnabled(const char* control) {
    auto& object = child<QObject>(app().form1(), control);
    if (const auto* action = qobject_cast<QAction*>(&object))
        return action->isEnabled();
    return static_cast<QWidget&>(object).isEnabled();
}

void TestProgram::click(const char* button) {
    child<QPushButton>(app().form1(), button).click();
}

void TestProgram::choose(const char* entry) {
    child<QAction>(app().form1(), entry).trigger();
}

void TestProgram::expectPrinter(std::optional<PaintedPrinter::Pages> paper) {
    m_printers.push_back(std::move(paper));
}

std::optional<PaintedPrinter::Pages> TestProgram::answerPrinter() {
    if (m_printers.empty()) {
        ADD_FAILURE() << "unexpected question for a printer";
        return {};
    }
    std::optional<PaintedPrinter::Pages> paper = std::move(m_printers.front());
    m_printers.pop_front();
    return paper;
}

} // namespace lingomat
