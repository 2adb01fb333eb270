// Tests, screen readers and scripts find windows and controls by their names.

#include "TestProgram.h"

#include "FlexGrid.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

struct WindowNames {
    const char* window;
    std::vector<const char*> controls;
};

const std::vector<WindowNames>& windows() {
    static const std::vector<WindowNames> all{
        {"frmSplash", {"Label2", "ProgressBar1", "labStatus", "Timer1"}},
        {"Form1",
         {"DBAnzeige",
          "Lang1Label",
          "Lang2Label",
          "AnzahlLabel",
          "Command1",
          "Grid",
          "Command2",
          "Command4",
          "Menu_Datei",
          "Menu_Datei_Neu",
          "Datei_Open",
          "Datei_Beispiel",
          "Datei_Drucken",
          "Menu_Datei_Beenden",
          "Menu_Ansicht",
          "Menu_Ansicht_Auswahl",
          "Menu_Auswahl_Liste",
          "Menu_Ansicht_Vokabeltrainer",
          "Sonderzeichen",
          "Optionen",
          "mnuHelpInhalt",
          "mnuHelpSuchen",
          "mnuHelpInfo",
          "mnWeb",
          "Label1"}},
        {"SprachenEingabe",
         {"Sprache1", "Sprache2", "OK", "cmdCancel", "lblText", "lblSprache1", "lblSprache2"}},
        {"Liste",
         {"MSFlexGrid1",
          "WortartBox",
          "QuelleBox",
          "txtEdit",
          "Command1",
          "mnFile",
          "mnSchließen",
          "WordSort",
          "mnSpanisch",
          "WordSortByAll",
          "WordSortByPrefix",
          "WordSortByMain",
          "WordSortBySuffix",
          "mnDeutsch",
          "mnGesamt",
          "mnPrefix",
          "mnHaupt",
          "mnSuffix",
          "mnWortart",
          "mnBereich",
          "mnBeispielsatz",
          "mnQuelle",
          "mnEingabedatum",
          "mnAenderungsdatum",
          "mnScore",
          "mnAnsicht",
          "mnSpalten",
          "mnAnsichtWortart",
          "mnAnsichtGrammatikalisch",
          "mnAnsichtFunktional",
          "mnAnsichtBereich",
          "mnAnsichtBeispielsatz",
          "mnAnsichtZusatzinfo",
          "mnAnsichtQuelle",
          "mnAnsichtEingabedatum",
          "mnAnsichtAenderungsdatum",
          "mnAnsichtScore",
          "Command2",
          "Command3",
          "Command4",
          "Command5",
          "Command6",
          "Referenzen",
          "Drucken",
          "Label1",
          "lblProgress",
          "ProgressBar1",
          "mnNeueZeile",
          "mnZeileLöschen",
          "mnDrucken",
          "mnSpeichern",
          "mnSuchen",
          "mnReferenzen",
          "mnSonderzeichen",
          "mnAnsichtOptionen",
          "mnOptionen"}},
        {"Trainer",
         {"VokabelnGrid",
          "ProgressBar1",
          "Command1",
          "Command2",
          "Command3",
          "Command4",
          "Command6",
          "back",
          "ToEnd",
          "StatusBar1",
          "menNeustart",
          "menClose",
          "menStep",
          "menEinsWeiter",
          "menEinsZurueck",
          "menAnfangSequenz",
          "menEndeSequenz",
          "Toolbar1",
          "Toolbar1_Button1",
          "Toolbar1_Button2",
          "Toolbar1_Button3",
          "Toolbar1_Button5",
          "Toolbar1_Button6",
          "Toolbar1_Button8",
          "Toolbar1_Button9",
          "Toolbar1_Button10",
          "Toolbar1_Button11",
          "Toolbar1_Button12",
          "TabStrip1",
          "picAttribute",
          "picDetails",
          "picReferenzen",
          "tWortart",
          "lbGrammatikalisch",
          "lbFunktional",
          "tQuelle",
          "lbBereiche",
          "tBsp",
          "tZusatzinfo",
          "tEingabedatum",
          "tAenderungsdatum",
          "tScore",
          "ReferenzenCombo",
          "cmdRefBack",
          "cmdRefForward",
          "MSFlexGrid1",
          "frNoReferences",
          "labNoReferences",
          "UpDown1",
          "UpDown2",
          "Richtig",
          "NichtWort",
          "Suche",
          "menDatei",
          "menEinstellungen",
          "menMain",
          "menTestoptionen",
          "menNavigieren",
          "menAnsicht",
          "menAttribute",
          "menDetails",
          "menReferenzen",
          "menDetailsjanein",
          "menExtras",
          "menSucheZuletzt",
          "Label1",
          "Label3",
          "Label5",
          "Label6",
          "Label8",
          "Label9",
          "Label10",
          "Label11",
          "Label12",
          "Label13",
          "Label14"}},
        {"InputFenster",
         {"Label1", "Label3", "Text1", "FontCombo", "Command1", "Toolbar1", "Toolbar1_Button1", "OK"}},
        {"ConfirmForm", {"Label1", "Label2", "Label3", "Label4", "Typed", "Stored", "Ja", "Nein"}},
        {"ConfirmDlg", {"Label1", "JaButton", "NeinButton"}},
        {"frmOptions",
         {"tbsOptions",
          "picOptions1",
          "picOptions2",
          "picOptions3",
          "picOptions4",
          "fraSample1",
          "Reihenfolge_sequentiell",
          "Reihenfolge_shuffle",
          "Reihenfolge_random",
          "Frame1",
          "Sprache_spanisch",
          "Sprache_deutsch",
          "Erklaerung_Reihenfolge",
          "fraSample2",
          "Selbsttest",
          "Schleife",
          "Schreiben",
          "FehlerBestaetigen",
          "MainOnly",
          "KommentarLabel",
          "fraSample3",
          "Erklaerung_Zeichen",
          "MSFlexGrid1",
          "Text1",
          "Text2",
          "Add",
          "Remove",
          "Label4",
          "Frame2",
          "chkWortart",
          "chkGrammatikalischeAttribute",
          "chkFunktionaleAttribute",
          "chkBereich",
          "chkBeispielsatz",
          "chkZusatzinfo",
          "chkQuelle",
          "chkEingabedatum",
          "chkAenderungsdatum",
          "chkScore",
          "cmdOK",
          "cmdCancel",
          "cmdApply",
          "Label3"}},
        {"Form2",
         {"Command1",
          "Command2",
          "Command3",
          "Command4",
          "cmbName",
          "cmdSpeichern",
          "cmdLoeschen",
          "cmdFont",
          "TabStrip1",
          "tbsOptions",
          "StatusBar1",
          "frmListboxes",
          "cmdAdd",
          "cmdRemove",
          "cmdAddAll",
          "cmdRemoveAll",
          "lstWortartLinks",
          "lstWortartRechts",
          "lstBereichLinks",
          "lstBereichRechts",
          "lstQuelleLinks",
          "lstQuelleRechts",
          "lstGrammatikalischLinks",
          "lstGrammatikalischRechts",
          "lstFunktionalLinks",
          "lstFunktionalRechts",
          "lstReferenzenLinks",
          "lstReferenzenRechts",
          "chkRefOption1",
          "chkRefOption2",
          "WortartBox",
          "BereichBox",
          "QuelleBox",
          "Lang1Check",
          "Lang1Prefix",
          "Lang1Main",
          "Lang1Suffix",
          "Lang1Kommentar",
          "Lang2Check",
          "Lang2Prefix",
          "Lang2Main",
          "Lang2Suffix",
          "Lang2Kommentar",
          "Beispielsatz",
          "Zusatzinfo",
          "MinScore",
          "MaxScore",
          "MinScoreSlider",
          "MaxScoreSlider",
          "txtEingabeVonTag",
          "txtEingabeVonMonat",
          "txtEingabeVonJahr",
          "txtEingabeBisTag",
          "txtEingabeBisMonat",
          "txtEingabeBisJahr",
          "txtAenderungVonTag",
          "txtAenderungVonMonat",
          "txtAenderungVonJahr",
          "txtAenderungBisTag",
          "txtAenderungBisMonat",
          "txtAenderungBisJahr",
          "mnAuswahlNeu",
          "mnAuswahlOpen",
          "mnAuswahlSpeichern",
          "mnAuswahlDelete",
          "mnSuchen",
          "mnSelectAll",
          "mnClose",
          "mnQuelle",
          "mnBereich",
          "mnWortart",
          "mnFehlerscore",
          "mnGrammatikalisch",
          "mnFunktional",
          "mnWortbestandteile",
          "mnRelationen",
          "mnBeispielsatz",
          "mnEingabedatum",
          "mnChangeDatum",
          "mnZusatzinfo"}},
        {"Progress", {"ProgressBar1", "txtStatus"}},
    };
    return all;
}

