// The options dialog: what it takes from the Trainer and gives back, exclusions, texts, keys.

#include "ModalDriver.h"
#include "OptionsBench.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct Control {
    const char* name;
    bool Trainer::*member;
};

constexpr Control Controls[]{
    {"Reihenfolge_sequentiell", &Trainer::Reihenfolge_sequentiell},
    {"Reihenfolge_shuffle", &Trainer::Reihenfolge_shuffle},
    {"Reihenfolge_random", &Trainer::Reihenfolge_random},
    {"Sprache_spanisch", &Trainer::Lang1Zuerst},
    {"Sprache_deutsch", &Trainer::Lang2Zuerst},
    {"Selbsttest", &Trainer::Selbsttest},
    {"Schleife", &Trainer::Schleife},
    {"Schreiben", &Trainer::Schreiben},
    {"FehlerBestaetigen", &Trainer::FehlerBestaetigen},
    {"MainOnly", &Trainer::MainOnly},
};

/// The names of those controls that are set, or of those members.
QStringList setControls(OptionsBench& bench) {
    QStringList all;
    for (const Control& control : Controls) {
        if (bench.box(control.name).isChecked())
            all += QString::fromLatin1(control.name);
    }
    return all;
}

QStringList setMembers(const Trainer& trainer) {
    QStringList all;
    for (const Control& control : Controls) {
        if (trainer.*control.member)
            all += QString::fromLatin1(control.name);
    }
    return all;
}

/// The dependent check boxes as "checked/enabled": L- for a loop that is checked and may not be changed.
QString dependent(OptionsBench& bench) {
    QString all;
    for (const auto& [name, letter] : {std::pair{"Schleife", u'L'}, std::pair{"Schreiben", u'W'},
                                       std::pair{"FehlerBestaetigen", u'E'}, std::pair{"MainOnly", u'M'}}) {
        all += bench.box(name).isChecked() ? QChar(letter) : QChar(letter).toLower();
        all += bench.box(name).isEnabled() ? u'+' : u'-';
    }
    return all;
}

const QString LoopEnds = u"The option 'Loop'is being deactivated in order to set option 'Random'."_s;
const QString LoopRefused = u"This option can not be chosen, because the option 'Random' is set."_s;

} // namespace

TEST(OptionsForm, ShowsTheMembersOfTheTrainer) {
    OptionsBench bench;
    Trainer& trainer = bench.trainer;
    bench.open();
    EXPECT_EQ(setControls(bench), (QStringList{u"Reihenfolge_sequentiell"_s, u"Sprache_spanisch"_s}));
    bench.form.close();

    trainer.Reihenfolge_sequentiell = false;
    trainer.Reihenfolge_shuffle = true;
    trainer.Lang1Zuerst = false;
    trainer.Lang2Zuerst = true;
    for (const auto member : {&Trainer::Selbsttest, &Trainer::Schleife, &Trainer::Schreiben,
                              &Trainer::FehlerBestaetigen, &Trainer::MainOnly}) {
        trainer.*member = true;
        bench.open();
        EXPECT_EQ(setControls(bench), setMembers(trainer));
        bench.form.close();
    }
}

TEST(OptionsForm, ApplyGivesThemBackAndTellsTheTrainer) {
    OptionsBench bench;
    bench.open();
    for (const char* name : {"Reihenfolge_shuffle", "Sprache_deutsch", "Selbsttest", "Schleife", "Schreiben",
                             "FehlerBestaetigen", "MainOnly"})
        bench.press(name);
    EXPECT_EQ(setMembers(bench.trainer).size(), 2) << "nothing is taken over yet";
    bench.press("cmdApply");
    EXPECT_TRUE(bench.form.isVisible());
    EXPECT_EQ(setMembers(bench.trainer), setControls(bench));
    EXPECT_EQ(setMembers(bench.trainer).size(), 7);
    for (const int button : {2, 6, 8, 9, 10, 11, 12})
        EXPECT_TRUE(bench.option(button).isChecked()) << button;
    EXPECT_EQ(bench.grid.TextMatrix(0, 0), u"English") << "language 2 on top";
    EXPECT_FALSE(bench.button("Command2").isEnabled());
}

TEST(OptionsForm, ApplyRestartsTheSessionWithNothingChangedToo) {
    for (const char* button : {"cmdApply", "cmdOK"}) {
        OptionsBench bench;
        bench.step();
        bench.step();
        bench.open();
        bench.press(button);
        EXPECT_EQ(bench.trainer.Position, 0) << button;
        EXPECT_EQ(bench.question(), QString()) << button;
    }
}

