#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QString>

#include <functional>
#include <optional>

namespace lingomat {

/// One message box: what it says and which answers it takes.
struct Message {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title{}; ///< empty: the product's name
    QString text{};
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
};

struct FileDialogRequest {
    QString title{};
    QString filter{};    ///< "name (*.ext);;name (*)"
    QString directory{}; ///< where it starts; empty: the toolkit's choice
    bool confirmOverwrite = false;
};

/// Everything that stops the program and waits for the user. The real one shows boxes and dialogs; tests
/// put a script in its place. No other code opens a modal window.
class Prompts {
public:
    virtual ~Prompts() = default;

    virtual QMessageBox::StandardButton message(QWidget* parent, const Message& message) = 0;
    /// Runs a dialog modally and returns its result.
    virtual int exec(QDialog& dialog) = 0;
    /// The chosen file; nothing when the user cancelled.
    virtual std::optional<QString> openFile(QWidget* parent, const FileDialogRequest& request) = 0;
    virtual std::optional<QString> saveFile(QWidget* parent, const FileDialogRequest& request) = 0;
    virtual void beep() = 0;

    // Shorthands.
    void information(QWidget* parent, const QString& text);
    void exclamation(QWidget* parent, const QString& text);
    void critical(QWidget* parent, const QString& text);
    /// A question with Yes and No, No being the default. True for Yes.
    [[nodiscard]] bool yesNo(QWidget* parent, const QString& text);
};

/// The real thing: QMessageBox, QDialog::exec, QFileDialog, QApplication::beep.
class ScreenPrompts final : public Prompts {
public:
    QMessageBox::StandardButton message(QWidget* parent, const Message& message) override;
    int exec(QDialog& dialog) override;
    std::optional<QString> openFile(QWidget* parent, const FileDialogRequest& request) override;
    std::optional<QString> saveFile(QWidget* parent, const FileDialogRequest& request) override;
    void beep() override;
};

} // namespace lingomat
