// Measures the program's work beside the same work done with nothing but SQLite, in one run, and prints the
// figures beside their targets. Ends with 1 when one is missed.

#include "AnswerRules.h"
#include "BareSqlite.h"
#include "BenchProgram.h"
#include "BigDatabase.h"
#include "FlexGrid.h"
#include "Report.h"
#include "frmSuchen.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTabBar>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int Repetitions = 5;
constexpr int LessonValues = 1000;

/// What the benchmarks share. A second file is the yardstick's own, so that its writing does not make what
/// the program has in memory invalid.
struct Bench {
    QTemporaryDir folder;
    BareSqlite yardstick{copyOfBigDatabase(folder)};
    BenchProgram program;
    bool started = false;

    /// The program, started and with every entry selected.
    BenchProgram& selected() {
        if (!started) {
            started = true;
            program.start();
            program.selectAll();
        }
        return program;
    }

    static QString copyOfBigDatabase(const QTemporaryDir& folder) {
        const QString path = folder.filePath(u"bare.lmt"_s);
        QFile::copy(bigDatabase(), path);
        return path;
    }
};

Bench* g_bench = nullptr; // the library calls plain functions

QByteArray runStartup(const QString& mode) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + u"/startup"_s, {mode});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("startup %s failed", qPrintable(mode));
    return process.readAllStandardOutput();
}

void bareLoop(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(g_bench->yardstick.readEverything());
}

void selectionRun(benchmark::State& state) {
    BenchProgram& program = g_bench->selected();
    for (auto _ : state)
        program.selectAll();
}

void startEmpty(benchmark::State& state) {
    for (auto _ : state)
        runStartup(u"empty"_s);
}

void startProgram(benchmark::State& state) {
    for (auto _ : state)
        runStartup(u"main"_s);
}

/// An entry somewhere in the table, and a score that it has not: what is the same already is not written.
struct ScoreChange {
    qint64 key = 1;
    int score = 0;
    void next() {
        key = (key + 7919) % BigDatabaseEntries + 1;
        score = (score + 1) % 7 + 100;
    }
};

void bareScore(benchmark::State& state) {
    static ScoreChange change;
    BareSqlite& sqlite = g_bench->yardstick;
    for (auto _ : state) {
        change.next();
        sqlite.changeScore(change.key, change.score);
    }
}

void engineScore(benchmark::State& state) {
    static ScoreChange change;
    dao::Recordset& entries = g_bench->selected().application().state().DBHandler.RecordsetVokabular;
    for (auto _ : state) {
        change.next();
        entries.FindFirst(u"ID LIKE '%1'"_s.arg(change.key));
        entries.Edit();
        entries.setField(u"Score"_s, change.score);
        entries.Update();
    }
}

/// An answer that fits one entry, part of it that is.
QString wrongAnswer() {
    return u"dmdyfi"_s;
}

void bareSearch(benchmark::State& state) {
    const lingomat::EqualCharacters& equal = g_bench->selected().application().state().Exceptions;
    for (auto _ : state) {
        int matches = 0;
        g_bench->yardstick.readExpressions(
            [&](const QString& prefix, const QString& main, const QString& suffix) {
                if (lingomat::matchValue(wrongAnswer(), {prefix, main, suffix, {}}, equal) > 0)
                    ++matches;
            });
        benchmark::DoNotOptimize(matches);
    }
}

void answerSearch(benchmark::State& state) {
    BenchProgram& program = g_bench->selected();
    program.answerWith([](QDialog& /*meanings*/) {}); // what was found is closed again
    lingomat::Trainer& trainer = program.application().trainer();
    trainer.LetzteEingabe = wrongAnswer();
    for (auto _ : state)
        trainer.Suche_Click();
}

/// Every column in turn; the time of one.
void sortColumn(benchmark::State& state) {
    lingomat::FlexGrid& list = g_bench->selected().application().liste().MSFlexGrid1();
    int column = 0;
    for (auto _ : state) {
        list.setCol(1 + column++ % (list.Cols() - 1));
        list.Sort();
        list.flush();
    }
}

