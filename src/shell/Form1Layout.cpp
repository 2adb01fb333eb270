#include "Form1.h"

#include "Globals.h"
#include "Resources.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int WidthInCharacters = 64;
constexpr int IconSize = 24;

/// A line of status. Its width follows the window, never the other way round: the text is cut to fit.
QLabel* makeLabel(QWidget* parent, QLatin1StringView name) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

QPushButton* makeButton(QWidget* parent, QLatin1StringView name, QLatin1StringView iconName) {
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    button->setIcon(icon(iconName));
    button->setIconSize({IconSize, IconSize});
    button->setAutoDefault(true);
    return button;
}

QMenu* makeMenu(QMenuBar& bar, QLatin1StringView name) {
    auto* menu = bar.addMenu(QString());
    menu->setObjectName(name);
    return menu;
}

QAction* makeEntry(QMenu& menu, QLatin1StringView name, QLatin1StringView iconName = {}) {
    auto* entry = menu.addAction(QString());
    entry->setObjectName(name);
    if (!iconName.isEmpty())
        entry->setIcon(icon(iconName));
    return entry;
}

} // namespace

void Form1::buildWidgets() {
    setObjectName("Form1"_L1);
    auto* body = new QWidget(this);
    body->setObjectName("body"_L1);
    setCentralWidget(body);

    m_dbAnzeige = makeLabel(body, "DBAnzeige"_L1);
    m_lang1Label = makeLabel(body, "Lang1Label"_L1);
    m_lang2Label = makeLabel(body, "Lang2Label"_L1);
    m_anzahlLabel = makeLabel(body, "AnzahlLabel"_L1);
    auto* helpKey = new QLabel(body);
    helpKey->setObjectName("Label1"_L1);
    for (QLabel* language : {m_lang1Label, m_lang2Label}) {
        QFont large = language->font();
        large.setPointSizeF(large.pointSizeF() * 1.3);
        large.setBold(true);
        language->setFont(large);
        language->setAlignment(Qt::AlignCenter);
        language->setFrameShape(QFrame::StyledPanel);
        language->setMargin(8);
    }

    m_command1 = makeButton(body, "Command1"_L1, "selection"_L1);
    m_grid = makeButton(body, "Grid"_L1, "list"_L1);
    m_command2 = makeButton(body, "Command2"_L1, "trainer"_L1);
    m_command4 = makeButton(body, "Command4"_L1, "quit"_L1);

    auto* languages = new QHBoxLayout;
    languages->addWidget(m_lang1Label, 1);
    languages->addWidget(m_lang2Label, 1);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {m_command1, m_grid, m_command2, m_command4})
        buttons->addWidget(button, 1);

    auto* all = new QVBoxLayout(body);
    all->setSpacing(12);
    all->addWidget(m_dbAnzeige);
    all->addLayout(languages);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_anzahlLabel, 1);
    bottom->addWidget(helpKey);
    all->addLayout(bottom);
    all->addStretch(1);
    all->addLayout(buttons);

    body->setMinimumWidth(m_dbAnzeige->fontMetrics().averageCharWidth() * WidthInCharacters);
    m_command1->setFocus();
}

void Form1::buildMenus() {
    menuBar()->setObjectName("menuBar"_L1);

    QMenu* file = makeMenu(*menuBar(), "Menu_Datei"_L1);
    m_menuDateiNeu = makeEntry(*file, "Menu_Datei_Neu"_L1, "new"_L1);
    m_menuDateiNeu->setShortcut(QKeySequence::New);
    m_dateiOpen = makeEntry(*file, "Datei_Open"_L1, "open"_L1);
    m_dateiOpen->setShortcut(QKeySequence::Open);
    m_dateiBeispiel = makeEntry(*file, "Datei_Beispiel"_L1);
    file->addSeparator();
    m_dateiDrucken = makeEntry(*file, "Datei_Drucken"_L1, "print"_L1);
    m_dateiDrucken->setShortcut(QKeySequence::Print);
    file->addSeparator();
    m_menuDateiBeenden = makeEntry(*file, "Menu_Datei_Beenden"_L1, "quit"_L1);
    m_menuDateiBeenden->setShortcut(QKeySequence::Quit);

    m_menuAnsicht = makeMenu(*menuBar(), "Menu_Ansicht"_L1);
    m_menuAnsichtAuswahl = makeEntry(*m_menuAnsicht, "Menu_Ansicht_Auswahl"_L1, "selection"_L1);
    m_menuAuswahlListe = makeEntry(*m_menuAnsicht, "Menu_Auswahl_Liste"_L1, "list"_L1);
    m_menuAnsichtVokabeltrainer = makeEntry(*m_menuAnsicht, "Menu_Ansicht_Vokabeltrainer"_L1, "trainer"_L1);
    m_menuAnsicht->addSeparator();
    m_sonderzeichen = makeEntry(*m_menuAnsicht, "Sonderzeichen"_L1);
    m_optionen = makeEntry(*m_menuAnsicht, "Optionen"_L1);

    QMenu* help = makeMenu(*menuBar(), "mnuHelp"_L1);
    m_mnuHelpInhalt = makeEntry(*help, "mnuHelpInhalt"_L1, "help"_L1);
    m_mnuHelpSuchen = makeEntry(*help, "mnuHelpSuchen"_L1);
    help->addSeparator();
    m_mnuHelpInfo = makeEntry(*help, "mnuHelpInfo"_L1);
    m_mnWeb = makeEntry(*help, "mnWeb"_L1);
}

void Form1::connectCommands() {
    const auto onClick = [this](QPushButton* button, void (Form1::*command)()) {
        connect(button, &QPushButton::clicked, this, [this, command] { (this->*command)(); });
    };
    onClick(m_command1, &Form1::Command1_Click);
    onClick(m_grid, &Form1::Grid_Click);
    onClick(m_command2, &Form1::Command2_Click);
    onClick(m_command4, &Form1::Command4_Click);

    const auto onChoice = [this](QAction* entry, void (Form1::*command)()) {
        connect(entry, &QAction::triggered, this, [this, command] { (this->*command)(); });
    };
    onChoice(m_menuDateiNeu, &Form1::Menu_Datei_Neu_Click);
    onChoice(m_dateiOpen, &Form1::Datei_Open_Click);
    onChoice(m_dateiBeispiel, &Form1::Datei_Beispiel_Click);
    onChoice(m_dateiDrucken, &Form1::Datei_Drucken_Click);
    onChoice(m_menuDateiBeenden, &Form1::Command4_Click);
    onChoice(m_menuAnsichtAuswahl, &Form1::Command1_Click);
    onChoice(m_menuAuswahlListe, &Form1::Grid_Click);
    onChoice(m_menuAnsichtVokabeltrainer, &Form1::Command2_Click);
    onChoice(m_sonderzeichen, &Form1::Sonderzeichen_Click);
    onChoice(m_optionen, &Form1::Optionen_Click);
    onChoice(m_mnuHelpInhalt, &Form1::mnuHelpInhalt_Click);
    onChoice(m_mnuHelpSuchen, &Form1::mnuHelpSuchen_Click);
    onChoice(m_mnuHelpInfo, &Form1::mnuHelpInfo_Click);
    onChoice(m_mnWeb, &Form1::mnWeb_Click);
}

} // namespace lingomat
