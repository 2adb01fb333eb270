#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "ListEditing.h"
#include "Liste.h"
#include "SharedState.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>

#include <span>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// One entry of the menus that sort: the column that it sets and the procedure that it calls then.
struct SortEntry {
    const char16_t* name;
    int column;
    void (Liste::*sort)();
};

constexpr SortEntry firstLanguage[] = {
    {u"WordSortByAll", Liste::ColSprache1, &Liste::SortByAll},
    {u"WordSortByPrefix", Liste::ColSprache1, &Liste::SortByPrefix},
    {u"WordSortByMain", Liste::ColSprache1, &Liste::SortByMain},
    {u"WordSortBySuffix", Liste::ColSprache1, &Liste::SortBySuffix},
};

constexpr SortEntry secondLanguage[] = {
    {u"mnGesamt", Liste::ColSprache2, &Liste::SortByAll},
    {u"mnPrefix", Liste::ColSprache2, &Liste::SortByPrefix},
    {u"mnHaupt", Liste::ColSprache2, &Liste::SortByMain},
    {u"mnSuffix", Liste::ColSprache2, &Liste::SortBySuffix},
};

// The dates by their keys: "dd.mm.yy" does not sort.
constexpr SortEntry otherColumns[] = {
    {u"mnWortart", Liste::ColWortart, &Liste::SortAccordingToCol},
    {u"mnBereich", Liste::ColBereich, &Liste::SortAccordingToCol},
    {u"mnBeispielsatz", Liste::ColBeispielsatz, &Liste::SortAccordingToCol},
    {u"mnQuelle", Liste::ColQuelle, &Liste::SortAccordingToCol},
    {u"mnEingabedatum", Liste::ColEingabeKey, &Liste::SortAccordingToCol},
    {u"mnAenderungsdatum", Liste::ColAenderungKey, &Liste::SortAccordingToCol},
    {u"mnScore", Liste::ColScore, &Liste::SortAccordingToCol},
};

QMenu* newMenu(QWidget& parent, const QString& name) {
    auto* menu = new QMenu(&parent);
    menu->setObjectName(name);
    parent.addAction(menu->menuAction());
    return menu;
}

/// The name of a language is data: an ampersand in it is one.
QString asCaption(QString name) {
    return name.replace(u'&', u"&&"_s);
}

} // namespace

void Liste::buildSortMenu() {
    m_wordSort = newMenu(*menuBar(), u"WordSort"_s);
    m_mnSpanisch = newMenu(*m_wordSort, u"mnSpanisch"_s);
    m_mnDeutsch = newMenu(*m_wordSort, u"mnDeutsch"_s);
    const auto add = [this](QMenu& menu, std::span<const SortEntry> entries) {
        for (const SortEntry& entry : entries) {
            auto* action = new QAction(this);
            action->setObjectName(QString::fromUtf16(entry.name));
            menu.addAction(action);
            connect(action, &QAction::triggered, this,
                    [this, &entry] { sortByMenu(entry.column, entry.sort); });
        }
    };
    add(*m_mnSpanisch, firstLanguage);
    add(*m_mnDeutsch, secondLanguage);
    add(*m_wordSort, otherColumns);
}

void Liste::nameSortMenus() {
    m_mnSpanisch->setTitle(asCaption(m_context.state.Lang1Name));
    m_mnDeutsch->setTitle(asCaption(m_context.state.Lang2Name));
}

void Liste::sortByMenu(int column, void (Liste::*sort)()) {
    commitOverlay();
    m_grid->setCol(column);
    (this->*sort)();
}

void Liste::headerClick(int column) {
    if (m_grid->Rows() < 2 || column == ColSchluessel)
        return;
    commitOverlay();
    SortKlick = true;
    SortAccordingToCol();
    SortKlick = false;
}

void Liste::SortAccordingToCol() {
    trapped(m_context.prompts, [this] {
        const int column = m_grid->Col();
        switch (column) {
        case ColMarke: break;
        case ColSprache1: popUpAtHeader(*m_mnSpanisch); return;
        case ColSprache2: popUpAtHeader(*m_mnDeutsch); return;
        case ColEingabedatum:
            sortBy(ColEingabeKey);
            m_grid->setCol(column);
            break;
        case ColAenderungsdatum:
            sortBy(ColAenderungKey);
            m_grid->setCol(column);
            break;
        default: sortBy(column);
        }
        if (m_grid->Rows() < 2)
            return;
        m_grid->setTopRow(1);
        m_grid->setRow(1);
        if (column == ColMarke)
            SetzeMarke();
        ConditionToUI();
    });
}

void Liste::sortBy(int column) {
    ResetMarke();
    m_grid->setCol(column);
    m_grid->Sort();
    m_sorted = true;
}

void Liste::popUpAtHeader(QMenu& menu) {
    const QHeaderView& header = *m_grid->horizontalHeader();
    menu.popup(m_grid->mapToGlobal(QPoint(m_grid->CellLeft(), header.y() + header.height())));
}

void Liste::SortByAll() {
    SortWord(u"All"_s);
}

void Liste::SortByPrefix() {
    SortWord(u"Prefix"_s);
}

void Liste::SortByMain() {
    SortWord(u"Main"_s);
}

void Liste::SortBySuffix() {
    SortWord(u"Suffix"_s);
}

void Liste::SortWord(const QString& mode) {
    trapped(m_context.prompts, [this, &mode] {
        const int column = m_grid->Col();
        sortBy(sortColumn(column, mode));
        m_grid->setCol(column);
        if (m_grid->Rows() > 1)
            m_grid->setRow(1);
        ConditionToUI();
    });
}

} // namespace lingomat