/// Changes so many rows, all over the list, as an editor does.
void changeRows(lingomat::Liste& list, int count) {
    static int version = 0;
    ++version;
    lingomat::FlexGrid& grid = list.MSFlexGrid1();
    const int stride = (grid.Rows() - 1) / count;
    for (int i = 0; i < count; ++i) {
        grid.setRow(1 + i * stride);
        grid.setTextMatrix(grid.Row(), lingomat::Liste::ColQuelle, u"Source %1"_s.arg(version));
        list.ZeileGeaendert();
    }
}

template <int Count>
void saveRows(benchmark::State& state) {
    lingomat::Liste& list = g_bench->selected().application().liste();
    for (auto _ : state) {
        state.PauseTiming();
        changeRows(list, Count);
        state.ResumeTiming();
        list.Command2_Click();
    }
}

/// One of the two, the other beside it, so that the number of rows stays what it is.
template <bool Append>
void changeRowCount(benchmark::State& state) {
    lingomat::Application& application = g_bench->selected().application();
    lingomat::Liste& list = application.liste();
    application.trainer().Reihenfolge_sequentiell = true;
    application.trainer().Reihenfolge_shuffle = false;
    const auto append = [&list] {
        list.Command3_Click();
        list.MSFlexGrid1().flush();
    };
    const auto remove = [&list] {
        list.MSFlexGrid1().setRow(1);
        list.Command4_Click();
        list.MSFlexGrid1().flush();
    };
    for (auto _ : state) {
        state.PauseTiming();
        if (Append)
            remove();
        state.ResumeTiming();
        Append ? append() : remove();
        state.PauseTiming();
        if (!Append)
            append();
        state.ResumeTiming();
    }
    list.forgetChanges();
}

/// Texts that no row begins with: the walk goes through all of them.
void searchKeystroke(benchmark::State& state) {
    BenchProgram& program = g_bench->selected();
    lingomat::Liste& list = program.application().liste();
    lingomat::frmSuchen search(program.prompts(),
                               {.grid = list.MSFlexGrid1(),
                                .columns = {lingomat::Liste::ColSprache1, lingomat::Liste::ColSprache2},
                                .languages = {u"German"_s, u"English"_s},
                                .sortByCol = [&list] { list.SortByAll(); },
                                .markRow = [&list] { list.SetzeMarke(); }});
    auto* text = search.findChild<QLineEdit*>(u"txtAusdruck"_s);
    bool longer = false;
    for (auto _ : state)
        text->setText((longer = !longer) ? u"##"_s : u"#"_s);
}

void shuffle(benchmark::State& state) {
    lingomat::Trainer& trainer = g_bench->selected().application().trainer();
    trainer.Reihenfolge_sequentiell = false;
    trainer.Reihenfolge_shuffle = true;
    for (auto _ : state)
        trainer.Command6_Click();
}

void trainerStep(benchmark::State& state) {
    lingomat::Trainer& trainer = g_bench->selected().application().trainer();
    trainer.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        trainer.Command3_Click();
        trainer.repaint();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}

/// From the references of an entry to the form that offers all others.
void newReference(benchmark::State& state) {
    BenchProgram& program = g_bench->selected();
    lingomat::FlexGrid& list = program.application().liste().MSFlexGrid1();
    int stored = 1; // new rows have no references
    while (list.TextMatrix(stored, lingomat::Liste::ColSchluessel) == u"*"_s)
        ++stored;
    list.setRow(stored);
    program.answerWith([](QDialog& dialog) {
        if (auto* add = dialog.findChild<QPushButton*>(u"Add"_s))
            add->click();
    });
    for (auto _ : state)
        program.application().showReferences();
    program.answerWith({});
}

/// The selection form with a thousand types of references, all of them chosen.
lingomat::Form2& lesson() {
    lingomat::Application& application = g_bench->selected().application();
    lingomat::Form2& form = application.form2();
    static bool prepared = false;
    if (std::exchange(prepared, true))
        return form;
    dao::Recordset& references = application.state().DBHandler.RecordsetReferenzen;
    for (int i = 0; i < LessonValues; ++i) {
        references.AddNew();
        references.setField(u"von"_s, i + 1);
        references.setField(u"nach"_s, i + 2);
        references.setField(u"Typ"_s, u"Type %1"_s.arg(i));
        references.Update();
    }
    form.InitialisiereSelectionboxes();
    form.findChild<QTabBar*>(u"tbsOptions"_s)->setCurrentIndex(7);
    form.findChild<QPushButton*>(u"cmdAddAll"_s)->click();
    form.findChild<QComboBox*>(u"cmbName"_s)->setEditText(u"Lesson"_s);
    return form;
}