QWidget* windowNamed(const QString& name) {
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all) {
        if (window->objectName() == name)
            return window;
    }
    return nullptr;
}

/// The parts that a control of the toolkit is made of are not the program's.
bool isPartOfAControl(const QWidget& widget) {
    if (widget.objectName().startsWith(u"qt_"_s) || qobject_cast<const QScrollBar*>(&widget))
        return true;
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const QComboBox*>(above) || qobject_cast<const QMenuBar*>(above) ||
            qobject_cast<const QAbstractItemView*>(above) || qobject_cast<const QTabBar*>(above) ||
            qobject_cast<const QLineEdit*>(above))
            return true;
    }
    return false;
}

bool isControl(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget) ||
           qobject_cast<const QAbstractSlider*>(&widget) || qobject_cast<const QTabBar*>(&widget) ||
           qobject_cast<const QProgressBar*>(&widget) || qobject_cast<const QLabel*>(&widget);
}

bool speaks(const QWidget& widget) {
    if (!widget.accessibleName().isEmpty())
        return true;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return !button->text().isEmpty();
    if (qobject_cast<const QLabel*>(&widget))
        return true;
    const QList<QLabel*> labels = widget.window()->findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&widget](const QLabel* label) { return label->buddy() == &widget; });
}

/// Whether the object stands in that window itself and not in a dialog that belongs to it.
bool standsIn(const QObject& object, const QWidget& window) {
    for (const QObject* above = object.parent(); above; above = above->parent()) {
        const auto* widget = qobject_cast<const QWidget*>(above);
        if (widget && (widget == &window || widget->windowType() == Qt::Dialog))
            return widget == &window;
    }
    return false;
}

