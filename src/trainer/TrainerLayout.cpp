#include "Trainer.h"

#include "ConfirmDlg.h"
#include "ConfirmForm.h"
#include "FlexGrid.h"
#include "InputFenster.h"
#include "Resources.h"
#include "SharedState.h"
#include "SynonymButtons.h"
#include "TrainerPanels.h"
#include "VerdictBox.h"
#include "frmOptions.h"

#include <QAction>
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

constexpr QSize StartSize(780, 500);
// How display and panels share the width.
constexpr int WalkShare = 3;
constexpr int PanelsShare = 2;
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

    m_right = new VerdictBox(VerdictBox::Verdict::Right, u"Richtig"_s, m_grid->viewport());
    m_wrong = new VerdictBox(VerdictBox::Verdict::Wrong, u"NichtWort"_s, m_grid->viewport());
    m_search = new QPushButton(m_grid->viewport());
    m_search->setObjectName(u"Suche"_s);
    m_search->setAutoDefault(true);
    m_search->setCursor(Qt::ArrowCursor);
    m_search->hide();
    m_questionSynonyms = new SynonymButtons(u"UpDown1"_s, m_grid->viewport());
    m_solutionSynonyms = new SynonymButtons(u"UpDown2"_s, m_grid->viewport());
    m_panels = new TrainerPanels(m_context, body);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_restart);
    buttons->addStretch();
    for (const Command& command : {m_first, m_back, m_step, m_forward, m_last})
        buttons->addWidget(command.button);
    buttons->addStretch();
    buttons->addWidget(m_close);

    auto* walk = new QVBoxLayout;
    walk->addWidget(m_grid, 1);
    walk->addWidget(m_progressBar);
    walk->addLayout(buttons);
    auto* row = new QHBoxLayout(body);
    row->addLayout(walk, WalkShare);
    row->addWidget(m_panels, PanelsShare);

    m_toolbar = new TrainerToolbar(this);
    addToolBar(m_toolbar);
    resize(StartSize.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    m_step.button->setFocus();
}

void Trainer::buildDialogs() {
    m_input = new InputFenster(m_context.state.Exceptions, this);
    m_confirm = new ConfirmForm(this);
    m_confirmKnown = new ConfirmDlg(this);
}

QAction* Trainer::newEntry(QMenu& menu, QLatin1StringView name, const QKeySequence& key) {
    auto* entry = new QAction(this);
    entry->setObjectName(name);
    entry->setShortcut(key);
    menu.addAction(entry);
    return entry;
}

QAction* Trainer::newChoice(QMenu& menu, QLatin1StringView name) {
    QAction* choice = newEntry(menu, name, {});
    choice->setCheckable(true);
    return choice;
}

void Trainer::buildMenus() {
    menuBar()->setObjectName(u"menuBar"_s);

    QMenu& file = *addMenu(*menuBar(), u"menDatei"_s);
    m_restartEntry = newEntry(file, "menNeustart"_L1, Qt::Key_F5);
    file.addSeparator();
    m_closeEntry = newEntry(file, "menClose"_L1, QKeySequence::Close);

    QMenu& settings = *addMenu(*menuBar(), u"menEinstellungen"_s);
    m_orderEntry = newEntry(settings, "menMain"_L1, {});
    m_testEntry = newEntry(settings, "menTestoptionen"_L1, {});

    QMenu& navigation = *addMenu(*menuBar(), u"menNavigieren"_s);
    m_step.entry = newEntry(navigation, "menStep"_L1, Qt::Key_F8);
    navigation.addSeparator();
    m_forward.entry = newEntry(navigation, "menEinsWeiter"_L1, Qt::Key_F9);
    m_back.entry = newEntry(navigation, "menEinsZurueck"_L1, Qt::Key_F7);
    m_first.entry = newEntry(navigation, "menAnfangSequenz"_L1, Qt::CTRL | Qt::Key_Home);
    m_last.entry = newEntry(navigation, "menEndeSequenz"_L1, Qt::CTRL | Qt::Key_End);

    QMenu& view = *addMenu(*menuBar(), u"menAnsicht"_s);
    m_panelEntries = {newChoice(view, "menAttribute"_L1), newChoice(view, "menDetails"_L1),
                      newChoice(view, "menReferenzen"_L1)};
    view.addSeparator();
    m_detailsEntry = newEntry(view, "menDetailsjanein"_L1, Qt::Key_F4);

    QMenu& extras = *addMenu(*menuBar(), u"menExtras"_s);
    m_searchEntry = newEntry(extras, "menSucheZuletzt"_L1, Qt::Key_F3);
    m_searchEntry->setEnabled(false);
}

void Trainer::buildStatusBar() {
    statusBar()->setObjectName(u"StatusBar1"_s);
    for (size_t panel = 0; panel < m_statusPanels.size(); ++panel) {
        m_statusPanels[panel] = new QLabel(statusBar());
        m_statusPanels[panel]->setObjectName(u"StatusBar1_Panel%1"_s.arg(panel + 1));
        statusBar()->addWidget(m_statusPanels[panel]);
    }
    m_statusPanels[PanelEntries]->setContentsMargins(0, 0, PanelGap, 0);
    m_statusPanels[PanelEntriesLabel]->setContentsMargins(PanelIndent, 0, 0, 0);
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

    connect(m_orderEntry, &QAction::triggered, this,
            [this] { Q_EMIT optionsRequested(frmOptions::TabOfOrder); });
    connect(m_testEntry, &QAction::triggered, this,
            [this] { Q_EMIT optionsRequested(frmOptions::TabOfTest); });
    connect(m_toolbar, &TrainerToolbar::buttonPressed, this, &Trainer::Toolbar1_ButtonClick);
    connect(m_search, &QPushButton::clicked, this, &Trainer::Suche_Click);
    connect(m_searchEntry, &QAction::triggered, this, &Trainer::Suche_Click);
    connectSynonyms(*m_questionSynonyms, QuestionRow);
    connectSynonyms(*m_solutionSynonyms, SolutionRow);
    connect(m_input, &InputFenster::specialCharactersRequested, this,
            [this] { Q_EMIT specialCharactersRequested(*m_input); });
    connect(m_input, &InputFenster::mainOnlyChanged, this, [this](bool mainOnly) {
        MainOnly = mainOnly;
        m_toolbar->setPressed(TrainerToolbar::MainOnly, mainOnly);
    });

    // Also with the focus on the display the common keys take a step.
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, m_grid);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, &Trainer::Command3_Click);
    }
}

} // namespace lingomat