void storeLesson(benchmark::State& state) {
    auto* save = lesson().findChild<QPushButton*>(u"cmdSpeichern"_s);
    g_bench->program.answerWith([](QDialog&) {});
    for (auto _ : state)
        save->click();
    g_bench->program.answerWith({});
}

void recallLesson(benchmark::State& state) {
    auto* name = lesson().findChild<QComboBox*>(u"cmbName"_s);
    for (auto _ : state) {
        name->clearEditText();
        name->setEditText(u"Lesson"_s);
    }
}

void add(const char* name, void (*function)(benchmark::State&), int iterations) {
    benchmark::RegisterBenchmark(name, function)
        ->Repetitions(Repetitions)
        ->Iterations(iterations)
        ->UseRealTime();
}

void printFigures(Report& report) {
    const auto ms = [&report](const char* name) { return report.milliseconds(name); };
    std::printf("\n%d entries, median of %d runs\n", BigDatabaseEntries, Repetitions);
    report.figure("selection into the list / bare loop", ms("selectionRun") / ms("bareLoop"), 3, "x");
    report.figure("start / (bare loop + empty program)",
                  ms("startProgram") / (ms("bareLoop") + ms("startEmpty")), 2, "x");
    report.figure("score: find, edit, update / bare statements", ms("engineScore") / ms("bareScore"), 2, "x");
    report.figure("search for an answer / bare scan", ms("answerSearch") / ms("bareSearch"), 3, "x");
    report.figure("sort the list by a column", ms("sortColumn"), 100, "ms");
    report.figure("save 1 changed row", ms("saveOneRow"), 50, "ms");
    report.figure("save 1,000 changed rows", ms("saveThousandRows"), 1000, "ms");
    report.figure("append a row", ms("appendRow"), 50, "ms");
    report.figure("delete a row", ms("deleteRow"), 50, "ms");
    report.figure("one keystroke of the search", ms("searchKeystroke"), 50, "ms");
    report.figure("shuffle", ms("shuffle"), 150, "ms");
    report.figure("one step of the Trainer, painted", ms("trainerStep"), 16, "ms");
    report.figure("dialog of a new reference", ms("newReference"), 500, "ms");
    report.figure("store a lesson of 1,000 values", ms("storeLesson"), 500, "ms");
    report.figure("recall it", ms("recallLesson"), 200, "ms");
    report.figure("memory with the whole list open", runStartup(u"list"_s).trimmed().toDouble() / 1024, 200,
                  "MiB");
}

} // namespace

int main(int argc, char** argv) {
    QApplication toolkit(argc, argv);
    benchmark::Initialize(&argc, argv);
    Bench bench;
    g_bench = &bench;

    add("bareLoop", bareLoop, 1);
    add("startEmpty", startEmpty, 1);
    add("startProgram", startProgram, 1);
    add("selectionRun", selectionRun, 1);
    add("bareScore", bareScore, 40);
    add("engineScore", engineScore, 40);
    add("bareSearch", bareSearch, 3);
    add("answerSearch", answerSearch, 3);
    add("sortColumn", sortColumn, 23);
    add("saveOneRow", saveRows<1>, 10);
    add("saveThousandRows", saveRows<1000>, 1);
    add("appendRow", changeRowCount<true>, 10);
    add("deleteRow", changeRowCount<false>, 10);
    add("searchKeystroke", searchKeystroke, 10);
    add("shuffle", shuffle, 3);
    add("trainerStep", trainerStep, 50);
    add("newReference", newReference, 1);
    add("storeLesson", storeLesson, 3);
    add("recallLesson", recallLesson, 3);

    Report report;
    benchmark::RunSpecifiedBenchmarks(&report);
    if (!report.has("bareLoop") || !report.has("recallLesson"))
        return 0; // a filter left some out
    printFigures(report);
    return report.missed() == 0 ? 0 : 1;
}
