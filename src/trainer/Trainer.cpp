#include "Trainer.h"

#include "TrainerPanels.h"

#include <QAction>
#include <QEvent>

namespace lingomat {

namespace {

// Where a window stands that was parked off the screen, and where it comes back.
constexpr int ParkedLeft = -667;
constexpr int ReturnLeft = 45;

} // namespace

Trainer::Trainer(FormContext& context, Liste& liste, QWidget* parent)
    : QMainWindow(parent), m_context(context), m_liste(liste) {
    setObjectName(QStringLiteral("Trainer"));
    setContextMenuPolicy(Qt::NoContextMenu); // the toolkit's own would offer to take the toolbar away
    buildWidgets();
    buildVokabelnGrid();
    buildMenus();
    buildStatusBar();
    buildDialogs();
    connectEvents();
    connectPanels();
}

Trainer::~Trainer() = default;

void Trainer::Form_Load() {
    Q_EMIT loadProgress(83);
    VolleBreite = width();
    m_panelEntries[0]->setChecked(true);
    Command6_Click();
    Q_EMIT loadProgress(85);
    OptionsToUI();
    RowPositionToUI();
    Q_EMIT loadProgress(88);
    m_panels->setTab(1);
    LetzteEingabe.clear();
    SetUserInterfaceProperties();
    Q_EMIT loadProgress(90);
}

void Trainer::Form_Activate() {
    OptionsToUI();
    RowPositionToUI();
    if (x() <= ParkedLeft)
        move(ReturnLeft, y());
}

bool Trainer::event(QEvent* event) {
    const bool isHandled = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate)
        Form_Activate();
    return isHandled;
}

void Trainer::Command4_Click() {
    hide();
}

} // namespace lingomat
