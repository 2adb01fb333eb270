#include "PanelsBench.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(Panels, ShowTheAttributesWithTheSolution) {
    for (const auto& [language, none] :
         {std::pair{u"En"_s, u"<no entry>"_s}, std::pair{u"De"_s, u"<kein Eintrag>"_s}}) {
        PanelsBench bench(language);
        bench.addEntry({{bench.context.state.Lang2MainField, u"house"_s},
                        {u"Wortart"_s, u"Nomen"_s},
                        {u"Score"_s, 4},
                        {u"Zusatzinfo"_s, u"info"_s},
                        {u"Eingabedatum"_s, u"20010203"_s}});
        bench.listEntries();
        FlexGrid& rows = bench.list.MSFlexGrid1();
        rows.setTextMatrix(1, Liste::ColBereich, u"home;talk;"_s);
        rows.setTextMatrix(1, Liste::ColGrammatikalisch, u"n;"_s);
        rows.setTextMatrix(1, Liste::ColFunktional, {});
        bench.step();
        EXPECT_EQ(bench.field("tWortart"), QString());
        EXPECT_EQ(bench.items("lbBereiche"), QStringList());
        bench.step();
        EXPECT_EQ(bench.field("tWortart"), u"Nomen");
        EXPECT_EQ(bench.field("tQuelle"), none);
        EXPECT_EQ(bench.text("tBsp"), none);
        EXPECT_EQ(bench.text("tZusatzinfo"), u"info");
        EXPECT_EQ(bench.items("lbBereiche"), (QStringList{u"home"_s, u"talk"_s}));
        EXPECT_EQ(bench.items("lbGrammatikalisch"), QStringList{u"n"_s});
        EXPECT_EQ(bench.items("lbFunktional"), QStringList());
        EXPECT_EQ(bench.field("tEingabedatum"), u"03.02.01");
        EXPECT_EQ(bench.field("tAenderungsdatum"), u"05.01.01");
        EXPECT_EQ(bench.field("tScore"), u"4");
        bench.trainer.Command6_Click();
        EXPECT_EQ(bench.field("tScore"), QString());
        EXPECT_EQ(bench.text("tBsp"), QString());
    }
}

TEST(Panels, TabsAndMenuEntriesGoTogether) {
    PanelsBench bench;
    bench.trainer.show();
    const char* const boxes[]{"picAttribute", "picDetails", "picReferenzen"};
    const char* const entries[]{"menAttribute", "menDetails", "menReferenzen"};
    const auto expectOnTop = [&](int tab) {
        EXPECT_EQ(bench.tabs().currentIndex(), tab);
        for (int other = 0; other < 3; ++other) {
            EXPECT_EQ(child<QWidget>(bench.trainer, boxes[other]).isVisible(), other == tab) << other;
            EXPECT_EQ(bench.action(entries[other]).isChecked(), other == tab) << other;
        }
    };
    expectOnTop(0);
    for (const int tab : {1, 2, 0}) {
        bench.tabs().setCurrentIndex(tab);
        expectOnTop(tab);
    }
    for (const int tab : {2, 2, 1, 0}) {
        bench.action(entries[tab]).trigger();
        expectOnTop(tab);
    }
}

TEST(Panels, CanBeHiddenAndComeBack) {
    for (const bool english : {true, false}) {
        PanelsBench bench(english ? u"En"_s : u"De"_s);
        bench.trainer.show();
        const int full = bench.trainer.width();
        QAction& entry = bench.action("menDetailsjanein");
        if (english) { // says the opposite at first
            entry.trigger();
            EXPECT_EQ(entry.text(), u"Hide details");
            EXPECT_TRUE(bench.tabs().isVisible());
        }
        entry.trigger();
        EXPECT_EQ(entry.text(), english ? u"Show details" : u"Details anzeigen");
        EXPECT_FALSE(bench.tabs().isVisible());
        EXPECT_LT(bench.trainer.width(), full);
        EXPECT_FALSE(bench.action("menAttribute").isChecked());
        entry.trigger();
        EXPECT_EQ(entry.text(), english ? u"Hide details" : u"Details ausblenden");
        EXPECT_TRUE(bench.tabs().isVisible());
        EXPECT_EQ(bench.trainer.width(), full);
        EXPECT_TRUE(bench.action("menAttribute").isChecked());
        entry.trigger();
        bench.action("menDetails").trigger();
        EXPECT_TRUE(bench.tabs().isVisible());
        EXPECT_EQ(bench.trainer.width(), full);
    }
}

