// Saves a Vocab List full of changes, again and again, to be killed meanwhile. For each line that it reads it
// forks: a start of the toolkit a round would take longer than the save. The fork lists every entry of the
// file, deletes some, changes some, adds some (see SaveSteps.h), and saves:
//
//     pid 4711    before it begins
//     12          the progress of the save, told before the step of that number
//     end         after the save
//
// The first program tells "over" when the fork is gone.

#include "ColumnOptions.h"
#include "FlexGrid.h"
#include "FormContext.h"
#include "Globals.h"
#include "Liste.h"
#include "Progress.h"
#include "SaveSteps.h"
#include "SettingsStore.h"
#include "SharedState.h"
#include "ValueLists.h"

#include <QApplication>
#include <QProgressBar>

#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

/// The lines are long and the pipe is narrow: a save that nobody listens to waits after a few rows, and does
/// not run to its end before it can be killed.
constexpr int LineLength = 512;
constexpr int PipeLength = 4096;

void tell(const QString& text) {
    const QByteArray line = text.toUtf8().leftJustified(LineLength - 1) + '\n';
    // One write a line, past all buffers: what was told before the end has been told.
    if (write(STDOUT_FILENO, line.constData(), static_cast<std::size_t>(line.size())) != line.size())
        std::_Exit(2);
}

[[noreturn]] void fail(const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::_Exit(3);
}

/// A save has nothing to say here.
class NobodyThere final : public Prompts {
public:
    QMessageBox::StandardButton message(QWidget* /*parent*/, const Message& message) override {
        fail(message.text);
    }
    int exec(QDialog& dialog) override { fail(dialog.objectName()); }
    std::optional<QString> openFile(QWidget* /*parent*/, const FileDialogRequest& request) override {
        fail(request.title);
    }
    std::optional<QString> saveFile(QWidget* /*parent*/, const FileDialogRequest& request) override {
        fail(request.title);
    }
    void beep() override {}
};

class Saver {
public:
    Saver(const QString& path, const QString& settings)
        : m_settings(settings),
          m_context{m_state,   m_prompts,  m_settings, m_values,
                    m_columns, m_progress, m_random,   [] { return QDate(2002, 3, 1); }},
          m_list(m_context) {
        CDBHandler& session = m_state.DBHandler;
        session.Database = dao::DBEngine::OpenDatabase(path);
        m_state.CurrentDBPath = path;
        if (!session.GetLanguages() || !session.OpenAllRecordsets())
            fail(u"not opened"_s);
        static_cast<LanguageFields&>(m_state) = session;
        m_list.Form_Load();
        const auto none = [](const QString&) { return QString(); };
        for (dao::Recordset& all = session.RecordsetAuswahl; !all.EOF_(); all.MoveNext()) {
            grid().AddItem(QString());
            m_list.ZeileAusDatensatz(grid().Rows() - 1, true, {none, none, none});
        }
    }

    void save(int round) {
        const SaveSteps steps = saveSteps(round, m_list.countRows());
        for (int i = 0; i < steps.deleted; ++i) {
            grid().setRow(1);
            m_list.Command4_Click();
        }
        for (int i = 0; i < steps.changed; ++i) {
            write(i + 1, changedText(round, i));
            m_list.ZeileGeaendert();
        }
        for (int i = 0; i < steps.added; ++i) {
            m_list.Command3_Click();
            write(grid().Row(), addedText(round, i));
        }
        auto* bar = m_list.findChild<QProgressBar*>(u"ProgressBar1"_s);
        QObject::connect(bar, &QProgressBar::valueChanged, bar, [](int value) {
            if (value > 0)
                tell(QString::number(value));
        });
        m_list.Command2_Click();
        tell(u"end"_s);
    }

private:
    [[nodiscard]] FlexGrid& grid() { return m_list.MSFlexGrid1(); }
    void write(int row, const QString& text) {
        grid().setRow(row);
        grid().setTextMatrix(row, Liste::ColHaupt1, text);
        grid().setTextMatrix(row, Liste::ColQuelle, text);
        grid().setTextMatrix(row, Liste::ColBereich, text.left(2) + u";home;"_s);
    }

    NobodyThere m_prompts;
    SharedState m_state{[](const QString& description) { fail(description); }};
    SettingsStore m_settings;
    ValueLists m_values{m_prompts};
    ColumnOptions m_columns;
    Progress m_progress;
    ClockSeededRandom m_random;
    FormContext m_context;
    Liste m_list;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication toolkit(argc, argv);
    if (argc < 3)
        return 1;
    fcntl(STDOUT_FILENO, F_SETPIPE_SZ, PipeLength);
    setInterfaceLanguage(u"En"_s);
    char line[32];
    while (std::fgets(line, sizeof line, stdin) != nullptr) {
        const pid_t child = fork();
        if (child != 0) {
            waitpid(child, nullptr, 0);
            tell(u"over"_s);
            continue;
        }
        try {
            tell(u"pid %1"_s.arg(getpid()));
            Saver saver(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
            saver.save(std::atoi(line));
        } catch (const std::exception& error) {
            fail(QString::fromUtf8(error.what()));
        }
        std::_Exit(0);
    }
}
