#include "FlexGrid.h"
#include "FormTexts.h"
#include "Liste.h"

#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr QSize StartSize(900, 560);

constexpr FormText texts[] = {
    {"MSFlexGrid1", u"Vokabelliste", u"Vocab List"},
    {"WortartBox", u"Wortart", u"Part of Speech"},
    {"QuelleBox", u"Quelle", u"Source"},
    {"txtEdit", u"Eingabe", u"Entry"},
    {"Command1", u"Schließen", u"Close",
     u"Schließt das Fenster, Änderungen können zu einem späteren Zeitpunkt übernommen werden.",
     u"Closes this window, changes can be saved later"},
    {"Command2", u"Übernehmen", u"Apply", u"Übernimmt alle Änderungen", u"Saves all changes"},
    {"Command3", u"Neue Zeile", u"New Row", u"Fügt eine neue Zeile ein", u"Adds a new row"},
    {"Command4", u"Löschen", u"Delete", u"Löscht die aktuelle Zeile", u"Deletes the current row"},
    {"Command5", u"OK", u"OK", u"Übernimmt alle Änderungen und schließt das Fenster",
     u"Saves all changes and closes this window"},
    // These three exist in German only.
    {"Command6", u"Zeichen...", u"Zeichen...", u"Öffnet die Fonthilfe", u"Öffnet die Fonthilfe"},
    {"Referenzen", u"Referenzen...", u"Referenzen...", u"Zeigt alle Referenzen für die aktuelle Vokabel an",
     u"Zeigt alle Referenzen für die aktuelle Vokabel an"},
    {"Drucken", u"Drucken", u"Drucken"},
    {"Label1", u"Hilfe: F1", u"Help: F1"},
    {"ProgressBar1", u"Fortschritt", u"Progress"},
    {"mnFile", u"Datei", u"File"},
    {"mnNeueZeile", u"Neue Zeile", u"New Row"},
    {"mnZeileLöschen", u"Zeile löschen", u"Delete Row"},
    {"mnDrucken", u"Drucken...", u"Print..."},
    {"mnSpeichern", u"Speichern", u"Save"},
    {"mnSuchen", u"Suchen in Liste", u"Find in List..."},
    {"mnSchließen", u"Schließen", u"Close"},
    {"WordSort", u"Sortieren", u"Sort"},
    {"WordSortByAll", u"Sortieren nach gesamtem Ausdruck", u"Sort by entire Expression"},
    {"WordSortByPrefix", u"Sortieren nach Präfix", u"Sort by Prefix"},
    {"WordSortByMain", u"Sortieren nach Hauptbereich", u"Sort by Main Part"},
    {"WordSortBySuffix", u"Sortieren nach Suffix", u"Sort by Suffix"},
    {"mnGesamt", u"Sortieren nach gesamtem Ausdruck", u"Sort by entire Expression"},
    {"mnPrefix", u"Sortieren nach Präfix", u"Sort by Prefix"},
    {"mnHaupt", u"Sortieren nach Hauptbereich", u"Sort by Main Part"},
    {"mnSuffix", u"Sortieren nach Suffix", u"Sort by Suffix"},
    {"mnWortart", u"nach Wortart", u"by Part of Speech"},
    {"mnBereich", u"nach Bereich", u"by Area"},
    {"mnBeispielsatz", u"nach Beispielsatz", u"by Sample Phrase"},
    {"mnQuelle", u"nach Quelle", u"by Source"},
    {"mnEingabedatum", u"nach Eingabedatum", u"by Creationdate"},
    {"mnAenderungsdatum", u"nach Änderungsdatum", u"by Changedate"},
    {"mnScore", u"nach Fehlerscore", u"by Error Score"},
    {"mnAnsicht", u"Ansicht", u"View"},
    {"mnSpalten", u"Spalten", u"Columns"},
    {"mnAnsichtOptionen", u"Optionen...", u"Options..."},
    {"mnReferenzen", u"Referenzen...", u"References..."},
    {"mnSonderzeichen", u"Sonderzeichen", u"Special Characters..."},
    {"mnOptionen", u"Optionen...", u"Options..."},
};

QMenu* addMenu(QWidget& bar, const QString& name) {
    auto* menu = new QMenu(&bar);
    menu->setObjectName(name);
    bar.addAction(menu->menuAction());
    return menu;
}

} // namespace

void Liste::buildWidgets() {
    setObjectName(u"Liste"_s);

    auto* body = new QWidget(this);
    body->setObjectName(u"body"_s);
    setCentralWidget(body);

    m_grid = new FlexGrid(body);
    m_grid->setObjectName(u"MSFlexGrid1"_s);
    m_grid->setRows(2);
    m_grid->setCols(ListColumnTotal);
    m_grid->setFixedRows(1);
    m_grid->setFixedCols(1);

    buildOverlay();

    auto* column = new QVBoxLayout(body);
    column->addWidget(m_grid, 1);
    column->addLayout(buildCommands(*body));

    resize(StartSize.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
}

void Liste::buildMenus() {
    menuBar()->setObjectName(u"menuBar"_s);

    QMenu* file = addMenu(*menuBar(), u"mnFile"_s);
    fillFileMenu(*file);

    buildSortMenu();

    QMenu* view = addMenu(*menuBar(), u"mnAnsicht"_s);
    QMenu* columns = addMenu(*view, u"mnSpalten"_s);
    for (const ListColumnRule& rule : listColumnTable) {
        if (!rule.option)
            continue;
        auto* entry = new QAction(this);
        entry->setObjectName(QString::fromLatin1(rule.menuEntry));
        entry->setCheckable(true);
        columns->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, column = *rule.option] { mnAnsicht_Click(column); });
        m_columnEntries[static_cast<size_t>(*rule.option)] = entry;
    }
    fillViewMenu(*view, *columns);
}

void Liste::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    for (const ListColumnRule& rule : listColumnTable) {
        if (rule.option)
            m_columnEntries[static_cast<size_t>(*rule.option)]->setText(columnTitle(*rule.option));
    }
    SetzeStatus();
}

void Liste::AdjustControls() {
    centralWidget()->layout()->activate();
}

} // namespace lingomat