TEST(OptionsForm, CancelWritesNothing) {
    for (const bool byKey : {false, true}) {
        OptionsBench bench;
        bench.step();
        bench.open();
        bench.press("Reihenfolge_random");
        bench.press("chkQuelle");
        bench.addPair(u"a"_s, u"b"_s);
        if (byKey)
            QTest::keyClick(&bench.form, Qt::Key_Escape);
        else
            bench.press("cmdCancel");
        EXPECT_FALSE(bench.form.isVisible());
        EXPECT_EQ(bench.trainer.Position, 1);
        EXPECT_TRUE(bench.trainer.Reihenfolge_sequentiell);
        EXPECT_EQ(bench.section("List"), QString());
        EXPECT_EQ(bench.section("Exceptions"), QString());
        EXPECT_EQ(bench.mapped(u"a"_s), u"a");
        EXPECT_TRUE(bench.context.columns.isShown(ListColumn::Quelle));

        bench.open();
        EXPECT_TRUE(bench.box("Reihenfolge_sequentiell").isChecked());
        EXPECT_TRUE(bench.box("chkQuelle").isChecked());
        EXPECT_EQ(bench.shownPairs(), QString());
    }
}

TEST(OptionsForm, OptionsLastForTheRunOnly) {
    OptionsBench bench;
    bench.open();
    bench.press("Reihenfolge_shuffle");
    bench.press("Selbsttest");
    bench.press("cmdOK");
    EXPECT_FALSE(bench.form.isVisible());
    EXPECT_EQ(
        SettingsStore(bench.context.path(u"settings"_s)).GetAllSettings(AppName(), u"Parameters"_s).size(),
        0);
    EXPECT_FALSE(bench.section("List").contains(u"Reihenfolge"_s));
}

// Exclusions.

TEST(OptionsForm, SelfTestAndWritingNarrowWhatMayBeChosen) {
    OptionsBench bench;
    bench.open();
    EXPECT_EQ(dependent(bench), u"l-w-e-m-");
    bench.press("Selbsttest");
    EXPECT_EQ(dependent(bench), u"l+w+e-m-");
    bench.press("Schreiben");
    EXPECT_EQ(dependent(bench), u"l+W+e+m+");
    bench.press("FehlerBestaetigen");
    bench.press("MainOnly");
    bench.press("Schleife");
    EXPECT_EQ(dependent(bench), u"L+W+E+M+");
    bench.press("Schreiben");
    EXPECT_EQ(dependent(bench), u"L+w+E-M-") << "disabled, not cleared";
    bench.press("Schreiben");
    EXPECT_EQ(dependent(bench), u"L+W+E+M+");
    bench.press("Selbsttest");
    EXPECT_EQ(dependent(bench), u"l-w-e-m-");
}

TEST(OptionsForm, RandomOrderEndsTheLoopAndTheOtherOrdersGiveItBack) {
    for (const char* order : {"Reihenfolge_sequentiell", "Reihenfolge_shuffle"}) {
        OptionsBench bench;
        bench.open();
        bench.press("Selbsttest");
        bench.press("Schleife");
        bench.context.prompts.expectInformation(LoopEnds);
        bench.press("Reihenfolge_random");
        EXPECT_EQ(dependent(bench), u"l-w+e-m-");
        bench.press(order);
        EXPECT_EQ(dependent(bench), u"l+w+e-m-");
        bench.press("Reihenfolge_random"); // nothing left to say
        EXPECT_EQ(dependent(bench), u"l-w+e-m-");
    }
}

TEST(OptionsForm, InRandomOrderTheSelfTestComesWithoutTheLoop) {
    OptionsBench bench;
    bench.open();
    bench.press("Reihenfolge_random");
    bench.press("Selbsttest");
    EXPECT_EQ(dependent(bench), u"l-w+e-m-");
    bench.press("Reihenfolge_random");
    bench.press("Selbsttest");
    bench.press("Reihenfolge_shuffle");
    EXPECT_EQ(dependent(bench), u"l-w-e-m-") << "no self-test, no loop";
}

