#include "HelpWindow.h"

#include "FormTexts.h"
#include "Globals.h"
#include "HelpBrowser.h"
#include "HelpSearch.h"
#include "ModalFollower.h"
#include "Resources.h"
#include "WindowPlacement.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int PageRole = Qt::UserRole;

// Size at the first opening, in average characters and lines.
constexpr int WidthInCharacters = 142;
constexpr int HeightInLines = 42;
constexpr int PanelInCharacters = 44;

constexpr FormText texts[] = {
    {"actionBack", u"Zurück", u"Back", u"Zur vorigen Seite (Alt+Links)", u"To the previous page (Alt+Left)"},
    {"actionForward", u"Vor", u"Forward", u"Zur nächsten Seite (Alt+Rechts)",
     u"To the next page (Alt+Right)"},
    {"actionContents", u"Inhalt", u"Contents", u"Zur Inhaltsübersicht (Alt+Pos1)",
     u"To the table of contents (Alt+Home)"},
    {"searchLabel", u"&Suchen:", u"&Search:"},
    {"contents", u"Inhalt", u"Contents"},
    {"hits", u"Fundstellen", u"Pages found"},
    {"page", u"Hilfeseite", u"Help page"},
    {"tools", u"Werkzeuge", u"Tools"},
};

QString statusText(qsizetype found) {
    if (found == 0)
        return uiText(u"Keine Seite enthält diese Wörter."_s, u"No page holds these words."_s);
    if (found == 1)
        return uiText(u"1 Seite gefunden"_s, u"1 page found"_s);
    return uiText(u"%1 Seiten gefunden"_s, u"%1 pages found"_s).arg(found);
}

/// "trainer.html#loop" of a file's address.
QString pageOf(const QUrl& address) {
    return address.fileName() + (address.hasFragment() ? u'#' + address.fragment() : QString());
}

void addEntries(QTreeWidgetItem& parent, const QList<HelpEntry>& entries) {
    for (const HelpEntry& entry : entries) {
        auto* item = new QTreeWidgetItem(&parent, {entry.title});
        item->setData(0, PageRole, entry.page);
        item->setToolTip(0, entry.title);
        addEntries(*item, entry.children);
    }
}

} // namespace

HelpWindow::HelpWindow(HelpBook book, QWidget* parent)
    : QMainWindow(parent), m_book(std::move(book)), m_follower(new ModalFollower(*this)) {
    setObjectName(u"HelpWindow"_s);
    auto* splitter = new QSplitter(this);
    splitter->setObjectName(u"splitter"_s);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);

    buildTools();
    buildSidePanel();
    buildPage();
    SetUserInterfaceProperties();
    fillContents();

    const QFontMetrics metrics = fontMetrics();
    const QSize wanted(metrics.averageCharWidth() * WidthInCharacters, metrics.lineSpacing() * HeightInLines);
    resize(wanted.boundedTo(usableScreen(*this).size() * 9 / 10));
    splitter->setStretchFactor(1, 1);
    const int panel = std::min(metrics.averageCharWidth() * PanelInCharacters, width() / 3);
    splitter->setSizes({panel, width() - panel});
}

QAction* HelpWindow::addTool(const char* name, QLatin1StringView iconName) {
    QAction* tool = m_tools->addAction(icon(iconName), QString());
    tool->setObjectName(QString::fromUtf8(name));
    m_tools->widgetForAction(tool)->setObjectName(QString::fromUtf8(name) + "_Button"_L1);
    return tool;
}

void HelpWindow::buildTools() {
    m_tools = addToolBar(QString());
    m_tools->setObjectName(u"tools"_s);
    m_tools->setMovable(false);
    m_tools->setContextMenuPolicy(Qt::PreventContextMenu);
    m_tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_back = addTool("actionBack", "previous"_L1);
    m_back->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    m_forward = addTool("actionForward", "next"_L1);
    m_forward->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Right));
    m_home = addTool("actionContents", "list"_L1);
    m_home->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Home));
    connect(m_home, &QAction::triggered, this, [this] {
        leaveSearch();
        open(HelpBook::contentsPage());
    });
}

