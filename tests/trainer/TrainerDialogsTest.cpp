// The windows of a self-test: the one for the answer, and those that ask for a verdict.

#include "ConfirmDlg.h"
#include "ConfirmForm.h"
#include "EqualCharacters.h"
#include "InputFenster.h"
#include "TypingBench.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(AnswerWindows, FiftyOfThemFlowByTheKeyboardAlone) {
    TrainingBench bench;
    bench.openFileWith(50);
    bench.trainer.show();
    bench.trainer.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.trainer));
    bench.beginTyping();
    for (int entry = 1; entry <= 50; ++entry) {
        bench.context.prompts.expectDialog("InputFenster", [entry](QDialog& form) {
            ASSERT_TRUE(form.focusWidget());
            QTest::keyClicks(form.focusWidget(), u"word %1"_s.arg(entry));
            QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        });
        QTest::keyClick(bench.trainer.focusWidget(), Qt::Key_Return);
        ASSERT_TRUE(bench.saysRight()) << entry;
    }
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 50);
    EXPECT_EQ(bench.stored(50), u"2");
}

TEST(AnswerWindows, TheBoxStandsExactlyOverTheSolution) {
    TrainingBench bench;
    bench.openFileWith(1);
    bench.trainer.resize(720, 480);
    bench.trainer.move(30, 30);
    bench.trainer.show();
    QApplication::processEvents();
    bench.beginTyping();
    bench.context.prompts.expectDialog("InputFenster", [&bench](QDialog& form) {
        const auto& box = child<QLineEdit>(form, "Text1");
        const FlexGrid& grid = bench.grid;
        const int top = 2 * grid.RowHeight(0) + grid.RowHeight(1);
        EXPECT_EQ(box.mapToGlobal(QPoint(0, 0)), grid.viewport()->mapToGlobal(QPoint(0, top)));
        EXPECT_EQ(box.size(), QSize(grid.viewport()->width(), grid.RowHeight(3)));
        form.close();
    });
    bench.step();
}

TEST(AnswerWindows, TheVerdictIsToldByColourAndByASign) {
    TrainingBench bench;
    bench.openFileWith(2);
    bench.trainer.show();
    bench.beginTyping();
    bench.type(u"word 1"_s);
    const auto colours = [&bench](const char* name) {
        auto& box = child<QLabel>(bench.trainer, name);
        const QImage picture = box.grab().toImage();
        QSet<QRgb> found;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.height(); ++x) // the sign stands at the left, in a square
                found += picture.pixel(x, y);
        EXPECT_LE(box.sizeHint().height(), box.height() + 4);
        return found;
    };
    EXPECT_EQ(child<QLabel>(bench.trainer, "Richtig").text(), u"OK");
    QSet<QRgb> right = colours("Richtig");
    EXPECT_TRUE(right.contains(qRgb(0, 255, 0)));
    EXPECT_TRUE(right.contains(qRgb(0, 0, 0)));
    bench.type(u"wrong"_s);
    QSet<QRgb> wrong = colours("NichtWort");
    EXPECT_TRUE(wrong.contains(qRgb(255, 0, 0)));
    EXPECT_TRUE(wrong.contains(qRgb(0, 0, 0)));
    const auto& box = child<QLabel>(bench.trainer, "NichtWort");
    EXPECT_EQ(box.x(), 0);
    EXPECT_GE(box.width(), box.sizeHint().width()) << "all of a short answer is seen";
    EXPECT_GT(bench.button("Suche").x(), box.x() + box.width());
}

