#pragma once

#include "HelpBook.h"

#include <QMainWindow>

#include <optional>

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace lingomat {

class HelpBrowser;
class ModalFollower;

/// The window that shows the help: on the left the contents, or what the search has found, on the right one
/// page. It is modeless, and usable while a modal dialog is up.
class HelpWindow final : public QMainWindow {
    Q_OBJECT

public:
    explicit HelpWindow(HelpBook book, QWidget* parent = nullptr);

    /// Shows a page, "trainer.html" or "trainer.html#loop", and comes to the front.
    void showPage(const QString& page);
    /// Comes to the front with an empty search field that has the focus.
    void showSearch();

    /// The page on display, with its anchor if it was opened at one.
    [[nodiscard]] QString currentPage() const;

    void SetUserInterfaceProperties();

Q_SIGNALS:
    /// A page that a link or the contents lead to cannot be read.
    void pageMissing(const QString& page);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildTools();
    void buildSidePanel();
    void buildPage();
    QAction* addTool(const char* name, QLatin1StringView iconName);
    void comeUp();
    void open(const QString& page);
    void openEntry(const QTreeWidgetItem& entry);
    void fillContents();
    /// Marks the page in the contents. It is being opened: the view still names the one before.
    void followPage(const QUrl& source);
    void search(const QString& question);
    void openHit();
    void leaveSearch();

    HelpBook m_book;
    std::optional<QList<HelpPage>> m_pages; ///< read at the first search
    ModalFollower* m_follower;
    QToolBar* m_tools = nullptr;
    QAction* m_back = nullptr;
    QAction* m_forward = nullptr;
    QAction* m_home = nullptr;
    QLabel* m_searchLabel = nullptr;
    QLineEdit* m_searchText = nullptr;
    QLabel* m_searchStatus = nullptr;
    QStackedWidget* m_stack = nullptr;
    QTreeWidget* m_contents = nullptr;
    QListWidget* m_hits = nullptr;
    HelpBrowser* m_page = nullptr;
};

} // namespace lingomat
