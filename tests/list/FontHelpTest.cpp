#include "FontHelp.h"

#include "ChildFinder.h"
#include "TestContext.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

QString clipboardText() {
    return QApplication::clipboard()->text();
}

/// A press that goes through the window system, which drops it when a modal dialog locks the window out.
void pressOnScreen(QPushButton& button) {
    QWidget& window = *button.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      button.mapTo(&window, button.rect().center()));
    QCoreApplication::processEvents();
}

/// A window with a field and a button that counts its clicks.
template <typename Base>
struct Window : Base {
    explicit Window(const QString& name) {
        this->setObjectName(name);
        button.setText(u"press"_s);
        auto* column = new QVBoxLayout(this);
        column->addWidget(&field);
        column->addWidget(&button);
        QObject::connect(&button, &QPushButton::clicked, this, [this] { ++clicks; });
    }
    void showUp() {
        this->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(this));
        QCoreApplication::processEvents();
    }

    QLineEdit field;
    QPushButton button;
    int clicks = 0;
};

struct ModalDialog : Window<QDialog> {
    explicit ModalDialog(const QString& name = u"dialog"_s) : Window(name) { setModal(true); }
};

struct Pad : testing::Test {
    Pad() {
        QApplication::clipboard()->setText(u"before"_s);
        main.show();
    }
    QPushButton& character(const char* name) { return child<QPushButton>(pad, name); }
    void show() {
        pad.showFor(main);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&pad));
    }
    bool isUsable() {
        QApplication::clipboard()->clear();
        pressOnScreen(character("Command3"));
        return clipboardText() == u"â"_s;
    }

    InterfaceLanguage english{u"En"_s};
    Window<QWidget> main{u"main"_s};
    FontHelp pad;
};

QStringList rowsOfButtons(const FontHelp& pad) {
    std::map<int, std::map<int, QString>> rows;
    const auto buttons = pad.findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        if (button->objectName() != u"Command9"_s)
            rows[button->y()][button->x()] = button->text();
    }
    QStringList texts;
    for (const auto& [y, row] : rows) {
        QStringList captions;
        for (const auto& [x, caption] : row)
            captions << caption;
        texts << captions.join(u'|');
    }
    return texts;
}

} // namespace

TEST_F(Pad, HasItsCharactersInEightRows) {
    show();
    EXPECT_EQ(rowsOfButtons(pad), (QStringList{
                                      u"á|à|â|ã|å|æ|ä|é|è"_s,
                                      u"ê|ë|ì |í|î |ï|ó|ò|ô"_s,
                                      u"õ|ø|ö|ú|ù|û|ü|ý|ÿ"_s,
                                      u"þ|ç|ð|ñ|ß|Á|À|Â|Ã"_s,
                                      u"Å|Æ|Ä|É|È|Ê|Ë|Ì|Í"_s,
                                      u"Î|Ï|Ò|Ó|Ô|Õ|Ø|Ö|Ù"_s,
                                      u"Ú|Û|Ü|Ý|Ð|Þ|Ç|Ñ"_s,
                                      u"¿|¡"_s,
                                  }));
}

TEST_F(Pad, NumbersItsButtonsAndLeavesNineToClose) {
    for (int number = 1; number <= 65; ++number)
        EXPECT_TRUE(hasChild(pad, qPrintable(u"Command%1"_s.arg(number)))) << number;
    EXPECT_EQ(character("Command1").text(), u"á"_s);
    EXPECT_EQ(character("Command8").text(), u"é"_s);
    EXPECT_EQ(character("Command10").text(), u"è"_s);
    EXPECT_EQ(character("Command65").text(), u"¡"_s);
}

TEST_F(Pad, EveryPressCopiesTheWholeCaption) {
    show();
    const auto buttons = pad.findChildren<QPushButton*>();
    int pressed = 0;
    for (QPushButton* button : buttons) {
        if (button->objectName() == u"Command9"_s)
            continue;
        button->click();
        EXPECT_EQ(clipboardText(), button->text());
        EXPECT_EQ(child<QLineEdit>(pad, "Text1").text(), button->text());
        ++pressed;
    }
    EXPECT_EQ(pressed, 64);
}

TEST_F(Pad, TwoLettersBringABlankAlong) {
    show();
    character("Command13").click();
    EXPECT_EQ(clipboardText(), u"ì "_s);
    main.field.setText(u"cos"_s);
    QTest::keyClick(&main.field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(main.field.text(), u"così "_s);
}

TEST_F(Pad, ShowsTheLastCharacterSelectedAndReadyToCopy) {
    show();
    pad.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pad));
    QTest::mouseClick(&character("Command1"), Qt::LeftButton);
    QTest::mouseClick(&character("Command13"), Qt::LeftButton);
    auto& shown = child<QLineEdit>(pad, "Text1");
    EXPECT_EQ(shown.text(), u"ì "_s);
    EXPECT_EQ(shown.selectedText(), u"ì "_s);
    EXPECT_TRUE(shown.hasFocus());
}

