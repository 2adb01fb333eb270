// Buttons and menu entries of the list's commands.

#include "FlexGrid.h"
#include "Liste.h"

#include <QAction>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QPushButton* addButton(QLayout& row, QWidget& body, const char* name) {
    auto* button = new QPushButton(&body);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(true);
    row.addWidget(button);
    return button;
}

QAction* addEntry(QMenu& menu, const QString& name) {
    auto* entry = new QAction(&menu);
    entry->setObjectName(name);
    menu.addAction(entry);
    return entry;
}

/// Keeps its room while it is hidden, so that the grid does not jump when a save begins.
void hideInPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
    widget.hide();
}

} // namespace

/// What works on rows stands above what works on the window.
QLayout* Liste::buildCommands(QWidget& body) {
    auto* rowCommands = new QHBoxLayout;
    m_command3 = addButton(*rowCommands, body, "Command3");
    m_command4 = addButton(*rowCommands, body, "Command4");
    m_command6 = addButton(*rowCommands, body, "Command6");
    m_referenzen = addButton(*rowCommands, body, "Referenzen");
    m_drucken = addButton(*rowCommands, body, "Drucken");
    rowCommands->addStretch();
    auto* help = new QLabel(&body);
    help->setObjectName(u"Label1"_s);
    rowCommands->addWidget(help);

    auto* windowCommands = new QHBoxLayout;
    m_lblProgress = new QLabel(&body);
    m_lblProgress->setObjectName(u"lblProgress"_s);
    windowCommands->addWidget(m_lblProgress);
    m_progressBar = new QProgressBar(&body);
    m_progressBar->setObjectName(u"ProgressBar1"_s);
    windowCommands->addWidget(m_progressBar, 1);
    hideInPlace(*m_lblProgress);
    hideInPlace(*m_progressBar);
    m_command5 = addButton(*windowCommands, body, "Command5");
    m_command2 = addButton(*windowCommands, body, "Command2");
    m_command1 = addButton(*windowCommands, body, "Command1");

    auto* commands = new QVBoxLayout;
    commands->addLayout(rowCommands);
    commands->addLayout(windowCommands);
    return commands;
}

void Liste::fillFileMenu(QMenu& menu) {
    m_mnNeueZeile = addEntry(menu, u"mnNeueZeile"_s);
    m_mnNeueZeile->setShortcut(QKeySequence::New);
    m_mnZeileLoeschen = addEntry(menu, u"mnZeileLöschen"_s);
    m_mnDrucken = addEntry(menu, u"mnDrucken"_s);
    m_mnDrucken->setShortcut(QKeySequence::Print);
    m_mnSpeichern = addEntry(menu, u"mnSpeichern"_s);
    m_mnSpeichern->setShortcut(QKeySequence::Save);
    m_mnSuchen = addEntry(menu, u"mnSuchen"_s);
    m_mnSuchen->setShortcut(QKeySequence::Find);
    m_mnSchliessen = addEntry(menu, u"mnSchließen"_s);
    m_mnSchliessen->setShortcut(QKeySequence::Close);
}

void Liste::fillViewMenu(QMenu& menu, QMenu& columns) {
    columns.addSeparator();
    m_mnAnsichtOptionen = addEntry(columns, u"mnAnsichtOptionen"_s);
    m_mnReferenzen = addEntry(menu, u"mnReferenzen"_s);
    m_mnSonderzeichen = addEntry(menu, u"mnSonderzeichen"_s);
    menu.addSeparator();
    m_mnOptionen = addEntry(menu, u"mnOptionen"_s);
}

void Liste::connectCommands() {
    const auto connectBoth = [this](QPushButton* button, QAction* entry, void (Liste::*command)()) {
        if (button)
            connect(button, &QPushButton::clicked, this, [this, command] { (this->*command)(); });
        if (entry)
            connect(entry, &QAction::triggered, this, [this, command] { (this->*command)(); });
    };
    connectBoth(m_command1, m_mnSchliessen, &Liste::Command1_Click);
    connectBoth(m_command2, m_mnSpeichern, &Liste::Command2_Click);
    connectBoth(m_command3, m_mnNeueZeile, &Liste::Command3_Click);
    connectBoth(m_command4, m_mnZeileLoeschen, &Liste::Command4_Click);
    connectBoth(m_command5, nullptr, &Liste::Command5_Click);
    connectBoth(m_command6, m_mnSonderzeichen, &Liste::Command6_Click);
    connectBoth(m_referenzen, m_mnReferenzen, &Liste::Referenzen_Click);
    connectBoth(nullptr, m_mnSuchen, &Liste::mnSuchen_Click);
    connectBoth(m_drucken, m_mnDrucken, &Liste::Drucken_Click);
    connectBoth(nullptr, m_mnAnsichtOptionen, &Liste::mnAnsichtOptionen_Click);
    connectBoth(nullptr, m_mnOptionen, &Liste::mnOptionen_Click);
}

} // namespace lingomat
