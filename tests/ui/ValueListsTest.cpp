#include "ErrorTrap.h"
#include "Globals.h"
#include "TestContext.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QStringList items(const QComboBox& box) {
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts.append(box.itemText(i));
    return texts;
}

} // namespace

TEST(ValueLists, ValuesComeInOrderOnce) {
    TestContext context;
    for (const QString& value : {u"verb"_s, u"noun"_s, u"adjective"_s, u"noun"_s})
        context.values.AddToComboBoxes(value, u"Wortart"_s);
    EXPECT_EQ(context.values.values(u"Wortart"_s), QStringList({u"adjective"_s, u"noun"_s, u"verb"_s}));
}

TEST(ValueLists, BlanksAtTheEndsGoAndNothingIsNoValue) {
    TestContext context;
    context.values.AddToComboBoxes(u"  noun  "_s, u"Wortart"_s);
    context.values.AddToComboBoxes(u"noun"_s, u"Wortart"_s);
    context.values.AddToComboBoxes(u""_s, u"Wortart"_s);
    context.values.AddToComboBoxes(u"   "_s, u"Wortart"_s);
    context.values.AddToComboBoxes(u"\t"_s, u"Wortart"_s); // a tab is no blank
    EXPECT_EQ(context.values.values(u"Wortart"_s), QStringList({u"\t"_s, u"noun"_s}));
}

TEST(ValueLists, CaseMakesTwoValuesAndNeverThree) {
    // By the order of the box Apfel and apfel are neighbours; binary they are far apart.
    TestContext context;
    for (const QString& value : {u"banane"_s, u"apfel"_s, u"Apfel"_s, u"Banane"_s, u"Apfel"_s, u"APFEL"_s,
                                 u"apfel"_s, u"Apfel"_s, u"APFEL"_s, u"banane"_s, u"Äpfel"_s, u"Äpfel"_s})
        context.values.AddToComboBoxes(value, u"Bereich"_s);
    EXPECT_EQ(context.values.values(u"Bereich"_s),
              QStringList({u"APFEL"_s, u"Apfel"_s, u"apfel"_s, u"Äpfel"_s, u"Banane"_s, u"banane"_s}));
}

TEST(ValueLists, TheOrderDoesNotDependOnWhatCameFirst) {
    const QStringList ordered{u"APFEL"_s, u"Apfel"_s, u"apfel"_s};
    QStringList coming = ordered;
    do {
        TestContext context;
        for (const QString& value : std::as_const(coming))
            context.values.AddToComboBoxes(value, u"Bereich"_s);
        EXPECT_EQ(context.values.values(u"Bereich"_s), ordered);
    } while (std::next_permutation(coming.begin(), coming.end()));
}

TEST(ValueLists, EveryKindHasItsOwnList) {
    TestContext context;
    const QStringList kinds{u"Wortart"_s,         u"Bereich"_s,      u"Quelle"_s,
                            u"Grammatikalisch"_s, u"Funktionales"_s, u"Auswahl"_s};
    for (const QString& kind : kinds)
        context.values.AddToComboBoxes(u"only in "_s + kind, kind);
    for (const QString& kind : kinds)
        EXPECT_EQ(context.values.values(kind), QStringList{u"only in "_s + kind});
}

TEST(ValueLists, AnUnknownKindRaisesTheProgramsOwnError) {
    TestContext context;
    for (const QString& kind : {u"wortart"_s, u""_s, u"GrammatikalischBox"_s}) {
        try {
            context.values.AddToComboBoxes(u"text"_s, kind);
            ADD_FAILURE() << "took a value for \"" << kind.toStdString() << '"';
        } catch (const dao::Error& error) {
            EXPECT_EQ(error.Number(), dao::ErrorNumber::AlreadyReported);
        }
    }
}

TEST(ValueLists, BoxesAreClearedByTheirOwnNames) {
    TestContext context;
    struct Case {
        QString box;
        QString kind;
    };
    const Case cases[] = {
        {u"Wortart"_s, u"Wortart"_s},
        {u"Bereich"_s, u"Bereich"_s},
        {u"Quelle"_s, u"Quelle"_s},
        {u"GrammatikalischBox"_s, u"Grammatikalisch"_s},
        {u"FunktionalesBox"_s, u"Funktionales"_s},
    };
    for (const Case& c : cases) {
        context.values.AddToComboBoxes(u"value"_s, c.kind);
        EXPECT_TRUE(context.values.ClearComboBoxes(c.box));
        EXPECT_TRUE(context.values.values(c.kind).isEmpty()) << c.kind.toStdString();
        context.values.AddToComboBoxes(u"value"_s, c.kind);
        EXPECT_EQ(context.values.values(c.kind).size(), 1) << "a cleared value can come again";
    }
}

