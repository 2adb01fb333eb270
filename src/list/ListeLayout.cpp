#include "FlexGrid.h"
#include "FormTexts.h"
#include "Liste.h"

#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr QSize StartSize(900, 560);

constexpr FormText texts[] = {
    {"MSFlexGrid1", u"Vokabelliste", u"Vocab List"},
    {"Command1", u"Schließen", u"Close",
     u"Schließt das Fenster, Änderungen können zu einem späteren Zeitpunkt übernommen werden.",
     u"Closes this window, changes can be saved later"},
    {"mnFile", u"Datei", u"File"},
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

    m_command1 = new QPushButton(body);
    m_command1->setObjectName(u"Command1"_s);
    m_command1->setAutoDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_command1);

    auto* column = new QVBoxLayout(body);
    column->addWidget(m_grid, 1);
    column->addLayout(buttons);

    setTabOrder(m_grid, m_command1);
    resize(StartSize.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
}

void Liste::buildMenus() {
    menuBar()->setObjectName(u"menuBar"_s);

    QMenu* file = addMenu(*menuBar(), u"mnFile"_s);
    auto* close = new QAction(this);
    close->setObjectName(u"mnSchließen"_s);
    close->setShortcut(QKeySequence::Close);
    file->addAction(close);
    connect(close, &QAction::triggered, this, [this] { Command1_Click(); });

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
