#pragma once

#include "Application.h"

#include <QTemporaryDir>

/// The whole program on a copy of the big database, with settings of its own, run without anybody in front of
/// it: a question or a message ends the benchmark.
class BenchProgram {
public:
    BenchProgram();
    ~BenchProgram();
    Q_DISABLE_COPY_MOVE(BenchProgram)

    /// Starts it and returns when the main window takes commands.
    void start();
    /// Selects all entries into the list.
    void selectAll();

    [[nodiscard]] lingomat::Application& application() { return *m_application; }
    [[nodiscard]] QString databasePath() const { return m_folder.filePath(QStringLiteral("big.lmt")); }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<lingomat::Prompts> m_prompts;
    lingomat::ClockSeededRandom m_random;
    std::unique_ptr<lingomat::Application> m_application;
};
