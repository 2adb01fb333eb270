#include "TestProgram.h"

#include "Globals.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

struct Caption {
    const char* control;
    const char16_t* english;
    const char16_t* german;
    const char16_t* englishTip = u"";
};

constexpr Caption Menus[] = {{"Menu_Datei", u"&File", u"Datei"},
                             {"Menu_Ansicht", u"&View", u"Ansicht"},
                             {"mnuHelp", u"&Help", u"Hilfe"}};
constexpr Caption Entries[] = {
    {"Menu_Datei_Neu", u"&New Vocab Database...", u"Neue Vokabeldatenbank..."},
    {"Datei_Open", u"&Open Vocab Database...", u"Öffne Vokabeldatenbank ..."},
    {"Datei_Beispiel", u"Open E&xample...", u"Beispiel öffnen..."},
    {"Datei_Drucken", u"&Print...", u"Drucken..."},
    {"Menu_Datei_Beenden", u"&Quit", u"Beenden"},
    {"Menu_Ansicht_Auswahl", u"&Selection", u"Auswahl"},
    {"Menu_Auswahl_Liste", u"Vocab &List", u"Liste"},
    {"Menu_Ansicht_Vokabeltrainer", u"&Trainer", u"Vokabeltrainer"},
    {"Optionen", u"&Options...", u"Optionen ..."},
    {"mnuHelpInhalt", u"&Content", u"&Inhalt"},
    {"mnuHelpSuchen", u"&Search in Help", u"Suchen in der Hilfe"},
    {"mnuHelpInfo", u"&About Lingomat", u"Info"},
    {"mnWeb", u"Lingomat in the &Web", u"Lingomat im Web"},
};
constexpr Caption Buttons[] = {
    {"Command1", u"&Selection", u"Auswahl", u"Opens the Selection Window"},
    {"Command2", u"&Trainer", u"Trainer", u"Opens the Trainer"},
    {"Command4", u"&Quit", u"Beenden", u"Terminates the Application"},
    {"Grid", u"&List", u"Liste", u"Opens the Vocab List"},
};

class Texts : public testing::TestWithParam<QString> {
protected:
    Texts() : program(GetParam()) { program.startWithDatabase(); }
    QString caption(const Caption& row) const {
        return QString::fromUtf16(GetParam() == u"En"_s ? row.english : row.german);
    }
    TestProgram program;
};
INSTANTIATE_TEST_SUITE_P(Languages, Texts, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(Texts, MainWindowFollowsItsTable) {
    const Form1& form = program.app().form1();
    EXPECT_EQ(form.windowTitle(), u"Lingomat"_s);
    for (const Caption& row : Menus)
        EXPECT_EQ(child<QMenu>(form, row.control).title(), caption(row)) << row.control;
    for (const Caption& row : Entries)
        EXPECT_EQ(child<QAction>(form, row.control).text(), caption(row)) << row.control;
    EXPECT_EQ(child<QLabel>(form, "Label1").text(), GetParam() == u"En"_s ? u"Help: F1"_s : u"Hilfe: F1"_s);
    for (const Caption& row : Buttons) {
        EXPECT_EQ(child<QPushButton>(form, row.control).text(), caption(row)) << row.control;
        const QString tip = GetParam() == u"En"_s ? QString::fromUtf16(row.englishTip) : QString();
        EXPECT_EQ(child<QPushButton>(form, row.control).toolTip(), tip) << row.control;
    }
}

TEST_P(Texts, MenusHoldTheirEntriesInOrder) {
    const auto names = [this](const char* menu) {
        QStringList all;
        const QList<QAction*> actions = child<QMenu>(program.app().form1(), menu).actions();
        for (const QAction* action : actions)
            all.append(action->isSeparator() ? u"-"_s : action->objectName());
        return all;
    };
    EXPECT_EQ(names("Menu_Datei"),
              QStringList({u"Menu_Datei_Neu"_s, u"Datei_Open"_s, u"Datei_Beispiel"_s, u"-"_s,
                           u"Datei_Drucken"_s, u"-"_s, u"Menu_Datei_Beenden"_s}));
    EXPECT_EQ(names("Menu_Ansicht"),
              QStringList({u"Menu_Ansicht_Auswahl"_s, u"Menu_Auswahl_Liste"_s,
                           u"Menu_Ansicht_Vokabeltrainer"_s, u"-"_s, u"Sonderzeichen"_s, u"Optionen"_s}));
    EXPECT_EQ(names("mnuHelp"),
              QStringList({u"mnuHelpInhalt"_s, u"mnuHelpSuchen"_s, u"-"_s, u"mnuHelpInfo"_s, u"mnWeb"_s}));
}

TEST_P(Texts, MnemonicsOfOneLevelDiffer) {
    const auto expectDistinct = [](const QStringList& captions) {
        QStringList letters;
        for (const QString& caption : captions) {
            const qsizetype sign = caption.indexOf(u'&');
            if (sign >= 0)
                letters.append(caption.sliced(sign + 1, 1).toLower());
        }
        EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(u' ').toStdString();
    };
    const Form1& form = program.app().form1();
    QStringList window;
    for (const Caption& row : Menus)
        window.append(child<QMenu>(form, row.control).title());
    for (const Caption& row : Buttons)
        window.append(child<QPushButton>(form, row.control).text());
    expectDistinct(window);
}

} // namespace
} // namespace lingomat