TEST(Panels, HiddenTheyLeaveTheDisplayWithItsMargins) {
    PanelsBench bench(u"De"_s);
    bench.trainer.resize(1300, 560); // wide enough for the display to take the rest of the window along
    bench.trainer.show();
    bench.tabs().setCurrentIndex(1);
    QApplication::processEvents();
    const int expected = bench.grid.x() * 3 + bench.grid.width();
    const int full = bench.trainer.width();
    bench.action("menDetailsjanein").trigger();
    EXPECT_EQ(bench.trainer.width(), expected);
    EXPECT_LT(expected, full);
    EXPECT_FALSE(bench.action("menDetails").isChecked());
    bench.action("menDetailsjanein").trigger();
    EXPECT_TRUE(bench.action("menDetails").isChecked()) << "that of the tab on top";
    EXPECT_FALSE(bench.action("menAttribute").isChecked());
}

TEST(Panels, ReferencesAreGroupedByType) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString b = bench.addEntry(u"Hütte"_s, u"hut"_s);
    const QString c = bench.addEntry(u"Villa"_s, u"villa"_s);
    bench.addReference(a, b, u"See also"_s);
    bench.addReference(c, a, u"Opposite of"_s);
    bench.addReference(a, c, u"See also"_s);
    bench.listEntries();
    bench.tabs().setCurrentIndex(2);
    EXPECT_TRUE(bench.noteIsShown());
    EXPECT_FALSE(bench.shown("ReferenzenCombo"));
    EXPECT_FALSE(bench.shown("cmdRefForward"));
    bench.showEntry(1);
    EXPECT_FALSE(bench.noteIsShown());
    ASSERT_EQ(bench.types().count(), 2);
    const auto expectShown = [&bench](const QString& type, const QString& one, const QString& two, bool back,
                                      bool forward) {
        EXPECT_EQ(bench.types().currentText(), type);
        EXPECT_EQ(bench.relation(0), type);
        EXPECT_EQ(bench.relation(1), one);
        EXPECT_EQ(bench.relation(2), two);
        EXPECT_EQ(bench.button("cmdRefBack").isEnabled(), back);
        EXPECT_EQ(bench.button("cmdRefForward").isEnabled(), forward);
    };
    expectShown(u"See also"_s, u"Hütte"_s, u"hut"_s, false, true);
    bench.button("cmdRefForward").click();
    expectShown(u"See also"_s, u"Villa"_s, u"villa"_s, true, true);
    bench.button("cmdRefForward").click();
    expectShown(u"Opposite of"_s, u"Villa"_s, u"villa"_s, true, false);
    bench.button("cmdRefBack").click();
    expectShown(u"See also"_s, u"Villa"_s, u"villa"_s, true, true);
    bench.types().setCurrentIndex(1);
    expectShown(u"Opposite of"_s, u"Villa"_s, u"villa"_s, true, false);
    bench.choose("Lang2Zuerst");
    expectShown(u"Opposite of"_s, u"villa"_s, u"Villa"_s, true, false);
    bench.types().setCurrentIndex(0);
    expectShown(u"See also"_s, u"hut"_s, u"Hütte"_s, false, true);
    bench.showEntry(2); // from the other end
    expectShown(u"See also"_s, u"house"_s, u"Haus"_s, false, false);
}

TEST(Panels, WithoutReferencesTheNoteStands) {
    for (const auto& [language, note] :
         {std::pair{u"En"_s, u"<no References>"_s}, std::pair{u"De"_s, u"<keine Referenzen>"_s}}) {
        PanelsBench bench(language);
        bench.addEntry(u"Haus"_s, u"house"_s);
        bench.listEntries();
        bench.tabs().setCurrentIndex(2);
        bench.showEntry(1);
        EXPECT_TRUE(bench.noteIsShown());
        EXPECT_EQ(child<QLabel>(bench.trainer, "labNoReferences").text(), note);
        for (const char* name : {"ReferenzenCombo", "cmdRefBack", "cmdRefForward"})
            EXPECT_FALSE(bench.shown(name)) << name;
    }
}

TEST(Panels, ReferencesAreLoadedWhenTheirTabComesUp) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString b = bench.addEntry(u"Hütte"_s, u"hut"_s);
    bench.addReference(a, b, u"See also"_s);
    bench.listEntries();
    bench.tabs().setCurrentIndex(2);
    EXPECT_TRUE(bench.noteIsShown()) << "no entry stands there";
    bench.tabs().setCurrentIndex(0);
    EXPECT_FALSE(bench.references().isVisible());

    bench.step(); // at the question
    EXPECT_EQ(bench.types().count(), 0);
    bench.tabs().setCurrentIndex(2);
    EXPECT_FALSE(bench.noteIsShown());
    EXPECT_EQ(bench.relation(1), u"Hütte");

    bench.tabs().setCurrentIndex(1);
    bench.showEntry(2); // behind another tab nothing is loaded
    EXPECT_NE(bench.relation(1), u"Haus");
    bench.tabs().setCurrentIndex(2);
    EXPECT_EQ(bench.relation(1), u"Haus");
    EXPECT_EQ(bench.relation(2), u"house");
}

