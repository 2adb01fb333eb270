// take_pictures FOLDER: the pictures of the help, into FOLDER/en/pictures and FOLDER/de/pictures.

#include "Application.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Stage.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>

#include <cstdio>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

template <typename Kind>
Kind& part(const QObject& window, const char* name) {
    auto* found = window.findChild<Kind*>(QString::fromUtf8(name));
    if (!found)
        throw std::runtime_error(std::string("no ") + name + " in " + window.objectName().toStdString());
    return *found;
}

void press(const QObject& window, const char* button) {
    part<QAbstractButton>(window, button).click();
}

void choose(const QObject& window, const char* entry) {
    part<QAction>(window, entry).trigger();
}

QWidget& topWindow(const char* name) {
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all) {
        if (window->objectName() == QString::fromUtf8(name))
            return *window;
    }
    throw std::runtime_error(std::string("no window ") + name);
}

/// A folder like the program's own, which may be written to.
void copyProgramFolder(const QString& target) {
    for (const char16_t* name : {u"Example.lmt", u"ExampleGerman.lmt", u"marke.gif"}) {
        const QString file = QString::fromUtf16(name);
        if (!QFile::copy(QStringLiteral(LINGOMAT_PROGRAM_FOLDER "/") + file, target + u'/' + file))
            throw std::runtime_error("cannot copy " + file.toStdString());
    }
}

/// One run of the program, in which each window comes up once.
class Tour {
public:
    Tour(const QString& language, const QString& folder)
        : m_stage(folder),
          m_app({.prompts = m_stage,
                 .random = m_random,
                 .today = [] { return QDate(2026, 3, 14); },
                 .workArea = [] { return QSize(1600, 1200); },
                 .programFolder = m_home.path(),
                 .settingsFolder = m_home.filePath(u"settings"_s),
                 .language = language}) {}

    void run() {
        copyProgramFolder(m_home.path());
        m_app.start();
        while (!m_app.form1().isVisible() || m_app.splash().isVisible())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        selection();
        list();
        references();
        trainer();
        mainWindow();
    }

private:
    void selection() {
        Form2& form = m_app.form2();
        press(m_app.form1(), "Command1");
        part<QTabBar>(form, "tbsOptions").setCurrentIndex(1);
        part<QListWidget>(form, "lstBereichLinks").setCurrentRow(3); // an area with entries of many kinds
        press(form, "cmdAdd");
        m_stage.take(form, u"selection"_s);

        m_stage.onDialog(u"frmSelectAuswahl"_s, [this](QDialog& dialog) {
            part<QComboBox>(dialog, "Combo1")
                .setEditText(uiText(u"Verben im Unterricht"_s, u"Verbs in class"_s));
            m_stage.take(dialog, u"lessons"_s);
        });
        choose(form, "mnAuswahlNeu");
        press(form, "cmdFont");
        QWidget& pad = topWindow("FontHelp");
        press(pad, "Command27");
        m_stage.take(pad, u"characters"_s);
        pad.hide();
        press(form, "Command4");
        form.hide();
    }

    void list() {
        Liste& form = m_app.liste();
        press(m_app.form1(), "Grid");
        form.resize(940, 400);
        form.MSFlexGrid1().setRow(rowWithReference());
        form.SetzeMarke();
        m_stage.take(form, u"list"_s);
        m_stage.onDialog(u"frmSuchen"_s, [this](QDialog& dialog) {
            part<QLineEdit>(dialog, "txtAusdruck").setText(u"die"_s);
            m_stage.take(dialog, u"find"_s);
        });
        choose(form, "mnSuchen");
        form.MSFlexGrid1().setRow(rowWithReference()); // the search has sorted the list
    }

    /// The first entry of the list that a reference leaves; the first at all where there is none.
    int rowWithReference() {
        FlexGrid& grid = m_app.liste().MSFlexGrid1();
        dao::Recordset& references = m_app.state().DBHandler.RecordsetReferenzen;
        for (int row = 1; row < grid.Rows(); ++row) {
            references.FindFirst(u"von LIKE '%1'"_s.arg(grid.TextMatrix(row, 1)));
            if (!references.NoMatch())
                return row;
        }
        return 1;
    }

    void references() {
        m_stage.onDialog(u"NeueRelation"_s,
                         [this](QDialog& dialog) { m_stage.take(dialog, u"newreference"_s); });
        m_stage.onDialog(u"Relationen"_s, [this](QDialog& dialog) {
            m_stage.take(dialog, u"references"_s);
            press(dialog, "Add");
        });
        m_app.showReferences();
        m_app.liste().hide();
    }

    void trainer() {
        Trainer& form = m_app.trainer();
        press(m_app.form1(), "Command2");
        for (int steps = 0; steps < 6; ++steps)
            press(form, "Command3");
        m_stage.take(form, u"trainer"_s);
        m_stage.onDialog(u"InputFenster"_s, [this](QDialog& dialog) {
            part<QLineEdit>(dialog, "Text1").setText(uiText(u"la mesa"_s, u"the table"_s));
            m_stage.take(dialog, u"answer"_s);
            dialog.accept();
        });
        press(form, "Toolbar1_Button8");
        press(form, "Toolbar1_Button10");
        press(form, "Command3");
        m_stage.take(form, u"verdict"_s);
        form.hide();
    }

    void mainWindow() {
        Form1& form = m_app.form1();
        m_stage.onDialog(u"frmAbout"_s, [this](QDialog& dialog) { m_stage.take(dialog, u"about"_s); });
        choose(form, "mnuHelpInfo");
        m_stage.onDialog(u"SprachenEingabe"_s, [this](QDialog& dialog) {
            part<QLineEdit>(dialog, "Sprache1").setText(uiText(u"Deutsch"_s, u"English"_s));
            part<QLineEdit>(dialog, "Sprache2").setText(uiText(u"Italienisch"_s, u"Italian"_s));
            m_stage.take(dialog, u"languages"_s);
        });
        m_stage.chooseFile(m_home.filePath(u"new.lmt"_s));
        // The main window shows where the file lies: a place that looks the same whoever takes the picture.
        m_app.state().CurrentDBPath = uiText(u"/home/anna/Vokabeln.lmt"_s, u"/home/anna/Vocabulary.lmt"_s);
        form.SetzeAnzeigen();
        m_stage.take(form, u"main"_s);
        choose(form, "Menu_Datei_Neu");
    }

    QTemporaryDir m_home;
    ClockSeededRandom m_random;
    Stage m_stage;
    Application m_app;
};

void takeAll(const QString& folder) {
    for (const auto& [language, name] : {std::pair(u"En"_s, u"en"_s), std::pair(u"De"_s, u"de"_s)}) {
        const QString pictures = folder + u'/' + name + "/pictures"_L1;
        QDir().mkpath(pictures);
        Tour(language, pictures).run();
    }
}

} // namespace
} // namespace lingomat

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setStyle(u"fusion"_s);
    if (argc != 2) {
        std::fputs("take_pictures FOLDER\n", stderr);
        return 2;
    }
    try {
        lingomat::takeAll(QString::fromLocal8Bit(argv[1]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "take_pictures: %s\n", error.what());
        return 1;
    }
    return 0;
}