TEST_F(Pad, ReturnPressesNothing) {
    show();
    character("Command13").click();
    QTest::keyClick(&child<QLineEdit>(pad, "Text1"), Qt::Key_Return);
    EXPECT_EQ(clipboardText(), u"ì "_s);
    EXPECT_TRUE(pad.isVisible());
}

TEST_F(Pad, ClosesByItsButtonAndByEscape) {
    show();
    QTest::mouseClick(&character("Command9"), Qt::LeftButton);
    EXPECT_FALSE(pad.isVisible());
    show();
    QTest::keyClick(&pad, Qt::Key_Escape);
    EXPECT_FALSE(pad.isVisible());
}

TEST_F(Pad, AddToAppendsAndGivesTheFocus) {
    main.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    main.field.setText(u"ni"_s);
    main.button.setFocus();
    FontHelp::AddTo(main.field, u"ño"_s);
    EXPECT_EQ(main.field.text(), u"niño"_s);
    EXPECT_TRUE(main.field.hasFocus());
}

TEST_F(Pad, LeavesTheOtherWindowsUsable) {
    show();
    EXPECT_FALSE(pad.isModal());
    pressOnScreen(main.button);
    EXPECT_EQ(main.clicks, 1);
}

TEST_F(Pad, StaysUsableBesideTheModalDialogThatOpenedIt) {
    ModalDialog dialog;
    dialog.showUp();
    pad.showFor(dialog.field);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&pad));

    EXPECT_TRUE(isUsable());
    pressOnScreen(dialog.button);
    EXPECT_EQ(dialog.clicks, 1) << "and so does the dialog";
    pressOnScreen(main.button);
    EXPECT_EQ(main.clicks, 0) << "the other windows are locked out";
}

TEST_F(Pad, StaysUsableWhenADialogComesUpLater) {
    show();
    ModalDialog dialog;
    dialog.showUp();
    EXPECT_TRUE(isUsable());
}

TEST_F(Pad, ComesBackInFrontOfTheDialogThatAsksForIt) {
    show();
    ModalDialog dialog;
    dialog.showUp();
    pad.showFor(dialog);
    EXPECT_TRUE(pad.isVisible());
    EXPECT_TRUE(isUsable());
}

TEST_F(Pad, StaysUsableWhenTheUpperOfTwoDialogsGoes) {
    ModalDialog lower(u"lower"_s);
    lower.showUp();
    {
        ModalDialog upper(u"upper"_s);
        upper.showUp();
        pad.showFor(upper);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&pad));
        EXPECT_TRUE(isUsable());
        upper.hide();
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(isUsable());
}

TEST_F(Pad, OutlivesTheDialogThatOpenedIt) {
    {
        ModalDialog dialog;
        dialog.showUp();
        pad.showFor(dialog);
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(pad.isVisible());
    EXPECT_TRUE(isUsable());
}

TEST(PadTexts, English) {
    const InterfaceLanguage english(u"En"_s);
    FontHelp pad;
    EXPECT_EQ(pad.objectName(), u"FontHelp"_s);
    EXPECT_EQ(pad.windowTitle(), u"Special Characters"_s);
    EXPECT_EQ(child<QPushButton>(pad, "Command9").text(), u"Close"_s);
    EXPECT_EQ(child<QLabel>(pad, "Label2").text(), u"Selected Character"_s);
    EXPECT_EQ(
        child<QPlainTextEdit>(pad, "Text2").toPlainText(),
        u"This window enables you to insert characters, that might not be available on your key board. "
        "Press the button, that displays the character you wish to insert. The characters gets then "
        "copied automatically into the clip board. You can insert this character in any field you like. "
        "To do so, activate the respective field and then press <CTRL> V, or open the popup menu, by "
        "pressing the right mouse button, and select the entry 'Insert'."_s);
}

TEST(PadTexts, German) {
    const InterfaceLanguage german(u"De"_s);
    FontHelp pad;
    EXPECT_EQ(pad.windowTitle(), u"Sonderzeichen"_s);
    EXPECT_EQ(child<QPushButton>(pad, "Command9").text(), u"Schließen"_s);
    EXPECT_EQ(child<QPlainTextEdit>(pad, "Text2").toPlainText().split(u'\n'),
              (QStringList{
                  u"Dieses Fenster ermöglicht es Ihnen, Zeichen in "_s,
                  u"Text einzufügen, die nicht auf Ihrer Tastatur "_s,
                  u"vorhanden sind. Drücken Sie auf den Knopf, der "_s,
                  u"das Zeichen enthält. Das Zeichen wird dann "_s,
                  u"automatisch in den Zwischenpuffer kopiert. Sie "_s,
                  u"können das Zeichen in ein beliebiges Feld "_s,
                  u"einfügen. Zum Einfügen aktivieren Sie das "_s,
                  u"betreffende Feld und wählen Sie dann die "_s,
                  u"Tastenkombination  <STRG> V, oder öffnen Sie "_s,
                  u"über die rechte Maustaste das Popupmenü und "_s,
                  u"wählen Sie dann 'Einfügen' aus."_s,
              }));
}