TEST(Panels, TheTypeThatIsShownAlreadyMayBeChosenAgain) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString b = bench.addEntry(u"Hütte"_s, u"hut"_s);
    const QString c = bench.addEntry(u"Villa"_s, u"villa"_s);
    bench.addReference(a, b, u"See also"_s);
    bench.addReference(a, c, u"See also"_s);
    bench.addReference(a, c, u"Opposite of"_s);
    bench.listEntries();
    bench.trainer.show();
    bench.tabs().setCurrentIndex(2);
    bench.showEntry(1);
    const TrainerReferences& references = bench.references();
    EXPECT_EQ(references.RefAnzahl, 3);
    EXPECT_EQ(references.RefTypAnzahl, 2);
    EXPECT_EQ(references.RefNummer, 1);
    bench.button("cmdRefForward").click();
    EXPECT_EQ(bench.relation(1), u"Villa");
    EXPECT_EQ(references.RefNummer, 2);
    bench.types().showPopup();
    QTest::keyClick(bench.types().view(), Qt::Key_Return); // the one under the cursor
    EXPECT_EQ(bench.types().currentText(), u"See also");
    EXPECT_EQ(bench.relation(1), u"Hütte");
    EXPECT_EQ(references.RefIndex, 1);
    EXPECT_EQ(references.RefNummer, 1);
    EXPECT_FALSE(bench.button("cmdRefBack").isEnabled());
    EXPECT_TRUE(bench.button("cmdRefForward").isEnabled());
    QTest::keyClick(&bench.types(), Qt::Key_Down);
    EXPECT_EQ(bench.types().currentText(), u"Opposite of");
    EXPECT_EQ(references.RefTypAnzahl, 1);
    EXPECT_EQ(references.RefIndex, 3);
}

TEST(Panels, AFirstReferenceWhoseOtherEndIsGoneIsTold) {
    for (const auto& [language, text] : {std::pair{u"En"_s, u"An internal error occured!"_s},
                                         std::pair{u"De"_s, u"Es ist ein interner Fehler aufgetreten!"_s}}) {
        PanelsBench bench(language);
        const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
        const QString b = bench.addEntry(u"Hütte"_s, u"hut"_s);
        bench.addReference(a, u"999"_s, u"See also"_s);
        bench.addReference(a, b, u"Opposite of"_s);
        bench.listEntries();
        bench.tabs().setCurrentIndex(2);
        bench.context.prompts.expect({.text = text});
        bench.showEntry(1);
        EXPECT_TRUE(bench.context.prompts.isFinished());
        EXPECT_EQ(bench.types().currentText(), u"See also");
        EXPECT_EQ(bench.relation(1), QString());
        bench.button("cmdRefForward").click();
        EXPECT_EQ(bench.relation(1), u"Hütte");
    }
}

TEST(Panels, AReferenceWhoseOtherEndIsGoneLeavesTheGridAsItStood) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    const QString b = bench.addEntry(u"Hütte"_s, u"hut"_s);
    bench.addReference(a, b, u"See also"_s);
    bench.addReference(a, u"999"_s, u"Opposite of"_s);
    bench.listEntries();
    bench.tabs().setCurrentIndex(2);
    bench.showEntry(1);
    bench.context.prompts.expect({.text = u"An internal error occured!"});
    bench.button("cmdRefForward").click();
    EXPECT_EQ(bench.relation(0), u"See also");
    EXPECT_EQ(bench.relation(1), u"Hütte");
    EXPECT_EQ(bench.relation(2), u"hut");
    EXPECT_EQ(bench.types().currentText(), u"Opposite of") << "the box says what was asked for";
    EXPECT_FALSE(bench.button("cmdRefForward").isEnabled());
    bench.button("cmdRefBack").click();
    EXPECT_EQ(bench.types().currentText(), u"See also");
}

TEST(Panels, ANewEntryHasNeitherReferencesNorSynonyms) {
    PanelsBench bench;
    const QString a = bench.addEntry(u"Haus"_s, u"house"_s);
    bench.addReference(a, a, u"See also"_s);
    bench.addSynonym(a, 1, u"Heim"_s);
    bench.listEntries();
    bench.list.MSFlexGrid1().setTextMatrix(1, Liste::ColSchluessel, u"*"_s);
    bench.tabs().setCurrentIndex(2);
    bench.showEntry(1);
    EXPECT_TRUE(bench.noteIsShown());
    bench.press("UpDown1_Up");
    EXPECT_EQ(bench.question(), u"Haus");
}
