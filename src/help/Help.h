#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace lingomat {

class HelpWindow;
class Prompts;

/// The help of the program: its window, and the key F1 in every other window.
///
/// The files lie below the program folder, one folder an interface language: `help/en`, `help/de`. They are
/// looked for anew each time, and where they are missing the user is told so.
class Help final : public QObject {
    Q_OBJECT

public:
    /// From now on F1 opens the page of the control that has the focus, in whatever window of the program.
    Help(Prompts& prompts, const QString& programFolder, QObject* parent = nullptr);
    ~Help() override;

    void showContents();
    void showSearch();
    /// The page that belongs to a control or window; none: the contents.
    void showFor(const QWidget* focus);
    void close();

    /// The help's window once it has been opened; null before.
    [[nodiscard]] HelpWindow* window() const { return m_window.get(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The window, made if need be; null, and a message, where there is no help.
    HelpWindow* openWindow();
    void showPage(const QString& page);

    Prompts& m_prompts;
    QString m_folder;
    std::unique_ptr<HelpWindow> m_window;
};

/// Where the pages of the interface language lie.
[[nodiscard]] QString helpFolder(const QString& programFolder);

} // namespace lingomat
