#pragma once

#include "Application.h"

#include <QTemporaryDir>

#include <functional>

/// The whole program on a copy of the big database, with settings of its own, run without anybody in front of
/// it: a question, a message or a modal form that nobody answers ends the benchmark.
class BenchProgram {
public:
    BenchProgram();
    ~BenchProgram();
    Q_DISABLE_COPY_MOVE(BenchProgram)

    /// Starts it and returns when the main window takes commands.
    void start();
    /// Selects all entries into the list.
    void selectAll();

    /// Has every question answered with Yes, and `act` work on each modal form while it is shown.
    void answerWith(std::function<void(QDialog&)> act);

    [[nodiscard]] lingomat::Prompts& prompts();
    [[nodiscard]] lingomat::Application& application() { return *m_application; }
    [[nodiscard]] QString databasePath() const { return m_folder.filePath(QStringLiteral("big.lmt")); }

private:
    QTemporaryDir m_folder;
    class StandIn;
    std::unique_ptr<StandIn> m_prompts;
    lingomat::ClockSeededRandom m_random;
    std::unique_ptr<lingomat::Application> m_application;
};
