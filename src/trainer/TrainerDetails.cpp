// The panels beside the expressions.

#include "Trainer.h"

#include "FlexGrid.h"
#include "Globals.h"
#include "Liste.h"
#include "Prompts.h"
#include "SharedState.h"
#include "TrainerPanels.h"
#include "TrainerReferences.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QString hideDetails() {
    return uiText(u"Details ausblenden"_s, u"Hide details"_s);
}

QString showDetailsText() {
    return uiText(u"Details anzeigen"_s, u"Show details"_s);
}

} // namespace

void Trainer::connectPanels() {
    connect(m_panels, &TrainerPanels::tabChanged, this, &Trainer::showPanel);
    for (size_t panel = 0; panel < m_panelEntries.size(); ++panel)
        connect(m_panelEntries[panel], &QAction::triggered, this,
                [this, panel] { choosePanel(static_cast<int>(panel) + 1); });
    connect(m_detailsEntry, &QAction::triggered, this, &Trainer::menDetailsjanein_Click);
}

void Trainer::ClearDetails() {
    m_panels->ClearDetails();
}

void Trainer::showDetails(int row) {
    m_panels->showRow(m_liste.MSFlexGrid1(), row);
    if (RefOffen)
        loadReferences();
}

/// Those of the entry on the screen, whatever row the list stands on by now.
void Trainer::loadReferences() {
    m_panels->references().setLanguage1First(Lang1Zuerst);
    m_panels->references().load(m_shown.key);
}

void Trainer::showPanel(int tab) {
    RefOffen = tab == TrainerPanels::ReferencesTab;
    checkPanel(tab);
    if (RefOffen)
        loadReferences();
}

void Trainer::choosePanel(int tab) {
    m_panels->setTab(tab);
    checkPanel(tab); // the entry has unchecked itself where this was the one on top
    m_detailsEntry->setText(hideDetails());
    m_panels->setVisible(true);
    resize(VolleBreite, height());
}

void Trainer::menDetailsjanein_Click() {
    if (m_detailsEntry->text() == hideDetails()) {
        m_detailsEntry->setText(showDetailsText());
        checkPanel(0);
        const int narrow = m_grid->x() * 3 + m_grid->width();
        m_panels->setVisible(false);
        resize(narrow, height());
        return;
    }
    m_detailsEntry->setText(hideDetails());
    checkPanel(m_panels->tab());
    m_panels->setVisible(true);
    resize(VolleBreite, height());
}

/// Checks the menu entry of one panel, and no other; 0 checks none.
void Trainer::checkPanel(int tab) {
    for (size_t panel = 0; panel < m_panelEntries.size(); ++panel)
        m_panelEntries[panel]->setChecked(static_cast<int>(panel) + 1 == tab);
}

} // namespace lingomat
