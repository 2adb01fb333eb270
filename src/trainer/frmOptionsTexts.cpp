#include "frmOptions.h"

#include "ColumnOptions.h"
#include "FormContext.h"
#include "FormTexts.h"
#include "Globals.h"
#include "PairEditor.h"
#include "SharedState.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// clang-format off
constexpr FormText texts[] = {
    {"frmOptions", u"Optionen", u"Options"},
    {"tbsOptions", u"Optionen", u"Options"},
    {"tbsOptions_Tab1", u"Trainer: Reihenfolge", u"Trainer: Order", u"Einstellungen für den Vokabeltrainer", u"Settings for the Trainer"},
    {"tbsOptions_Tab2", u"Testoptionen", u"Test Options", u"Einstellungen für den Vokabeltest", u"Settings for the Vocab Test"},
    {"tbsOptions_Tab3", u"Ausnahmen Zeichen", u"Exceptions Characters", u"Einstellungen für gleichzubehandelnde Zeichen", u"Settings for Characters to be treated as equal"},
    {"tbsOptions_Tab4", u"Liste: Spalten", u"List: Columns", u"Einstellungen für die Vokabelliste", u"Settings for the Vocab List"},
    {"fraSample1", u"Vokabeln", u"Vocabulary"},
    {"Reihenfolge_sequentiell", u"Seqentiell", u"Sequential"},
    {"Reihenfolge_shuffle", u"Gemischt", u"Shuffle"},
    {"Reihenfolge_random", u"Random", u"Random"},
    {"Frame1", u"Sprachen", u"Languages"},
    {"fraSample2", u"Vokabeltest", u"Vocab Test"},
    {"Selbsttest", u"Vokabeltest aktiviert", u"Vocab Test"},
    {"Schleife", u"Schleife", u"Loop"},
    {"Schreiben", u"Schreiben", u"Write"},
    {"FehlerBestaetigen", u"Fehler bestätigen", u"Confirm Error"},
    {"MainOnly", u"Vergleich nur mit Hauptausdruck", u"Compare with Main Part only"},
    {"Label4",
     u"Geben Sie hier an, welche Spalten in der Vokabelliste angezeigt werden sollen, und welche Spalten ausgeblendet werden sollen.",
     u"Specify here, which columns shall be displayed or hidden in the Vocab List."},
    {"Frame2", u"Folgende Spalten sollen angezeigt werden:", u"Following columns shall be displayed"},
    {"chkWortart", u"Wortart", u"Part of Speech"},
    {"chkGrammatikalischeAttribute", u"Grammatikalische Attribute", u"Grammar Attributes"},
    {"chkFunktionaleAttribute", u"Funktionale Attribute", u"Functional Attributes"},
    {"chkBereich", u"Bereich", u"Area"},
    {"chkBeispielsatz", u"Beispielsatz", u"Sample Phrase"},
    {"chkZusatzinfo", u"Zusatzinfo", u"Additional Info"},
    {"chkQuelle", u"Quelle", u"Source"},
    {"chkEingabedatum", u"Eingabedatum", u"Creationdate"},
    {"chkAenderungsdatum", u"Änderungsdatum", u"Changedate"},
    {"chkScore", u"Fehlerscore", u"Error Score"},
    {"Label3", u"Hilfe: F1", u"Help: F1"},
    {"cmdOK", u"&OK", u"&OK"},
    {"cmdCancel", u"&Abbrechen", u"Cancel"},
    {"cmdApply", u"Apply", u"Apply"}, // in either language
};

struct Explanation {
    const char16_t* german;
    const char16_t* english;
};