TEST(OptionsForm, TheLoopIsRefusedInRandomOrder) {
    for (const auto& [language, refused, ends] :
         {std::tuple{u"En"_s, LoopRefused, LoopEnds},
          std::tuple{u"De"_s,
                     u"Diese Option kann nicht gewählt werden, da als Wortreihenfolge 'random' eingestellt "
                     u"ist."_s,
                     u"Die Option 'Schleife' wird zur Aktivierung von 'random' zurückgesetzt."_s}}) {
        OptionsBench bench(3, language);
        bench.open();
        bench.press("Selbsttest");
        bench.press("Schleife");
        bench.context.prompts.expectInformation(ends);
        bench.press("Reihenfolge_random");
        bench.context.prompts.expectInformation(refused);
        bench.box("Schleife").setChecked(true);
        EXPECT_FALSE(bench.box("Schleife").isChecked());
    }
}

TEST(OptionsForm, WhatTheToolbarHasChosenIsShownWithoutAQuestion) {
    OptionsBench bench;
    bench.choose("Selbsttest");
    bench.choose("Schreiben");
    bench.choose("Reihenfolge_random");
    bench.open();
    EXPECT_EQ(dependent(bench), u"l-W+e+m+");
    bench.press("cmdOK");
    EXPECT_TRUE(bench.trainer.Reihenfolge_random);
    EXPECT_TRUE(bench.trainer.Schreiben);
}

TEST(OptionsForm, AMessageBoxOverItBringsNothingBack) {
    OptionsBench bench;
    ScreenPrompts screen;
    FormContext& forms = bench.context.forms;
    FormContext real{forms.state,   screen,         forms.settings, forms.values,
                     forms.columns, forms.progress, forms.random,   forms.today};
    frmOptions form(real, bench.trainer, bench.list);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    child<QAbstractButton>(form, "Sprache_deutsch").click();
    child<QAbstractButton>(form, "Selbsttest").click();
    child<QAbstractButton>(form, "Schleife").click();
    onNextModal<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    child<QAbstractButton>(form, "Reihenfolge_random").click();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QApplication::processEvents();
    EXPECT_TRUE(child<QAbstractButton>(form, "Sprache_deutsch").isChecked());
    EXPECT_TRUE(child<QAbstractButton>(form, "Selbsttest").isChecked());
    EXPECT_TRUE(child<QAbstractButton>(form, "Reihenfolge_random").isChecked());
}

// Texts.

