#include "Help.h"

#include "ErrorTrap.h"
#include "Globals.h"
#include "HelpTopics.h"
#include "HelpWindow.h"
#include "Prompts.h"

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

bool isHelpKey(const QObject& watched, const QEvent& event) {
    if (event.type() != QEvent::KeyPress || !watched.isWidgetType())
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F1 && (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

void tellNoHelp(Prompts& prompts) {
    prompts.information(QApplication::activeWindow(),
                        uiText(u"Hilfeinhalt konnte nicht angezeigt werden. Dieser Anwendung ist keine "
                               u"Hilfedatei zugeordnet."_s,
                               u"Help content could not be displayed. No help file assigned to this "
                               u"application."_s));
}

void tellPageMissing(Prompts& prompts, const QString& page) {
    prompts.message(QApplication::activeWindow(),
                    {.title = {},
                     .text = uiText(u"Die Seite '%1' der Hilfe kann nicht gelesen werden."_s,
                                    u"The page '%1' of the help cannot be read."_s)
                                 .arg(page)});
}

} // namespace

QString helpFolder(const QString& programFolder) {
    return programFolder + uiText(u"/help/de"_s, u"/help/en"_s);
}

Help::Help(Prompts& prompts, const QString& programFolder, QObject* parent)
    : QObject(parent), m_prompts(prompts), m_folder(helpFolder(programFolder)) {
    qApp->installEventFilter(this);
}

Help::~Help() = default;

HelpWindow* Help::openWindow() {
    const HelpBook book(m_folder);
    if (!book.exists()) {
        tellNoHelp(m_prompts);
        return nullptr;
    }
    if (!m_window) {
        m_window = std::make_unique<HelpWindow>(book);
        connect(m_window.get(), &HelpWindow::pageMissing, this,
                [this](const QString& page) { tellPageMissing(m_prompts, page); });
    }
    return m_window.get();
}

void Help::showPage(const QString& page) {
    trapped(m_prompts, [this, &page] {
        if (HelpWindow* window = openWindow())
            window->showPage(page);
    });
}

void Help::showContents() {
    showPage(HelpBook::contentsPage());
}

void Help::showSearch() {
    trapped(m_prompts, [this] {
        if (HelpWindow* window = openWindow())
            window->showSearch();
    });
}

void Help::showFor(const QWidget* focus) {
    showPage(helpPageFor(focus));
}

void Help::close() {
    if (m_window)
        m_window->close();
}

bool Help::eventFilter(QObject* watched, QEvent* event) {
    if (!isHelpKey(*watched, *event))
        return QObject::eventFilter(watched, event);
    const QString page = helpPageFor(static_cast<QWidget*>(watched));
    // A menu or list that stands open would keep the input to itself.
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        if (QApplication::activePopupWidget() == popup)
            break;
    }
    showPage(page);
    return true;
}

} // namespace lingomat
