#pragma once

#include "FlexGrid.h"
#include "Liste.h"
#include "TestContext.h"
#include "Trainer.h"

#include <QAction>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace lingomat {

/// A Trainer on a list of entries "Wort 1" / "word 1", "Wort 2" / "word 2" and so on, German and English.
struct TrainingBench {
    explicit TrainingBench(int entries = 0, const QString& language = QStringLiteral("En"));

    void setEntries(int count); ///< replaces the rows of the list and restarts
    /// Sets the random numbers so that these entries are drawn, one after the other.
    void draw(const QList<int>& entries);
    void choose(const char* action); ///< picks an entry of a menu
    void step() { trainer.Command3_Click(); }
    void expectEnd(); ///< the message at the end of the sequence
    /// What the judged answer does to the session: the present entry leaves the loop.
    void answerRight();

    [[nodiscard]] QString question() const { return grid.TextMatrix(1, 0); }
    [[nodiscard]] QString solution() const { return grid.TextMatrix(3, 0); }
    [[nodiscard]] QString panel(int number) const;
    [[nodiscard]] QPushButton& button(const char* name) { return child<QPushButton>(trainer, name); }
    [[nodiscard]] QAction& action(const char* name) { return child<QAction>(trainer, name); }
    [[nodiscard]] QProgressBar& bar() { return child<QProgressBar>(trainer, "ProgressBar1"); }

    TestContext context;
    Liste list;
    Trainer trainer;
    FlexGrid& grid; ///< VokabelnGrid
};

} // namespace lingomat
