#pragma once

#include "ChildFinder.h"
#include "Prompts.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <optional>
#include <variant>

namespace lingomat {

/// What a text has to be: exactly this, or one that a predicate accepts.
class ExpectedText {
public:
    ExpectedText(const QString& exact);  // NOLINT: a text stands for itself
    ExpectedText(const char16_t* exact); // NOLINT
    [[nodiscard]] static ExpectedText containing(const QString& part);
    [[nodiscard]] static ExpectedText anything();

    [[nodiscard]] bool matches(const QString& text) const { return m_accepts(text); }
    [[nodiscard]] const QString& description() const { return m_description; }

private:
    ExpectedText(std::function<bool(const QString&)> accepts, QString description);

    std::function<bool(const QString&)> m_accepts;
    QString m_description;
};

/// A message box that has to come up. What is left empty may be anything.
struct ExpectedMessage {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    ExpectedText text;
    QMessageBox::StandardButton answer = QMessageBox::Ok;
    std::optional<QString> title{};
    std::optional<QMessageBox::StandardButtons> buttons{};
    std::optional<QMessageBox::StandardButton> defaultButton{};
};

/// Prompts that follow a script: they have to come in the order in which they were announced, each as
/// announced, and none is left over at the end. Anything else fails the test.
///
///     prompts.expectYesNo(u"Do you really want to quit?", true);
///     prompts.expectDialog("Options", [](QDialog& form) { child<QPushButton>(form, "cmdOK").click(); });
class ScriptedPrompts final : public Prompts {
public:
    ScriptedPrompts() = default;
    ~ScriptedPrompts() override; ///< fails the test for steps left over
    Q_DISABLE_COPY_MOVE(ScriptedPrompts)

    void expect(ExpectedMessage message);
    void expectInformation(const ExpectedText& text);
    void expectExclamation(const ExpectedText& text);
    void expectCritical(const ExpectedText& text);
    /// The common error box with this description, in the interface language.
    void expectError(const QString& description);
    /// The common error box, whose description only has to contain `part`.
    void expectErrorContaining(const QString& part);
    /// A question with Yes and No, No being the default.
    void expectYesNo(const ExpectedText& text, bool yes);

    /// A modal form of that name. It is shown, `act` works on it, and has to close it.
    void expectDialog(const char* name, std::function<void(QDialog&)> act);
    /// The answer to a file dialog; nothing stands for Cancel.
    void expectOpenFile(const std::optional<QString>& answer);
    void expectSaveFile(const std::optional<QString>& answer);

    /// Whether everything announced has come.
    [[nodiscard]] bool isFinished() const { return m_steps.empty(); }
    /// Fails the test for what has not come by now, and forgets it.
    void verify();
    [[nodiscard]] int beeps() const { return m_beeps; }
    /// The last request of a file dialog.
    [[nodiscard]] const FileDialogRequest& lastFileRequest() const { return m_lastFileRequest; }

    QMessageBox::StandardButton message(QWidget* parent, const Message& message) override;
    int exec(QDialog& dialog) override;
    std::optional<QString> openFile(QWidget* parent, const FileDialogRequest& request) override;
    std::optional<QString> saveFile(QWidget* parent, const FileDialogRequest& request) override;
    void beep() override { ++m_beeps; }

private:
    struct DialogStep {
        QString name;
        std::function<void(QDialog&)> act;
    };
    struct FileStep {
        bool open;
        bool cancelled;
        QString path;
    };
    using Step = std::variant<ExpectedMessage, DialogStep, FileStep>;

    [[nodiscard]] static QString describe(const Step& step);
    void failUnexpected(const QString& prompt) const;
    /// Takes the next step off the script if it is of that kind; fails the test and gives none otherwise.
    template <typename Kind>
    std::optional<Kind> take(const QString& prompt);
    std::optional<QString> chooseFile(bool open, const FileDialogRequest& request);

    std::deque<Step> m_steps;
    FileDialogRequest m_lastFileRequest;
    int m_beeps = 0;
};

} // namespace lingomat
