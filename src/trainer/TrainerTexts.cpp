#include "Trainer.h"

#include "FlexGrid.h"
#include "FormTexts.h"
#include "Globals.h"

#include <QLabel>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// clang-format off
constexpr FormText texts[] = {
    {"Trainer", u"Vokabeltrainer", u"Trainer"},
    {"Command6", u"Neustart", u"Restart", u"Neustart der Sequenz", u"Restarts the sequence"},
    {"Command4", u"Schließen", u"Close", u"Schließt dieses Fenster", u"Closes this window"},
    {"back", u"", u"", u"Springt zur 1. Vokabel der Sequenz", u"Jumps to 1st vocab of the sequence"},
    {"Command1", u"", u"", u"Eine Vokabel zurück", u"One vocab back"},
    {"Command2", u"", u"", u"Eine Vokabel weiter", u"One vocab forward"},
    {"ToEnd", u"", u"", u"Springt zur letzten Vokabel der Sequenz", u"Jumps to last vocab of the sequence"},
    {"Command3", u"", u"", u"Step - Geht 1 Schritt weiter", u"Proceeds to next step"},
    {"VokabelnGrid", u"", u"", u"Zeilenhöhe mit der Maus ändern", u"Change row height with mouse"},
    {"menDatei", u"Datei", u"&File"},
    {"menNeustart", u"Neustart", u"&Restart"},
    {"menClose", u"Schließen", u"&Close"},
    {"menEinstellungen", u"Einstellungen", u"&Settings"},
    {"Reihenfolge_sequentiell", u"Vokabeln Sequentiell", u"Vocabulary in sequential order"},
    {"Reihenfolge_shuffle", u"Vokabeln Gemischt", u"Vocabulary shuffled"},
    {"Reihenfolge_random", u"Zufällige Vokabelauswahl", u"Vocabulary selected randomly"},
    {"menNavigieren", u"Navigieren", u"&Navigate"},
    {"menEinsWeiter", u"Eine Vokabel weiter", u"One Vocab &Forward"},
    {"menEinsZurueck", u"Eine Vokabel zurück", u"One Vocab &Back"},
    {"menStep", u"Step - Geht 1 Schritt weiter", u"Proceed to Next &Step"},
    {"menAnfangSequenz", u"Zum Anfang der Sequenz", u"Be&ginning of Sequence"},
    {"menEndeSequenz", u"Zum Ende der Sequenz", u"&End of Sequence"},
    {"StatusBar1_Panel1", u"Anzahl Vokabeln", u"Number of vocabs"},
    {"StatusBar1_Panel3", u"Vokabel Nr.", u"Vocab no."},
};
// clang-format on

} // namespace

void Trainer::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    m_grid->setAccessibleName(uiText(u"Frage und Lösung"_s, u"Question and solution"_s));
    m_progressBar->setAccessibleName(uiText(u"Fortschritt"_s, u"Progress"_s));
    m_panels[PanelEntries]->setAccessibleName(m_panels[PanelEntriesLabel]->text());
    m_panels[PanelPosition]->setAccessibleName(m_panels[PanelPositionLabel]->text());
}

} // namespace lingomat
