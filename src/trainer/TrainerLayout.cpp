#include "Trainer.h"

#include "FlexGrid.h"
#include "Resources.h"

#include <QAction>
#include <QActionGroup>
#include <QBoxLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr QSize StartSize(720, 440);
// Pixels, in the status bar.
constexpr int PanelIndent = 6;
constexpr int PanelGap = 24;

QMenu* addMenu(QMenuBar& bar, const QString& name) {
    auto* menu = new QMenu(&bar);
    menu->setObjectName(name);
    bar.addMenu(menu);
    return menu;
}

} // namespace

QPushButton* Trainer::newButton(QLatin1StringView name, const QIcon& icon) {
    auto* button = new QPushButton(centralWidget());
    button->setObjectName(name);
    button->setIcon(icon);
    button->setAutoDefault(true);
    return button;
}

void Trainer::buildWidgets() {
    auto* body = new QWidget(this);
    body->setObjectName(u"body"_s);
    setCentralWidget(body);

    m_grid = new FlexGrid(body);
    m_grid->setObjectName(u"VokabelnGrid"_s);

    m_progressBar = new QProgressBar(body);
    m_progressBar->setObjectName(u"ProgressBar1"_s);
    m_progressBar->setTextVisible(false);
    QSizePolicy keepsRoom = m_progressBar->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    m_progressBar->setSizePolicy(keepsRoom);

    m_first.button = newButton("back"_L1, icon("first"_L1));
    m_back.button = newButton("Command1"_L1, icon("previous"_L1));
    m_step.button = newButton("Command3"_L1, icon("step"_L1));
    m_forward.button = newButton("Command2"_L1, icon("next"_L1));
    m_last.button = newButton("ToEnd"_L1, icon("last"_L1));
    m_restart = newButton("Command6"_L1, icon("restart"_L1));
    m_close = newButton("Command4"_L1, {});

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_restart);
    buttons->addStretch();
    for (const Command& command : {m_first, m_back, m_step, m_forward, m_last})
        buttons->addWidget(command.button);
    buttons->addStretch();
    buttons->addWidget(m_close);

    auto* column = new QVBoxLayout(body);
    column->addWidget(m_grid, 1);
    column->addWidget(m_progressBar);
    column->addLayout(buttons);

    resize(StartSize.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    m_step.button->setFocus();
}

QAction* Trainer::newEntry(QMenu& menu, QLatin1StringView name, const QKeySequence& key) {
    auto* entry = new QAction(this);
    entry->setObjectName(name);
    entry->setShortcut(key);
    menu.addAction(entry);
    return entry;
}

QAction* Trainer::newChoice(QMenu& menu, QActionGroup& group, QLatin1StringView name) {
    QAction* choice = newEntry(menu, name, {});
    choice->setCheckable(true);
    group.addAction(choice);
    return choice;
}

void Trainer::buildMenus() {
    menuBar()->setObjectName(u"menuBar"_s);

    QMenu& file = *addMenu(*menuBar(), u"menDatei"_s);
    m_restartEntry = newEntry(file, "menNeustart"_L1, Qt::Key_F5);
    file.addSeparator();
    m_closeEntry = newEntry(file, "menClose"_L1, QKeySequence::Close);

    QMenu& settings = *addMenu(*menuBar(), u"menEinstellungen"_s);
    auto& orders = *new QActionGroup(this);
    m_sequential = newChoice(settings, orders, "Reihenfolge_sequentiell"_L1);
    m_shuffled = newChoice(settings, orders, "Reihenfolge_shuffle"_L1);
    m_random = newChoice(settings, orders, "Reihenfolge_random"_L1);
    settings.addSeparator();
    auto& languages = *new QActionGroup(this);
    m_language1First = newChoice(settings, languages, "Lang1Zuerst"_L1);
    m_language2First = newChoice(settings, languages, "Lang2Zuerst"_L1);

    QMenu& navigation = *addMenu(*menuBar(), u"menNavigieren"_s);
    m_step.entry = newEntry(navigation, "menStep"_L1, Qt::Key_F8);
    navigation.addSeparator();
    m_forward.entry = newEntry(navigation, "menEinsWeiter"_L1, Qt::Key_F9);
    m_back.entry = newEntry(navigation, "menEinsZurueck"_L1, Qt::Key_F7);
    m_first.entry = newEntry(navigation, "menAnfangSequenz"_L1, Qt::CTRL | Qt::Key_Home);
    m_last.entry = newEntry(navigation, "menEndeSequenz"_L1, Qt::CTRL | Qt::Key_End);
}

void Trainer::buildStatusBar() {
    statusBar()->setObjectName(u"StatusBar1"_s);
    for (size_t panel = 0; panel < m_panels.size(); ++panel) {
        m_panels[panel] = new QLabel(statusBar());
        m_panels[panel]->setObjectName(u"StatusBar1_Panel%1"_s.arg(panel + 1));
        statusBar()->addWidget(m_panels[panel]);
    }
    m_panels[PanelEntries]->setContentsMargins(0, 0, PanelGap, 0);
    m_panels[PanelEntriesLabel]->setContentsMargins(PanelIndent, 0, 0, 0);
}

void Trainer::connectEvents() {
    const auto connectCommand = [this](const Command& command, void (Trainer::*act)()) {
        connect(command.button, &QPushButton::clicked, this, act);
        connect(command.entry, &QAction::triggered, this, act);
    };
    connectCommand({m_restart, m_restartEntry}, &Trainer::Command6_Click);
    connectCommand({m_close, m_closeEntry}, &Trainer::Command4_Click);
    connectCommand(m_step, &Trainer::Command3_Click);
    connectCommand(m_forward, &Trainer::Command2_Click);
    connectCommand(m_back, &Trainer::Command1_Click);
    connectCommand(m_first, &Trainer::back_Click);
    connectCommand(m_last, &Trainer::ToEnd_Click);

    const auto connectOrder = [this](QAction* choice, bool Trainer::*order) {
        connect(choice, &QAction::triggered, this, [this, order] { chooseOrder(order); });
    };
    connectOrder(m_sequential, &Trainer::Reihenfolge_sequentiell);
    connectOrder(m_shuffled, &Trainer::Reihenfolge_shuffle);
    connectOrder(m_random, &Trainer::Reihenfolge_random);
    connect(m_language1First, &QAction::triggered, this, [this] { chooseLanguage(&Trainer::Lang1Zuerst); });
    connect(m_language2First, &QAction::triggered, this, [this] { chooseLanguage(&Trainer::Lang2Zuerst); });

    // Also with the focus on the display the common keys take a step.
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, m_grid);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, &Trainer::Command3_Click);
    }
}

} // namespace lingomat
