#include "FormTexts.h"
#include "TestContext.h"

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

template <typename T>
T* named(const char* name, QWidget* parent) {
    auto* widget = new T(parent);
    widget->setObjectName(QString::fromUtf8(name));
    return widget;
}

/// A form with one of everything that has a text.
class Sample : public QMainWindow {
public:
    Sample() {
        setObjectName(u"Sample"_s);
        auto* file = menuBar()->addMenu(u"Datei"_s);
        file->setObjectName(u"mnFile"_s);
        file->addAction(u"Öffnen"_s)->setObjectName(u"mnÖffnen"_s);
        named<QPushButton>("Command1", this);
        named<QLabel>("Label1", this);
        named<QGroupBox>("Frame1", this);
        named<QToolButton>("back", this);
        named<QLineEdit>("txtName", this);
        auto* tabs = named<QTabWidget>("TabStrip1", this);
        tabs->addTab(named<QWidget>("Page1", tabs), u"eins"_s);
        tabs->addTab(named<QWidget>("Page2", tabs), u"zwei"_s);
        auto* bar = named<QTabBar>("Tabs", this);
        bar->setTabData(bar->addTab(u"drei"_s), u"Lone"_s);
    }
};

constexpr FormText table[] = {
    {"Sample", u"Muster", u"Sample"},
    {"mnFile", u"Datei", u"&File"},
    {"mnÖffnen", u"Öffnen", u"&Open"},
    {"Command1", u"Schließen", u"&Close", u"Schließt das Fenster", u"Closes this window"},
    {"Label1", u"Hilfe: F1", u"Help: F1"},
    {"Frame1", u"Vokabeln", u"Vocabulary"},
    {"back", nullptr, nullptr, u"Zum Anfang", u"To the beginning"},
    {"txtName", u"Na&me", u"Na&me && more"},
    {"Page2", u"Zwei", u"Two", u"Seite", u"Page"},
    {"Lone", u"Drei", u"Three"},
};

} // namespace

TEST(FormTexts, EnglishTextsReachEveryKindOfControl) {
    const InterfaceLanguage language(u"En"_s);
    Sample form;
    applyTexts(form, table);
    EXPECT_EQ(form.windowTitle(), u"Sample"_s);
    EXPECT_EQ(child<QMenu>(form, "mnFile").title(), u"&File"_s);
    EXPECT_EQ(child<QAction>(form, "mnÖffnen").text(), u"&Open"_s);
    EXPECT_EQ(child<QPushButton>(form, "Command1").text(), u"&Close"_s);
    EXPECT_EQ(child<QPushButton>(form, "Command1").toolTip(), u"Closes this window"_s);
    EXPECT_EQ(child<QLabel>(form, "Label1").text(), u"Help: F1"_s);
    EXPECT_EQ(child<QGroupBox>(form, "Frame1").title(), u"Vocabulary"_s);
    EXPECT_EQ(child<QTabWidget>(form, "TabStrip1").tabText(0), u"eins"_s);
    EXPECT_EQ(child<QTabWidget>(form, "TabStrip1").tabText(1), u"Two"_s);
    EXPECT_EQ(child<QTabWidget>(form, "TabStrip1").tabToolTip(1), u"Page"_s);
    EXPECT_EQ(child<QTabBar>(form, "Tabs").tabText(0), u"Three"_s);
}

TEST(FormTexts, AnyOtherLanguageIsGerman) {
    const InterfaceLanguage language(u"Fr"_s);
    Sample form;
    applyTexts(form, table);
    EXPECT_EQ(form.windowTitle(), u"Muster"_s);
    EXPECT_EQ(child<QPushButton>(form, "Command1").text(), u"Schließen"_s);
    EXPECT_EQ(child<QPushButton>(form, "Command1").toolTip(), u"Schließt das Fenster"_s);
}

TEST(FormTexts, AnEmptyTextLeavesWhatIsThere) {
    const InterfaceLanguage language(u"En"_s);
    Sample form;
    child<QLabel>(form, "Label1").setText(u"as it was"_s);
    constexpr FormText half[] = {{"Label1", u"nur deutsch", u""}};
    applyTexts(form, half);
    EXPECT_EQ(child<QLabel>(form, "Label1").text(), u"as it was"_s);
}

TEST(FormTexts, ControlsWithoutACaptionGetAnAccessibleName) {
    const InterfaceLanguage language(u"En"_s);
    Sample form;
    applyTexts(form, table);
    EXPECT_EQ(child<QToolButton>(form, "back").accessibleName(), u"To the beginning"_s);
    EXPECT_EQ(child<QLineEdit>(form, "txtName").accessibleName(), u"Name & more"_s);
}

TEST(FormTexts, AnotherWindowBelowTheFormIsNotTouched) {
    const InterfaceLanguage language(u"En"_s);
    Sample form;
    QDialog other(&form);
    auto* button = named<QPushButton>("Command1", &other);
    button->setText(u"mine"_s);
    applyTexts(form, table);
    EXPECT_EQ(button->text(), u"mine"_s);
    EXPECT_EQ(child<QPushButton>(form, "Command1").text(), u"&Close"_s);
}

} // namespace lingomat