/// In the order of the controls. Those of the languages hold names, see below.
constexpr Explanation explanations[] = {
    {u"Option 'Sequentiell': Die Vokabeln werden in der Reihenfolge angezeigt, die sie in der Vokabelliste haben.",
     u"Option 'Sequential': The vocabulary will be displayed in the same order, as in the current Vocab List."},
    {u"Option 'Gemischt': Die Vokabeln werden vor jedem Durchgang gemischt.",
     u"Option 'Shuffled': The vocabulary will be shuffled prior to each start of the sequence."},
    {u"Option 'Random': Es wird keine Sequenz erzeugt, sondern die Vokabeln werden zufällig ausgewählt. Diese Option geht nicht zusammen mit der Option 'Schleife'.",
     u"Option 'Random': There will not be a sequence created, but the vocabulary will be selected randomly. This option can not be combined with option 'Loop'."},
    {},
    {},
    {u"Option 'Vokabeltest aktiviert': Ein-/Ausschalten des Vokabeltest. Die Einstellungen für den Vokabeltest werden mit den nachfolgenden Optionen bestimmt.",
     u"Option 'Vocab Test': Switch vocab test on/off. The settings for the vocab test are determined with the subsequent options."},
    {u"Option 'Schleife': Ein-/Ausschalten der Schleifenoption für den Vokabeltest. Bei aktivierter Schleifenoption werden alle nicht korrekt erkannte Vokabeln einer Sequenz so lange im Vokabeltest wiederholt, bis sie korrekt erkannt worden sind.",
     u"Option 'Loop': Switch Loop option for the vocab test on/off. When the Loop option is set, all expressions of the sequence, that were not translated correctly by the user, will be repeated in the test, until they are translated correctly."},
    {u"Option 'Schreiben': Ein-/Ausschalten der Schreiben-Einstellung für den Vokabeltest. Ist Schreiben aktiviert, erscheint für jede zu erkennende Vokabel einer Sequenz ein Fenster, in dem die Vokabel einzugeben ist. Die Eingabe wird mit dem in der Datenbank enthaltenen Ausdruck verglichen.",
     u"Option 'Write': Switch Write option for the vocab test on/off. If Write is activated, on each vocabulary of a sequence a window comes up, where the translation of the expression shall be entered. The input will be compared with the respective expression stored in the data base."},
    {u"Option 'Fehler bestätigen': Ein-/Ausschalten der Fehlerbestätigungsoption für den Vokabeltest im Schreiben-Modus. Bei aktivierter Fehlerbstätigungsoption kann der Benutzer die Entscheidung des Programms, eine Eingabe sei nicht zutreffend, revidieren.",
     u"Option 'Confirm Error': Switch error confirmation mode on/off for the vocab test in write-mode. When this option is set, the user can revise the decision of the program, if it judges an entry as false."},
    {u"Option 'Vergleich nur mit Hauptausdruck': In nicht eingeschaltetem Zustand vergleicht der Vokabeltrainer die Benutzereingabe mit dem gesamten Ausdruck (ohne den Kommentar), bei eingeschaltetem Zustand wird nur der als Hauptausdruck gespeicherte Bereich mit der Benutzereingabe verglichen.",
     u"Option 'Compare with main part only on/off': When this option is not set, the Trainer compares the expression entered by the user, with the entire expression stored in the data base(excluding the comment). When this option is set, only the main part of the stored expression is compared with the user input."},
};
// clang-format on

QString languageFirst(const QString& name) {
    return name + uiText(u" zuerst"_s, u" first"_s);
}

/// An ampersand in a name is no mnemonic.
QString asCaption(QString text) {
    return text.replace(u'&', "&&"_L1);
}

} // namespace

void frmOptions::SetUserInterfaceProperties() {
    m_pairs->SetUserInterfaceProperties();
    applyTexts(*this, texts);
    nameLanguages();
}

void frmOptions::nameLanguages() {
    const SharedState& state = m_context.state;
    m_options[Language1First]->setText(asCaption(languageFirst(state.Lang1Name)));
    m_options[Language2First]->setText(asCaption(languageFirst(state.Lang2Name)));
}

QString frmOptions::explanation(Option option) const {
    if (option == Language1First || option == Language2First) {
        const SharedState& state = m_context.state;
        const QString& name = option == Language1First ? state.Lang1Name : state.Lang2Name;
        return u"Option '"_s + languageFirst(name) + u"': "_s +
               uiText(u"Der Ausdruck in "_s + name + u" wird als erstes angezeigt."_s,
                      u"The expression in "_s + name + u" will be displayed first."_s);
    }
    const Explanation& text = explanations[option];
    return uiText(QString::fromUtf16(text.german), QString::fromUtf16(text.english));
}

void frmOptions::explain(Option option) {
    QLabel* label = option < SelfTest ? m_orderExplanation : m_testExplanation;
    label->setText(explanation(option));
}

} // namespace lingomat
