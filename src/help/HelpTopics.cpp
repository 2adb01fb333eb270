#include "HelpTopics.h"

#include "HelpBook.h"

#include <QApplication>
#include <QMenu>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

struct Topic {
    const char* window;
    const char* page;
    const char* control = nullptr; ///< a control or container of the window; none: the window itself
};

constexpr Topic topics[] = {
    {"frmSplash", "firststeps.html"},

    {"Form1", "main.html"},
    {"Form1", "selection.html", "Command1"},
    {"Form1", "selection.html", "Menu_Ansicht_Auswahl"},
    {"Form1", "list.html", "Grid"},
    {"Form1", "list.html", "Menu_Auswahl_Liste"},
    {"Form1", "trainer.html", "Command2"},
    {"Form1", "trainer.html", "Menu_Ansicht_Vokabeltrainer"},
    {"Form1", "languages.html", "Menu_Datei_Neu"},
    {"Form1", "printing.html", "Datei_Drucken"},
    {"Form1", "characters.html", "Sonderzeichen"},
    {"Form1", "options.html", "Optionen"},
    {"Form1", "about.html", "mnuHelpInfo"},
    {"SprachenEingabe", "languages.html"},
    {"Progress", "main.html#progress"},
    {"frmAbout", "about.html"},

    {"Form2", "selection.html"},
    {"Form2", "selection.html#pairs", "frmListboxes"},
    {"Form2", "selection.html#score", "picScore"},
    {"Form2", "selection.html#parts", "picWortbestandteile"},
    {"Form2", "selection.html#misc", "picEingabedatum"},
    {"Form2", "selection.html#misc", "picAenderungsdatum"},
    {"Form2", "selection.html#misc", "picBeispielsatz"},
    {"Form2", "selection.html#misc", "picZusatzinfo"},
    {"Form2", "characters.html", "cmdFont"},
    {"Form2", "lessons.html", "cmbName"},
    {"Form2", "lessons.html", "cmdSpeichern"},
    {"Form2", "lessons.html", "cmdLoeschen"},
    {"Form2", "lessons.html", "mnAuswahlNeu"},
    {"Form2", "lessons.html", "mnAuswahlOpen"},
    {"Form2", "lessons.html", "mnAuswahlSpeichern"},
    {"Form2", "lessons.html", "mnAuswahlDelete"},
    {"frmSelectAuswahl", "lessons.html"},

    {"Liste", "list.html"},
    {"Liste", "list.html#sorting", "WordSort"},
    {"Liste", "list.html#columns", "mnSpalten"},
    {"Liste", "find.html", "mnSuchen"},
    {"Liste", "references.html", "Referenzen"},
    {"Liste", "references.html", "mnReferenzen"},
    {"Liste", "printing.html", "Drucken"},
    {"Liste", "printing.html", "mnDrucken"},
    {"Liste", "characters.html", "Command6"},
    {"Liste", "characters.html", "mnSonderzeichen"},
    {"Liste", "options.html#columns", "mnAnsichtOptionen"},
    {"Liste", "options.html", "mnOptionen"},
    {"frmVokabelEingabe", "expression.html"},
    {"frmVokabelEingabe", "expression.html#synonyms", "cmdSynonyme"},
    {"frmVokabelEingabe", "expression.html#synonyms", "lstSynonyme"},
    {"frmVokabelEingabe", "expression.html#synonyms", "cmdAdd"},
    {"frmVokabelEingabe", "expression.html#synonyms", "cmdChange"},
    {"frmVokabelEingabe", "expression.html#synonyms", "cmdDelete"},
    {"AusdruckForm", "expression.html#synonyms"},
    {"AddListBox", "attributes.html"},
    {"FontHelp", "characters.html"},
    {"frmSuchen", "find.html"},

    {"Relationen", "references.html"},
    {"NeueRelation", "newreference.html"},

    {"Trainer", "trainer.html"},
    {"Trainer", "trainer.html#panels", "TabStrip1"},
    {"Trainer", "trainer.html#panels", "picAttribute"},
    {"Trainer", "trainer.html#panels", "picDetails"},
    {"Trainer", "trainer.html#panels", "picReferenzen"},
    {"Trainer", "trainer.html#toolbar", "Toolbar1"},
    {"Trainer", "trainer.html#synonyms", "UpDown1"},
    {"Trainer", "trainer.html#synonyms", "UpDown2"},
    {"Trainer", "judging.html#find", "Suche"},
    {"Trainer", "judging.html#find", "menSucheZuletzt"},
    {"Trainer", "options.html", "menMain"},
    {"Trainer", "options.html#test", "menTestoptionen"},
    {"InputFenster", "judging.html#typing"},
    {"ConfirmForm", "judging.html#confirm"},
    {"ConfirmDlg", "judging.html#self"},
    {"Bedeutung", "judging.html#find"},
    {"frmOptions", "options.html"},
    {"frmOptions", "options.html#order", "picOptions1"},
    {"frmOptions", "options.html#test", "picOptions2"},
    {"frmOptions", "options.html#characters", "picOptions3"},
    {"frmOptions", "options.html#columns", "picOptions4"},

    {"HelpWindow", "contents.html"},
};

bool isNamed(const char* name, const QString& wanted) {
    return name && QString::fromUtf8(name) == wanted;
}

/// Names from the control outwards. A menu that stands open speaks for the entry that is marked.
QStringList namesFrom(const QWidget* widget) {
    QStringList names;
    if (const auto* menu = qobject_cast<const QMenu*>(widget)) {
        if (const QAction* marked = menu->activeAction())
            names.append(marked->objectName());
    }
    for (; widget; widget = widget->parentWidget())
        names.append(widget->objectName());
    return names;
}

} // namespace

QString helpPageFor(const QStringList& names) {
    if (names.isEmpty())
        return {};
    const QString& window = names.last();
    QString pageOfWindow;
    for (const QString& name : names) {
        for (const Topic& topic : topics) {
            if (!isNamed(topic.window, window))
                continue;
            if (isNamed(topic.control, name))
                return QString::fromUtf8(topic.page);
            if (!topic.control)
                pageOfWindow = QString::fromUtf8(topic.page);
        }
    }
    return pageOfWindow;
}

QString helpPageFor(const QWidget* focus) {
    QStringList names = namesFrom(focus);
    // Each name on the way outwards may be that of a window; the first with a page wins.
    for (qsizetype count = 1; count <= names.size(); ++count) {
        const QString page = helpPageFor(names.first(count));
        if (!page.isEmpty())
            return page;
    }
    return HelpBook::contentsPage();
}

QStringList allHelpTargets() {
    QStringList all;
    for (const Topic& topic : topics)
        all.append(QString::fromUtf8(topic.page));
    all.removeDuplicates();
    return all;
}

} // namespace lingomat
