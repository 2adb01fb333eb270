#pragma once

#include "FlexGrid.h"
#include "Liste.h"
#include "TestContext.h"
#include "Trainer.h"

#include <QAction>
#include <QHash>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

namespace lingomat {

/// A Trainer on a list of entries "Wort 1" / "word 1", "Wort 2" / "word 2" and so on, German and English.
struct TrainingBench {
    using Fields = QHash<QString, dao::Value>;

    explicit TrainingBench(int entries = 0, const QString& language = QStringLiteral("En"));

    void setEntries(int count); ///< replaces the rows of the list and restarts; without a file
    /// Sets the random numbers so that these entries are drawn, one after the other.
    void draw(const QList<int>& entries);
    /// Presses a button of the toolbar, told by the member that it sets, or picks an entry of a menu.
    void choose(const char* option);
    void step() { trainer.Command3_Click(); }
    void expectEnd(); ///< the message at the end of the sequence

    // A real file below the session.
    void openFile();
    void openFileWith(int entries);         ///< those of setEntries, with score 3
    QString addEntry(const Fields& fields); ///< parts by their field names; the rest is empty. The ID.
    QString addEntry(const QString& main1, const QString& main2);
    void addSynonym(const QString& id, int language, const QString& main, const QString& prefix = {});
    void addReference(const QString& from, const QString& to, const QString& type);
    void addRow(dao::Recordset& table, const Fields& fields);
    void listEntries(); ///< puts all entries of the file into the list and restarts
    [[nodiscard]] QString filePath() const { return context.path(QStringLiteral("training.lmt")); }
    /// What a second connection reads from the entry in row `row` of the file.
    [[nodiscard]] QString stored(int row, const QString& field = QStringLiteral("Score")) const;
    [[nodiscard]] QString score(int row) { return list.MSFlexGrid1().TextMatrix(row, Liste::ColScore); }

    // Judging.
    void beginTyping(); ///< self-test with typed answers
    /// Announces the window for the answer, into which this is typed.
    void willType(const QString& answer);
    void willConfirm(bool known); ///< announces the question whether the answer was known
    /// A whole typed answer: question, input, verdict.
    void type(const QString& answer);
    [[nodiscard]] bool saysRight() { return shown("Richtig"); }
    [[nodiscard]] bool saysWrong() { return shown("NichtWort"); }
    [[nodiscard]] bool shown(const char* name) { return !child<QWidget>(trainer, name).isHidden(); }

    [[nodiscard]] QString question() const { return grid.TextMatrix(1, 0); }
    [[nodiscard]] QString solution() const { return grid.TextMatrix(3, 0); }
    [[nodiscard]] QString panel(int number) const;
    [[nodiscard]] QPushButton& button(const char* name) { return child<QPushButton>(trainer, name); }
    [[nodiscard]] QToolButton& option(const char* name);
    [[nodiscard]] QToolButton& option(int number);
    [[nodiscard]] QAction& action(const char* name) { return child<QAction>(trainer, name); }
    [[nodiscard]] QProgressBar& bar() { return child<QProgressBar>(trainer, "ProgressBar1"); }

    TestContext context;
    Liste list;
    Trainer trainer;
    FlexGrid& grid; ///< VokabelnGrid
};

} // namespace lingomat