TEST(OptionsForm, TabsAndCaptionsInBothLanguages) {
    struct Row {
        const char* name;
        const char16_t* german;
        const char16_t* english;
    };
    constexpr Row boxes[]{
        {"Reihenfolge_sequentiell", u"Seqentiell", u"Sequential"},
        {"Reihenfolge_shuffle", u"Gemischt", u"Shuffle"},
        {"Reihenfolge_random", u"Random", u"Random"},
        {"Sprache_spanisch", u"German zuerst", u"German first"},
        {"Sprache_deutsch", u"English zuerst", u"English first"},
        {"Selbsttest", u"Vokabeltest aktiviert", u"Vocab Test"},
        {"Schleife", u"Schleife", u"Loop"},
        {"Schreiben", u"Schreiben", u"Write"},
        {"FehlerBestaetigen", u"Fehler bestätigen", u"Confirm Error"},
        {"MainOnly", u"Vergleich nur mit Hauptausdruck", u"Compare with Main Part only"},
        {"chkWortart", u"Wortart", u"Part of Speech"},
        {"chkGrammatikalischeAttribute", u"Grammatikalische Attribute", u"Grammar Attributes"},
        {"chkFunktionaleAttribute", u"Funktionale Attribute", u"Functional Attributes"},
        {"chkBereich", u"Bereich", u"Area"},
        {"chkBeispielsatz", u"Beispielsatz", u"Sample Phrase"},
        {"chkZusatzinfo", u"Zusatzinfo", u"Additional Info"},
        {"chkQuelle", u"Quelle", u"Source"},
        {"chkEingabedatum", u"Eingabedatum", u"Creationdate"},
        {"chkAenderungsdatum", u"Änderungsdatum", u"Changedate"},
        {"chkScore", u"Fehlerscore", u"Error Score"},
        {"cmdOK", u"&OK", u"&OK"},
        {"cmdCancel", u"&Abbrechen", u"Cancel"},
        {"cmdApply", u"Apply", u"Apply"},
    };
    constexpr Row frames[]{
        {"fraSample1", u"Vokabeln", u"Vocabulary"},
        {"Frame1", u"Sprachen", u"Languages"},
        {"fraSample2", u"Vokabeltest", u"Vocab Test"},
        {"fraSample3", u"Gleich zu behandelnde Buchstaben", u"Characters to be treated equal"},
        {"Frame2", u"Folgende Spalten sollen angezeigt werden:", u"Following columns shall be displayed"},
    };
    constexpr Row labels[]{
        {"Label3", u"Hilfe: F1", u"Help: F1"},
        {"Label4",
         u"Geben Sie hier an, welche Spalten in der Vokabelliste angezeigt werden sollen, und welche Spalten "
         u"ausgeblendet werden sollen.",
         u"Specify here, which columns shall be displayed or hidden in the Vocab List."},
        {"Erklaerung_Zeichen",
         u"Die Zeichenpaare, die von der Anwendung als gleichwertig behandelt werden sollen, können hier "
         u"verwaltet werden.",
         u"The pairs of characters, that shall be treated as equal, can be edited here."},
    };
    constexpr Row tabs[]{
        {"Einstellungen für den Vokabeltrainer", u"Trainer: Reihenfolge", u"Trainer: Order"},
        {"Einstellungen für den Vokabeltest", u"Testoptionen", u"Test Options"},
        {"Einstellungen für gleichzubehandelnde Zeichen", u"Ausnahmen Zeichen", u"Exceptions Characters"},
        {"Einstellungen für die Vokabelliste", u"Liste: Spalten", u"List: Columns"},
    };
    const QStringList englishTips{u"Settings for the Trainer"_s, u"Settings for the Vocab Test"_s,
                                  u"Settings for Characters to be treated as equal"_s,
                                  u"Settings for the Vocab List"_s};
    for (const QString& language : {u"En"_s, u"De"_s}) {
        OptionsBench bench(3, language);
        bench.open();
        const auto text = [&language](const Row& row) {
            return QString::fromUtf16(language == u"En" ? row.english : row.german);
        };
        for (const Row& row : boxes)
            EXPECT_EQ(bench.box(row.name).text(), text(row)) << row.name;
        for (const Row& row : frames)
            EXPECT_EQ(child<QGroupBox>(bench.form, row.name).title(), text(row)) << row.name;
        for (const Row& row : labels)
            EXPECT_EQ(bench.label(row.name), text(row)) << row.name;
        ASSERT_EQ(bench.tabs().count(), 4);
        for (int tab = 0; tab < 4; ++tab) {
            EXPECT_EQ(bench.tabs().tabText(tab), text(tabs[tab]));
            EXPECT_EQ(bench.tabs().tabToolTip(tab),
                      language == u"En" ? englishTips[tab] : QString::fromUtf8(tabs[tab].name));
        }
    }
}

TEST(OptionsForm, LanguageNamesAreThoseOfTheMoment) {
    OptionsBench bench;
    bench.context.state.Lang1Name = u"Rock & Roll"_s;
    bench.open();
    EXPECT_EQ(bench.box("Sprache_spanisch").text(), u"Rock && Roll first");
    bench.form.close();
    bench.context.state.Lang1Name = u"Spanish"_s;
    bench.open();
    EXPECT_EQ(bench.box("Sprache_spanisch").text(), u"Spanish first");
    EXPECT_GE(bench.box("Sprache_spanisch").width(), bench.box("Sprache_spanisch").sizeHint().width());
}

