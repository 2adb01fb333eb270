#include "Trainer.h"

#include "FlexGrid.h"
#include "FormTexts.h"
#include "Globals.h"

#include <QLabel>
#include <QProgressBar>

#include <utility>

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
    {"menMain", u"Reihenfolge...", u"&Order..."},
    {"menTestoptionen", u"Testoptionen...", u"&Test Options..."},
    {"menNavigieren", u"Navigieren", u"&Navigate"},
    {"menEinsWeiter", u"Eine Vokabel weiter", u"One Vocab &Forward"},
    {"menEinsZurueck", u"Eine Vokabel zurück", u"One Vocab &Back"},
    {"menStep", u"Step - Geht 1 Schritt weiter", u"Proceed to Next &Step"},
    {"menAnfangSequenz", u"Zum Anfang der Sequenz", u"Be&ginning of Sequence"},
    {"menEndeSequenz", u"Zum Ende der Sequenz", u"&End of Sequence"},
    {"menAnsicht", u"Ansicht", u"&View"},
    {"menAttribute", u"Attribute1", u"Attributes&1"},
    {"menDetails", u"Attribute2", u"Attributes&2"},
    {"menReferenzen", u"Referenzen", u"&References"},
    // In English it says the opposite of what stands there, until it is chosen for the first time.
    {"menDetailsjanein", u"Details ausblenden", u"Show &Details"},
    {"menExtras", u"Extras", u"Tools"},
    {"menSucheZuletzt", u"Suche nach vorheriger Eingabe...", u"&Search last"},
    {"TabStrip1_Tab1", u"Attribute1", u"Attributes1"},
    {"TabStrip1_Tab2", u"Attribute2", u"Attributes2"},
    {"TabStrip1_Tab3", u"Referenzen", u"References"},
    {"Label1", u"Wortart", u"Part of Speech"},
    {"Label12", u"Grammatikalische Attribute", u"Grammar Attributes"},
    {"Label13", u"Funktionale Attribute", u"Functional Attributes"},
    {"Label14", u"Bereiche", u"Areas"},
    {"Label3", u"Quelle", u"Source"},
    {"Label11", u"Quelle", u"Source"},
    {"Label5", u"Zusatzinfo", u"Additional Info"},
    {"Label6", u"Beispielsatz", u"Sample Phrase"},
    {"Label8", u"Eingabedatum", u"Creationdate"},
    {"Label9", u"Änderungsdatum", u"Changedate"},
    {"Label10", u"Score", u"Score"},
    {"labNoReferences", u"<keine Referenzen>", u"<no References>"},
    {"Suche", u"Suche", u"Find"},
    {"Richtig", u"OK", u"OK"},
    {"UpDown1", u"", u"", u"Synonyme anzeigen, falls vorhanden", u"Displays synonym if any"},
    {"UpDown2", u"", u"", u"Synonyme anzeigen, falls vorhanden", u"Displays synonym if any"},
    {"StatusBar1_Panel1", u"Anzahl Vokabeln", u"Number of vocabs"},
    {"StatusBar1_Panel3", u"Vokabel Nr.", u"Vocab no."},
};
// clang-format on

} // namespace

void Trainer::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    const std::pair<const char*, QString> names[]{
        {"UpDown1_Up", uiText(u"Nächstes Synonym der Frage"_s, u"Next synonym of the question"_s)},
        {"UpDown1_Down", uiText(u"Voriges Synonym der Frage"_s, u"Previous synonym of the question"_s)},
        {"UpDown2_Up", uiText(u"Nächstes Synonym der Lösung"_s, u"Next synonym of the solution"_s)},
        {"UpDown2_Down", uiText(u"Voriges Synonym der Lösung"_s, u"Previous synonym of the solution"_s)},
        {"TabStrip1", uiText(u"Angaben zur Vokabel"_s, u"Details of the vocab"_s)},
        {"ReferenzenCombo", uiText(u"Referenzart"_s, u"Reference type"_s)},
        {"cmdRefBack", uiText(u"Vorige Referenz"_s, u"Previous reference"_s)},
        {"cmdRefForward", uiText(u"Nächste Referenz"_s, u"Next reference"_s)},
        {"MSFlexGrid1", uiText(u"Referenz"_s, u"Reference"_s)},
    };
    for (const auto& [name, text] : names)
        findChild<QWidget*>(QLatin1StringView(name))->setAccessibleName(text);
    m_grid->setAccessibleName(uiText(u"Frage und Lösung"_s, u"Question and solution"_s));
    m_progressBar->setAccessibleName(uiText(u"Fortschritt"_s, u"Progress"_s));
    m_statusPanels[PanelEntries]->setAccessibleName(m_statusPanels[PanelEntriesLabel]->text());
    m_statusPanels[PanelPosition]->setAccessibleName(m_statusPanels[PanelPositionLabel]->text());
}

} // namespace lingomat