TEST(ValueLists, AnUnknownBoxIsReported) {
    for (const QString& box : {u"Grammatikalisch"_s, u"Funktionales"_s, u"Auswahl"_s, u""_s}) {
        {
            TestContext context;
            context.prompts.expectError(u"Error in ClearComboBoxes!"_s);
            EXPECT_FALSE(context.values.ClearComboBoxes(box));
            EXPECT_EQ(LastErrorText, u"Error in ClearComboBoxes!"_s);
        }
        TestContext german(u"De"_s);
        german.prompts.expectError(u"Fehler in ClearComboBoxes!"_s);
        EXPECT_FALSE(german.values.ClearComboBoxes(box));
    }
}

TEST(ValueLists, LessonsCanBeClearedByTheirKind) {
    TestContext context;
    context.values.AddToComboBoxes(u"Lesson 1"_s, u"Auswahl"_s);
    context.values.clear(u"Auswahl"_s);
    EXPECT_TRUE(context.values.values(u"Auswahl"_s).isEmpty());
}

TEST(ValueLists, AttachedBoxesFollow) {
    TestContext context;
    QComboBox early;
    QComboBox late;
    context.values.attach(early, u"Quelle"_s);
    context.values.AddToComboBoxes(u"school"_s, u"Quelle"_s);
    context.values.AddToComboBoxes(u"book"_s, u"Quelle"_s);
    context.values.attach(late, u"Quelle"_s);
    EXPECT_EQ(items(early), QStringList({u"book"_s, u"school"_s}));
    EXPECT_EQ(items(late), items(early));

    context.values.remove(u"book"_s, u"Quelle"_s);
    context.values.remove(u"nowhere"_s, u"Quelle"_s);
    EXPECT_EQ(items(early), QStringList{u"school"_s});
    context.values.ClearComboBoxes(u"Quelle"_s);
    EXPECT_EQ(early.count(), 0);
    EXPECT_EQ(late.count(), 0);
}

TEST(ValueLists, TheTextInABoxStaysAndSaysNothing) {
    TestContext context;
    QComboBox box;
    box.setEditable(true);
    box.setEditText(u"half a wo"_s);
    box.lineEdit()->setCursorPosition(4);
    QSignalSpy edits(&box, &QComboBox::editTextChanged);
    QSignalSpy texts(box.lineEdit(), &QLineEdit::textChanged);
    QSignalSpy choices(&box, &QComboBox::currentIndexChanged);

    context.values.AddToComboBoxes(u"already there"_s, u"Bereich"_s);
    context.values.attach(box, u"Bereich"_s);
    context.values.AddToComboBoxes(u"first"_s, u"Bereich"_s);
    context.values.AddToComboBoxes(u"second"_s, u"Bereich"_s);
    context.values.remove(u"first"_s, u"Bereich"_s);
    EXPECT_EQ(box.currentText(), u"half a wo"_s);
    EXPECT_EQ(box.lineEdit()->cursorPosition(), 4);
    context.values.ClearComboBoxes(u"Bereich"_s);
    EXPECT_EQ(box.currentText(), u"half a wo"_s);
    EXPECT_EQ(edits.size(), 0);
    EXPECT_EQ(texts.size(), 0);
    EXPECT_EQ(choices.size(), 0);
}

TEST(ValueLists, AnEmptyBoxStaysEmptyWhenItsFirstValueComes) {
    TestContext context;
    QComboBox editable;
    QComboBox fixed;
    editable.setEditable(true);
    context.values.attach(editable, u"Bereich"_s);
    context.values.attach(fixed, u"Bereich"_s);
    context.values.AddToComboBoxes(u"school"_s, u"Bereich"_s);
    EXPECT_EQ(editable.currentText(), u""_s);
    EXPECT_EQ(fixed.currentIndex(), -1);
}

TEST(ValueLists, AChosenItemStaysChosen) {
    TestContext context;
    QComboBox box;
    context.values.attach(box, u"Bereich"_s);
    context.values.AddToComboBoxes(u"school"_s, u"Bereich"_s);
    box.setCurrentIndex(0);
    context.values.AddToComboBoxes(u"animals"_s, u"Bereich"_s);
    EXPECT_EQ(box.currentText(), u"school"_s);
    EXPECT_EQ(box.currentIndex(), 1);
}

TEST(ValueLists, ABoxThatGoesIsForgotten) {
    TestContext context;
    {
        QComboBox box;
        context.values.attach(box, u"Bereich"_s);
    }
    context.values.AddToComboBoxes(u"school"_s, u"Bereich"_s);
    EXPECT_EQ(context.values.values(u"Bereich"_s), QStringList{u"school"_s});
}

} // namespace lingomat