TEST(OptionsForm, AnOptionUnderTheMouseExplainsItself) {
    struct Row {
        const char* option;
        const char* label;
        const char16_t* german;
        const char16_t* english;
    };
    constexpr Row rows[]{
        {"Reihenfolge_sequentiell", "Erklaerung_Reihenfolge",
         u"Option 'Sequentiell': Die Vokabeln werden in der Reihenfolge angezeigt, die sie in der "
         u"Vokabelliste haben.",
         u"Option 'Sequential': The vocabulary will be displayed in the same order, as in the current Vocab "
         u"List."},
        {"Reihenfolge_shuffle", "Erklaerung_Reihenfolge",
         u"Option 'Gemischt': Die Vokabeln werden vor jedem Durchgang gemischt.",
         u"Option 'Shuffled': The vocabulary will be shuffled prior to each start of the sequence."},
        {"Reihenfolge_random", "Erklaerung_Reihenfolge",
         u"Option 'Random': Es wird keine Sequenz erzeugt, sondern die Vokabeln werden zufällig ausgewählt. "
         u"Diese Option geht nicht zusammen mit der Option 'Schleife'.",
         u"Option 'Random': There will not be a sequence created, but the vocabulary will be selected "
         u"randomly. This option can not be combined with option 'Loop'."},
        {"Sprache_spanisch", "Erklaerung_Reihenfolge",
         u"Option 'German zuerst': Der Ausdruck in German wird als erstes angezeigt.",
         u"Option 'German first': The expression in German will be displayed first."},
        {"Sprache_deutsch", "Erklaerung_Reihenfolge",
         u"Option 'English zuerst': Der Ausdruck in English wird als erstes angezeigt.",
         u"Option 'English first': The expression in English will be displayed first."},
        {"Selbsttest", "KommentarLabel",
         u"Option 'Vokabeltest aktiviert': Ein-/Ausschalten des Vokabeltest. Die Einstellungen für den "
         u"Vokabeltest werden mit den nachfolgenden Optionen bestimmt.",
         u"Option 'Vocab Test': Switch vocab test on/off. The settings for the vocab test are determined "
         u"with the subsequent options."},
        {"Schleife", "KommentarLabel",
         u"Option 'Schleife': Ein-/Ausschalten der Schleifenoption für den Vokabeltest. Bei aktivierter "
         u"Schleifenoption werden alle nicht korrekt erkannte Vokabeln einer Sequenz so lange im Vokabeltest "
         u"wiederholt, bis sie korrekt erkannt worden sind.",
         u"Option 'Loop': Switch Loop option for the vocab test on/off. When the Loop option is set, all "
         u"expressions of the sequence, that were not translated correctly by the user, will be repeated in "
         u"the test, until they are translated correctly."},
        {"Schreiben", "KommentarLabel",
         u"Option 'Schreiben': Ein-/Ausschalten der Schreiben-Einstellung für den Vokabeltest. Ist Schreiben "
         u"aktiviert, erscheint für jede zu erkennende Vokabel einer Sequenz ein Fenster, in dem die Vokabel "
         u"einzugeben ist. Die Eingabe wird mit dem in der Datenbank enthaltenen Ausdruck verglichen.",
         u"Option 'Write': Switch Write option for the vocab test on/off. If Write is activated, on each "
         u"vocabulary of a sequence a window comes up, where the translation of the expression shall be "
         u"entered. The input will be compared with the respective expression stored in the data base."},
        {"FehlerBestaetigen", "KommentarLabel",
         u"Option 'Fehler bestätigen': Ein-/Ausschalten der Fehlerbestätigungsoption für den Vokabeltest im "
         u"Schreiben-Modus. Bei aktivierter Fehlerbstätigungsoption kann der Benutzer die Entscheidung des "
         u"Programms, eine Eingabe sei nicht zutreffend, revidieren.",
         u"Option 'Confirm Error': Switch error confirmation mode on/off for the vocab test in write-mode. "
         u"When this option is set, the user can revise the decision of the program, if it judges an entry "
         u"as false."},
        {"MainOnly", "KommentarLabel",
         u"Option 'Vergleich nur mit Hauptausdruck': In nicht eingeschaltetem Zustand vergleicht der "
         u"Vokabeltrainer die Benutzereingabe mit dem gesamten Ausdruck (ohne den Kommentar), bei "
         u"eingeschaltetem Zustand wird nur der als Hauptausdruck gespeicherte Bereich mit der "
         u"Benutzereingabe verglichen.",
         u"Option 'Compare with main part only on/off': When this option is not set, the Trainer compares "
         u"the expression entered by the user, with the entire expression stored in the data base(excluding "
         u"the comment). When this option is set, only the main part of the stored expression is compared "
         u"with the user input."},
    };
    for (const QString& language : {u"En"_s, u"De"_s}) {
        OptionsBench bench(3, language);
        bench.open();
        bench.press("Selbsttest");
        bench.press("Schreiben");
        for (const Row& row : rows) {
            const bool isOfOrder = QByteArrayView(row.label) == "Erklaerung_Reihenfolge";
            bench.form.setTab(isOfOrder ? 1 : 2);
            QApplication::processEvents();
            QTest::mouseMove(&bench.box(row.option), {5, 5});
            EXPECT_EQ(bench.label(row.label),
                      QString::fromUtf16(language == u"En" ? row.english : row.german));
        }
        // By the keyboard.
        bench.form.setTab(1);
        bench.box("Reihenfolge_sequentiell").setFocus();
        EXPECT_EQ(bench.label("Erklaerung_Reihenfolge"),
                  QString::fromUtf16(language == u"En" ? rows[0].english : rows[0].german));
    }
}

// Tabs and keys.

