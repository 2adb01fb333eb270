#pragma once

#include "Prompts.h"

#include <QHash>
#include <QString>

#include <functional>

namespace lingomat {

/// Takes the pictures of windows, and answers what the program asks meanwhile. Questions are answered with
/// Yes, or OK where there is no Yes; a dialog plays the scene announced for it and is closed.
class Stage final : public Prompts {
public:
    /// Pictures go to that folder, which has to exist.
    explicit Stage(QString folder) : m_folder(std::move(folder)) {}

    /// A picture of the window as it stands, with a plain frame and its title. Throws std::runtime_error
    /// where it cannot be written.
    void take(QWidget& window, const QString& name);
    /// Plays each time a dialog of that name comes up.
    void onDialog(const QString& name, std::function<void(QDialog&)> scene) {
        m_scenes[name] = std::move(scene);
    }
    /// The file that the next file dialog gives.
    void chooseFile(const QString& path) { m_file = path; }

    QMessageBox::StandardButton message(QWidget* parent, const Message& message) override;
    int exec(QDialog& dialog) override;
    std::optional<QString> openFile(QWidget* parent, const FileDialogRequest& request) override;
    std::optional<QString> saveFile(QWidget* parent, const FileDialogRequest& request) override;
    void beep() override {}

private:
    QString m_folder;
    QString m_file;
    QHash<QString, std::function<void(QDialog&)>> m_scenes;
};

} // namespace lingomat