TEST(AnswerWindows, TextsInBothLanguages) {
    struct Text {
        const char* name; ///< of a control; the form's own is its title
        const char16_t* german;
        const char16_t* english;
    };
    const auto check = [](const QDialog& form, std::initializer_list<Text> texts, bool english) {
        for (const Text& text : texts) {
            const QString expected = QString::fromUtf16(english ? text.english : text.german);
            if (form.objectName() == QLatin1StringView(text.name))
                EXPECT_EQ(form.windowTitle(), expected);
            else if (const auto* button = form.findChild<QAbstractButton*>(QLatin1StringView(text.name)))
                EXPECT_EQ(button->text(), expected) << text.name;
            else
                EXPECT_EQ(child<QLabel>(form, text.name).text(), expected) << text.name;
        }
    };
    for (const bool english : {true, false}) {
        const InterfaceLanguage language(english ? u"En"_s : u"De"_s);
        const EqualCharacters equal;
        const InputFenster input(equal);
        check(input,
              {{"InputFenster", u"Bitte Ausdruck eingeben", u"Please enter expression"},
               {"Label1", u"Bitte Ausdruck eingeben:", u"Please enter expression"},
               {"Label3", u"Hilfe: F1", u"Help: F1"},
               {"Command1", u"Sonderzeichen...", u"Special Characters"},
               {"OK", u"OK", u"OK"}},
              english);
        EXPECT_EQ(child<QToolButton>(input, "Toolbar1_Button1").toolTip(),
                  english ? u"Compare with main part only on/off"
                          : u"Vergleich nur mit Hauptausdruck ein/aus");
        EXPECT_EQ(child<QLineEdit>(input, "Text1").toolTip(),
                  u"Hier die Übersetzung für den angezeigten Ausdruck eingeben")
            << "in either language";
        check(ConfirmForm(),
              {{"ConfirmForm", u"Bestätigen", u"Confirm"},
               {"Label1", u"Ist das wirklich ein Fehler?", u"Is this really an error?"},
               {"Label2", u"Eingegebener Ausdruck:", u"Expression entered:"},
               {"Label3", u"Gespeicherter Ausdruck:", u"Expression stored:"},
               {"Label4", u"Hilfe: F1", u"Help: F1"},
               {"Ja", u"Ja", u"Yes"},
               {"Nein", u"Nein", u"No"}},
              english);
        check(ConfirmDlg(),
              {{"ConfirmDlg", u"Bestätigen", u"Confirm"},
               {"Label1", u"Ist das das Wort, das erwartet wurde?", u"Is this the word you expected?"},
               {"JaButton", u"Ja", u"Yes"},
               {"NeinButton", u"Nein", u"No"}},
              english);
    }
}

TEST(AnswerWindows, AConfirmationOfAVeryLongAnswerStaysOnTheScreen) {
    ConfirmForm form;
    form.setExpressions(u"maus"_s, u"eine graue Maus (klein)"_s);
    EXPECT_EQ(child<QLabel>(form, "Typed").text(), u"maus");
    EXPECT_EQ(child<QLabel>(form, "Stored").text(), u"eine graue Maus (klein)");
    for (const QString& text : {u"W"_s.repeated(10000), u"word "_s.repeated(2000), u"𝕏"_s.repeated(10000)}) {
        form.setExpressions(text, text);
        form.show();
        QApplication::processEvents();
        EXPECT_LE(form.width(), 800);
        EXPECT_LE(form.height(), 600);
        for (const char* answer : {"Ja", "Nein"})
            EXPECT_TRUE(form.rect().contains(child<QPushButton>(form, answer).geometry())) << answer;
        for (const char* name : {"Typed", "Stored"}) { // what is shown of it is seen whole
            const auto& label = child<QLabel>(form, name);
            EXPECT_TRUE(label.text().startsWith(text.left(20)));
            const QRect room = label.fontMetrics().boundingRect(QRect(0, 0, label.width(), 10000),
                                                                Qt::TextWordWrap, label.text());
            EXPECT_LE(room.width(), label.width());
            EXPECT_LE(room.height(), label.height());
        }
        form.hide();
    }
}

TEST(AnswerWindows, ComingBackToTheAnswerOneTypesOn) {
    const EqualCharacters equal;
    InputFenster form(equal);
    form.show();
    auto& answer = child<QLineEdit>(form, "Text1");
    EXPECT_EQ(form.focusWidget(), &answer);
    answer.setText(u"hou"_s);
    child<QPushButton>(form, "Command1").setFocus(); // as after opening the pad with it
    ASSERT_NE(form.focusWidget(), &answer);
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(&form, &activation);
    EXPECT_EQ(form.focusWidget(), &answer);
    QTest::keyClicks(&answer, u"se"_s);
    EXPECT_EQ(answer.text(), u"house");
}

TEST(AnswerWindows, ACharacterOfTheRowGoesToTheCursor) {
    const EqualCharacters equal;
    InputFenster form(equal);
    form.show();
    auto& answer = child<QLineEdit>(form, "Text1");
    auto& characters = child<QComboBox>(form, "FontCombo");
    answer.setText(u"ab"_s);
    answer.setCursorPosition(1);
    characters.setFocus();
    QTest::keyClick(&characters, Qt::Key_Down);
    const QString chosen = characters.currentText();
    EXPECT_EQ(answer.text(), u"a"_s + chosen + u"b"_s);
    EXPECT_EQ(form.focusWidget(), &answer);
    QTest::keyClicks(&answer, u"c"_s);
    EXPECT_EQ(answer.text(), u"a"_s + chosen + u"cb"_s);
}
