#include "Form2.h"

#include "DateFilter.h"
#include "Form2Tabs.h"
#include "FormTexts.h"
#include "Globals.h"
#include "ListPairFrame.h"
#include "ScoreFilter.h"
#include "SharedState.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr FormText texts[] = {
    {"Form2", u"Auswahl", u"Selection"},

    {"mnAuswahl", u"A&uswahl", u"&Selection"},
    {"mnAuswahlNeu", u"&Neue Lektion...", u"&New Lesson..."},
    {"mnAuswahlOpen", u"Lektion ö&ffnen...", u"&Open Lesson..."},
    {"mnAuswahlSpeichern", u"Lektion s&peichern", u"&Save Lesson"},
    {"mnAuswahlDelete", u"Lektion &löschen", u"&Delete Lesson"},
    {"mnSuchen", u"Auswahl &übernehmen", u"&Apply Selection"},
    {"mnSelectAll", u"Alles &zurücksetzen", u"Clear A&ll"},
    {"mnClose", u"&Schließen", u"&Close"},
    {"mnBearbeiten", u"Bea&rbeiten", u"&Edit"},
    {"mnQuelle", u"&Quelle", u"&Source"},
    {"mnBereich", u"&Bereich", u"&Area"},
    {"mnWortart", u"&Wortart", u"&Part of Speech"},
    {"mnFehlerscore", u"&Fehlerscore", u"&Error Score"},
    {"mnGrammatikalisch", u"&Grammatikalische Attribute", u"&Grammar Attributes"},
    {"mnFunktional", u"F&unktionale Attribute", u"&Functional Attributes"},
    {"mnWortbestandteile", u"Wortbestan&dteile", u"&Wordparts"},
    {"mnRelationen", u"&Referenzen", u"&References"},
    {"mnBeispielsatz", u"Beis&pielsatz", u"Sample P&hrase"},
    {"mnEingabedatum", u"&Eingabedatum", u"&Date of Entry"},
    {"mnChangeDatum", u"Ä&nderungsdatum", u"Date of &Change"},
    {"mnZusatzinfo", u"&Zusatzinfo", u"Additional &Info"},

    {"tabStandard", u"Standard", u"Standard"},
    {"tabErweitert", u"Erweitert", u"Advanced"},

    {"lblName", u"&Lektion:", u"Lesso&n:"},
    {"cmbName", u"Lektion", u"Lesson"},
    {"cmdSpeichern", u"Spei&chern", u"Save", u"Speichert die Einstellungen als Lektion",
     u"Saves the settings as a lesson"},
    {"cmdLoeschen", u"Löschen", u"Delete", u"Löscht die Lektion", u"Deletes the lesson"},

    {"Command1", u"OK", u"OK",
     u"Startet die Abfrage mit den eingestellten Auswahlkriterien und schließt das Fenster",
     u"Starts the query as defined by the selection parameters and closes this window"},
    {"Command2", u"Alles &zurücksetzen", u"C&lear All",
     u"Löscht alle Einstellungen und setzt die Standardwerte",
     u"Clears all settings and sets default values"},
    {"Command3", u"&Schließen", u"&Close"},
    {"Command4", u"Über&nehmen", u"Appl&y", u"Startet die Abfrage mit den eingestellten Auswahlkriterien",
     u"Starts the query as defined by the selection parameters"},

    {"cmdFont", u"Sonderzeichen", u"Special Characters"},

    {"lblLinks", u"&Verfügbar:", u"A&vailable:"},
    {"lblRechts", u"Aus&gewählt:", u"C&hosen:"},
    {"cmdAdd", u"&Hinzufügen >", u"&Add >"},
    {"cmdRemove", u"< &Entfernen", u"< &Remove", u"Eintrag entfernen", u"Remove entry"},
    {"cmdAddAll", u"&Alle hinzufügen >>", u"A&dd All >>"},
    {"cmdRemoveAll", u"<< Alle en&tfernen", u"<< Re&move All", u"Alle Einträge entfernen",
     u"Remove all entries"},
    {"chkRefOption1", u"Suche Einträge mit angegebenen Referenzen",
     u"Find entries with the given references"},
    {"chkRefOption2", u"Referenzierte Einträge suchen", u"Find referenced entries"},

    {"picScore", u"Fehlerscore", u"Error Score"},
    {"lblMinScore", u"&Minimum:", u"Min&imum:"},
    {"lblMaxScore", u"Ma&ximum:", u"Ma&ximum:"},

    {"picWortbestandteile", u"Wortbestandteile", u"Wordparts"},
    {"lblPrefix", u"&Präfix:", u"&Prefix:"},
    {"lblMain", u"&Hauptteil:", u"Main par&t:"},
    {"lblSuffix", u"Suffi&x:", u"Suffi&x:"},
    {"lblKommentar", u"&Kommentar:", u"C&omment:"},

    {"picEingabedatum", u"Eingabedatum", u"Date of Entry"},
    {"lblEingabeVon", u"&Von:", u"&From:"},
    {"lblEingabeBis", u"&Bis:", u"&To:"},
    {"picAenderungsdatum", u"Änderungsdatum", u"Date of Change"},
    {"lblAenderungVon", u"V&on:", u"F&rom:"},
    {"lblAenderungBis", u"B&is:", u"T&o:"},
    {"picBeispielsatz", u"Beispielsatz", u"Sample Phrase"},
    {"lblBeispielsatz", u"Beis&piel:", u"&Phrase:"},
    {"picZusatzinfo", u"Zusatzinfo", u"Additional Information"},
    {"lblZusatzinfo", u"&Text:", u"Te&xt:"},
};