TEST(OptionsForm, EachTabShowsItsPanelAndHidesTheOthers) {
    OptionsBench bench;
    bench.open();
    for (int tab = 1; tab <= 4; ++tab) {
        bench.form.setTab(tab);
        EXPECT_EQ(bench.tabs().currentIndex(), tab - 1);
        for (int panel = 1; panel <= 4; ++panel)
            EXPECT_EQ(child<QWidget>(bench.form, u"picOptions%1"_s.arg(panel)).isVisible(), panel == tab);
    }
    bench.form.setTab(0);
    EXPECT_EQ(bench.tabs().currentIndex(), 3) << "the one that stands";
}

TEST(OptionsForm, ControlAndTabGoRoundTheTabs) {
    OptionsBench bench;
    bench.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.form));
    for (const int expected : {1, 2, 3, 0, 1}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(bench.tabs().currentIndex(), expected);
    }
    bench.form.setTab(3);
    bench.text("Text2").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(bench.tabs().currentIndex(), 3) << "from inside a panel";
}

TEST(OptionsForm, TheKeyboardAloneSuffices) {
    OptionsBench bench;
    bench.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.form));
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    EXPECT_EQ(QApplication::focusWidget(), &bench.tabs());
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &bench.box("Reihenfolge_sequentiell"))
        << QApplication::focusWidget()->objectName().toStdString();
    press(Qt::Key_Down);
    EXPECT_TRUE(bench.box("Reihenfolge_shuffle").isChecked());
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &bench.box("Sprache_spanisch"));
    press(Qt::Key_Return);
    EXPECT_FALSE(bench.form.isVisible());
    EXPECT_TRUE(bench.trainer.Reihenfolge_shuffle);
}

TEST(OptionsForm, FitsASmallScreenAlsoWithALargeFont) {
    OptionsBench bench;
    bench.open();
    EXPECT_LE(bench.form.height(), 600);
    QFont large = bench.form.font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    bench.form.setFont(large);
    QApplication::processEvents();
    EXPECT_LE(bench.form.minimumSizeHint().width(), 800);
    EXPECT_LE(bench.form.minimumSizeHint().height(), 570);
}

// Columns.

TEST(OptionsColumns, AreStoredAndActOnTheListAtOnce) {
    struct Row {
        const char* box;
        const char* key;
        int column;
    };
    constexpr Row rows[]{
        {"chkWortart", "Wortart", 4},
        {"chkGrammatikalischeAttribute", "Grammatikalisch", 5},
        {"chkFunktionaleAttribute", "Funktional", 6},
        {"chkBereich", "Bereich", 7},
        {"chkBeispielsatz", "Beispielsatz", 8},
        {"chkZusatzinfo", "Zusatzinfo", 9},
        {"chkQuelle", "Quelle", 10},
        {"chkEingabedatum", "Eingabedatum", 11},
        {"chkAenderungsdatum", "Aenderungsdatum", 12},
        {"chkScore", "Score", 13},
    };
    OptionsBench bench;
    bench.open();
    const auto stored = [&bench](const Row& row) {
        const SettingsStore other(bench.context.path(u"settings"_s));
        return other.GetSetting(AppName(), u"List"_s, QString::fromLatin1(row.key));
    };
    for (const Row& row : rows) {
        const int before = bench.list.MSFlexGrid1().ColWidth(row.column);
        bench.press(row.box);
        EXPECT_EQ(bench.list.MSFlexGrid1().ColWidth(row.column), before) << "not before it is applied";
        bench.press("cmdApply");
        EXPECT_EQ(stored(row), u"0") << row.key;
        EXPECT_EQ(bench.list.MSFlexGrid1().ColWidth(row.column), 0) << row.key;
        bench.press(row.box);
        bench.press("cmdApply");
        EXPECT_EQ(stored(row), u"1") << row.key;
        EXPECT_EQ(bench.list.MSFlexGrid1().ColWidth(row.column), before) << row.key;
    }
}

TEST(OptionsColumns, TheMenuOfTheListAgreesBothWays) {
    OptionsBench bench;
    auto& entry = child<QAction>(bench.list, "mnAnsichtQuelle");
    entry.trigger();
    bench.open();
    EXPECT_FALSE(bench.box("chkQuelle").isChecked());
    EXPECT_TRUE(bench.box("chkBereich").isChecked());
    bench.press("chkQuelle");
    bench.press("chkBereich");
    bench.press("cmdOK");
    EXPECT_TRUE(entry.isChecked());
    EXPECT_FALSE(child<QAction>(bench.list, "mnAnsichtBereich").isChecked());
    EXPECT_FALSE(bench.context.columns.isShown(ListColumn::Bereich));
}