void HelpWindow::buildSidePanel() {
    auto* panel = new QWidget(centralWidget());
    panel->setObjectName(u"panel"_s);
    m_searchLabel = new QLabel(panel);
    m_searchLabel->setObjectName(u"searchLabel"_s);
    m_searchText = new QLineEdit(panel);
    m_searchText->setObjectName(u"searchText"_s);
    m_searchText->setClearButtonEnabled(true);
    m_searchLabel->setBuddy(m_searchText);
    m_searchStatus = new QLabel(panel);
    m_searchStatus->setObjectName(u"searchStatus"_s);
    m_searchStatus->setWordWrap(true);
    m_searchStatus->hide();

    m_contents = new QTreeWidget(panel);
    m_contents->setObjectName(u"contents"_s);
    m_contents->setHeaderHidden(true);
    m_hits = new QListWidget(panel);
    m_hits->setObjectName(u"hits"_s);
    m_hits->setWordWrap(true);
    m_hits->setSpacing(3);
    m_hits->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_stack = new QStackedWidget(panel);
    m_stack->setObjectName(u"stack"_s);
    m_stack->addWidget(m_contents);
    m_stack->addWidget(m_hits);

    auto* field = new QHBoxLayout;
    field->addWidget(m_searchLabel);
    field->addWidget(m_searchText, 1);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(4, 4, 0, 4);
    column->addLayout(field);
    column->addWidget(m_searchStatus);
    column->addWidget(m_stack, 1);

    connect(m_searchText, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(m_searchText, &QLineEdit::returnPressed, this, &HelpWindow::openHit);
    connect(m_contents, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* entry) { openEntry(*entry); });
    connect(m_contents, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* entry) { openEntry(*entry); });
    connect(m_hits, &QListWidget::itemClicked, this, &HelpWindow::openHit);
    connect(m_hits, &QListWidget::itemActivated, this, &HelpWindow::openHit);

    auto* find = new QShortcut(QKeySequence::Find, this);
    find->setObjectName(u"shortcutFind"_s);
    connect(find, &QShortcut::activated, this, &HelpWindow::showSearch);
}

void HelpWindow::buildPage() {
    m_page = new HelpBrowser(centralWidget());
    m_page->setObjectName(u"page"_s);
    m_page->setOpenLinks(false); // open() looks first whether the page is there
    connect(m_page, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { open(pageOf(m_page->source().resolved(link))); });
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpWindow::followPage);
    connect(m_page, &QTextBrowser::backwardAvailable, m_back, &QAction::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, m_forward, &QAction::setEnabled);
    connect(m_back, &QAction::triggered, m_page, &QTextBrowser::backward);
    connect(m_forward, &QAction::triggered, m_page, &QTextBrowser::forward);
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
}

void HelpWindow::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    setWindowTitle(uiText(u"Hilfe zu %1"_s, u"Help for %1"_s).arg(ProductName()));
}

void HelpWindow::fillContents() {
    addEntries(*m_contents->invisibleRootItem(), m_book.contents());
    m_contents->expandAll();
}

void HelpWindow::comeUp() {
    const QWidget* asker = QApplication::activeWindow();
    if (!isVisible() && asker)
        move(placeBeside(asker->frameGeometry(), frameSize(), usableScreen(*asker)));
    m_follower->followModalDialog();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpWindow::showPage(const QString& page) {
    comeUp();
    leaveSearch();
    open(page);
    m_page->setFocus();
}

void HelpWindow::showSearch() {
    comeUp();
    if (m_page->source().isEmpty())
        open(HelpBook::contentsPage());
    m_searchText->setFocus(Qt::ShortcutFocusReason);
    m_searchText->selectAll();
}

QString HelpWindow::currentPage() const {
    return pageOf(m_page->source());
}

void HelpWindow::open(const QString& page) {
    if (!m_book.hasPage(page)) {
        Q_EMIT pageMissing(page);
        return;
    }
    QUrl url = QUrl::fromLocalFile(m_book.pathOf(page));
    if (const QString anchor = anchorOf(page); !anchor.isEmpty())
        url.setFragment(anchor);
    m_page->setSource(url);
    m_page->markWords({});
}

void HelpWindow::openEntry(const QTreeWidgetItem& entry) {
    open(entry.data(0, PageRole).toString());
}

void HelpWindow::followPage(const QUrl& source) {
    const QString page = pageOf(source);
    QTreeWidgetItem* closest = nullptr;
    for (QTreeWidgetItemIterator it(m_contents); *it; ++it) {
        const QString target = (*it)->data(0, PageRole).toString();
        if (target == page) {
            closest = *it;
            break;
        }
        if (!closest && withoutAnchor(target) == withoutAnchor(page))
            closest = *it;
    }
    m_contents->setCurrentItem(closest);
}

void HelpWindow::search(const QString& question) {
    const QStringList words = searchWords(question);
    m_hits->clear();
    m_searchStatus->setVisible(!words.isEmpty());
    m_stack->setCurrentWidget(words.isEmpty() ? static_cast<QWidget*>(m_contents) : m_hits);
    if (words.isEmpty())
        return;
    if (!m_pages)
        m_pages = m_book.pages();
    const QList<HelpHit> found = searchHelp(*m_pages, question);
    for (const HelpHit& hit : found) {
        auto* item = new QListWidgetItem(hit.title + u'\n' + hit.excerpt, m_hits);
        item->setData(PageRole, hit.page);
    }
    m_searchStatus->setText(statusText(found.size()));
    m_hits->setCurrentRow(0);
}

void HelpWindow::openHit() {
    const QListWidgetItem* hit = m_hits->currentItem();
    if (!hit || m_stack->currentWidget() != m_hits)
        return;
    open(hit->data(PageRole).toString());
    m_page->markWords(searchWords(m_searchText->text()));
}

void HelpWindow::leaveSearch() {
    m_searchText->clear();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        // The first one leaves the search, the next one the window.
        if (m_searchText->text().isEmpty())
            close();
        else
            leaveSearch();
        return;
    }
    if (event->key() == Qt::Key_Down && m_searchText->hasFocus()) {
        m_stack->currentWidget()->setFocus();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

} // namespace lingomat