QString accessiblePart(const QString& language, const QString& german, const QString& english) {
    return language + u", "_s + uiText(german, english);
}

} // namespace

void Form2::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    m_tabStrip->setAccessibleName(uiText(u"Umfang der Auswahl"_s, u"Extent of the selection"_s));
    m_tabs->setAccessibleName(uiText(u"Auswahlkriterien"_s, u"Selection criteria"_s));
    for (int index = 0; index < m_tabs->count(); ++index)
        m_tabs->setTabText(index, uiText(germanTabCaption(index + 1), englishTabCaption(index + 1)));
    for (const ListPair& pair : m_lists->pairs()) {
        const int number = pair.rule.tab + 1;
        m_lists->setAccessibleNames(pair, uiText(germanTabCaption(number), englishTabCaption(number)));
    }
    m_score->setAccessibleNames();
    m_entryFilter->setAccessibleNames();
    m_changeFilter->setAccessibleNames();
    m_beispielsatz->setAccessibleName(uiText(u"Beispielsatz"_s, u"Sample phrase"_s));
    m_zusatzinfo->setAccessibleName(uiText(u"Zusatzinfo"_s, u"Additional information"_s));
    showLanguageNames();
    tbsOptions_Click(); // the frame of the lists bears the caption of its tab
}

void Form2::showLanguageNames() {
    const auto show = [](const LanguageBoxes& boxes, const QString& name) {
        QString caption = name;
        boxes.gate->setText(caption.replace(u'&', "&&"_L1));
        boxes.gate->setAccessibleName(name);
        boxes.prefix->setAccessibleName(accessiblePart(name, u"Präfix"_s, u"prefix"_s));
        boxes.main->setAccessibleName(accessiblePart(name, u"Hauptteil"_s, u"main part"_s));
        boxes.suffix->setAccessibleName(accessiblePart(name, u"Suffix"_s, u"suffix"_s));
        boxes.comment->setAccessibleName(accessiblePart(name, u"Kommentar"_s, u"comment"_s));
    };
    const auto nameOr = [](const QString& name, const QString& number) {
        return name.isEmpty() ? uiText(u"Sprache "_s, u"Language "_s) + number : name;
    };
    show(m_lang1, nameOr(m_context.state.Lang1Name, u"1"_s));
    show(m_lang2, nameOr(m_context.state.Lang2Name, u"2"_s));
}

} // namespace lingomat