class Names : public testing::Test {
protected:
    Names() { program.startWithDatabase(); }

    template <typename Check>
    void forEachControl(Check&& check) {
        for (const WindowNames& names : windows()) {
            const QWidget* window = windowNamed(QString::fromUtf8(names.window));
            ASSERT_NE(window, nullptr) << names.window;
            const QList<QWidget*> widgets = window->findChildren<QWidget*>();
            for (const QWidget* widget : widgets) {
                if (isControl(*widget) && !isPartOfAControl(*widget))
                    check(*window, *widget);
            }
        }
    }

    TestProgram program;
};

TEST_F(Names, EveryPrescribedControlIsThere) {
    for (const WindowNames& names : windows()) {
        const QWidget* window = windowNamed(QString::fromUtf8(names.window));
        ASSERT_NE(window, nullptr) << names.window;
        for (const char* control : names.controls) {
            const QList<QObject*> found = window->findChildren<QObject*>(QString::fromUtf8(control));
            const auto standing = std::count_if(found.begin(), found.end(), [window](const QObject* object) {
                return standsIn(*object, *window);
            });
            EXPECT_EQ(standing, 1) << names.window << '.' << control;
        }
    }
}

TEST_F(Names, EveryControlHasAName) {
    forEachControl([](const QWidget& window, const QWidget& control) {
        EXPECT_FALSE(control.objectName().isEmpty())
            << "a " << control.metaObject()->className() << " of " << window.objectName().toStdString();
    });
}

TEST_F(Names, EveryControlSaysWhatItIs) {
    forEachControl([](const QWidget& window, const QWidget& control) {
        EXPECT_TRUE(speaks(control)) << window.objectName().toStdString() << '.'
                                     << control.objectName().toStdString();
    });
}

TEST_F(Names, EveryMenuEntryHasANameAndACaption) {
    for (const WindowNames& names : windows()) {
        const QWidget* window = windowNamed(QString::fromUtf8(names.window));
        ASSERT_NE(window, nullptr) << names.window;
        const QList<QMenu*> menus = window->findChildren<QMenu*>();
        for (const QMenu* menu : menus) {
            const QList<QAction*> entries = menu->actions();
            for (const QAction* entry : entries) {
                if (entry->isSeparator())
                    continue;
                const QString name = entry->menu() ? entry->menu()->objectName() : entry->objectName();
                EXPECT_FALSE(name.isEmpty()) << names.window << ": " << entry->text().toStdString();
                EXPECT_FALSE(entry->text().isEmpty()) << names.window << '.' << name.toStdString();
            }
        }
    }
}

} // namespace
} // namespace lingomat
