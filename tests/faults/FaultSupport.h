#pragma once

#include "Prompts.h"
#include "TestProgram.h"

#include <QStringList>

#include <unistd.h>

namespace lingomat {

/// Prompts that take down what is said and give the answer that does the least.
class RecordingPrompts final : public Prompts {
public:
    QMessageBox::StandardButton message(QWidget* parent, const Message& message) override;
    int exec(QDialog& dialog) override;
    std::optional<QString> openFile(QWidget* parent, const FileDialogRequest& request) override;
    std::optional<QString> saveFile(QWidget* parent, const FileDialogRequest& request) override;
    void beep() override {}

    QStringList texts;
    std::optional<QString> fileToOpen;
};

/// While it lives, file permissions bind: they do not bind the superuser, so that one becomes nobody.
class OrdinaryUser {
public:
    OrdinaryUser();
    ~OrdinaryUser();
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    const uid_t m_before;
};

/// How a file comes to be opened.
enum class Way { AtStart, ByCommand };

/// A program that is asked to open one file that is not what it should be.
class FaultyFile {
public:
    explicit FaultyFile(Way way, const QString& language = QStringLiteral("En"));

    [[nodiscard]] QString path(const QString& name) const { return m_program.path(name); }
    /// Opens the file. The program has to be there afterwards, with the main window up.
    void open(const QString& file);
    /// The file was refused: something was said, nothing is open, another file can be opened and the program
    /// ends as usual.
    void expectRefused();
    /// One of the messages contains that text.
    void expectTold(const QString& text) const;
    [[nodiscard]] bool isOpen() { return m_program.app().state().databaseIsOpen(); }
    [[nodiscard]] QString said() const { return m_prompts.texts.join(u"\n---\n"); }
    [[nodiscard]] const QStringList& messages() const { return m_prompts.texts; }
    [[nodiscard]] TestProgram& program() { return m_program; }

private:
    const Way m_way;
    RecordingPrompts m_prompts;
    TestProgram m_program;
};

} // namespace lingomat
