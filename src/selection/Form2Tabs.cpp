#include "Form2Tabs.h"

#include "DateFilter.h"
#include "Form2.h"
#include "ListPairFrame.h"
#include "ScoreFilter.h"

#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

struct TabCaption {
    const char16_t* name;
    const char16_t* german;
    const char16_t* english;
};

constexpr std::array<TabCaption, TabCount> captions{{
    {u"tabQuelle", u"Quelle", u"Source"},
    {u"tabBereich", u"Bereich", u"Area"},
    {u"tabWortart", u"Wortart", u"Part of Speech"},
    {u"tabFehlerscore", u"Fehlerscore", u"Error Score"},
    {u"tabGrammatikalisch", u"Grammatikalische Attribute", u"Grammar Attributes"},
    {u"tabFunktional", u"Funktionale Attribute", u"Functional Attributes"},
    {u"tabWortbestandteile", u"Wortbestandteile", u"Wordparts"},
    {u"tabReferenzen", u"Referenzen", u"References"},
    {u"tabSonstiges", u"Sonstiges", u"Miscellaneous"},
}};

} // namespace

QString tabName(int number) {
    return QString::fromUtf16(captions.at(static_cast<size_t>(number - 1)).name);
}

QString germanTabCaption(int number) {
    return QString::fromUtf16(captions.at(static_cast<size_t>(number - 1)).german);
}

QString englishTabCaption(int number) {
    return QString::fromUtf16(captions.at(static_cast<size_t>(number - 1)).english);
}

void Form2::SetTabToStandard() {
    if (StandardTabs)
        return;
    const int selected = m_tabs->currentIndex();
    {
        const QSignalBlocker quiet(m_tabs);
        while (m_tabs->count() > StandardTabCount)
            m_tabs->removeTab(StandardTabCount);
        m_tabs->setCurrentIndex(selected < StandardTabCount ? selected : 0);
    }
    StandardTabs = true;
    tbsOptions_Click();
}

void Form2::SetTabToAdvanced() {
    if (!StandardTabs)
        return;
    for (int number = StandardTabCount + 1; number <= TabCount; ++number)
        addTab(number, germanTabCaption(number)); // German in the English interface too
    StandardTabs = false;
}

void Form2::addTab(int number, const QString& caption) {
    m_tabs->setTabData(m_tabs->addTab(caption), tabName(number));
}

void Form2::HidePictureBoxes() {
    for (QWidget* page : {static_cast<QWidget*>(m_lists), static_cast<QWidget*>(m_score), m_languagePage,
                          static_cast<QWidget*>(m_entryFilter), static_cast<QWidget*>(m_changeFilter),
                          m_samplePage, m_infoPage})
        page->hide();
}

void Form2::HideSelectionboxes() {
    m_lists->hidePairs();
}

void Form2::PositioniereListboxes(const QString& kind) {
    HideSelectionboxes();
    if (const ListPair* pair = m_lists->pairOfKind(kind))
        m_lists->showPair(*pair);
}

void Form2::tbsOptions_Click() {
    const int index = m_tabs->currentIndex();
    HidePictureBoxes();
    if (const ListPair* pair = currentPair()) {
        PositioniereListboxes(pair->kind());
        m_lists->setTitle(m_tabs->tabText(index));
        m_lists->setAccessibleNames(*pair, m_tabs->tabText(index));
        m_pages->setCurrentWidget(m_lists);
        m_lists->show();
        return;
    }
    switch (index + 1) {
    case TabFehlerscore:
        m_pages->setCurrentWidget(m_score);
        m_score->show();
        break;
    case TabWortbestandteile:
        m_pages->setCurrentWidget(m_languagePage);
        m_languagePage->show();
        break;
    case TabSonstiges:
        m_pages->setCurrentWidget(m_samplePage->parentWidget());
        for (QWidget* page : {static_cast<QWidget*>(m_entryFilter), static_cast<QWidget*>(m_changeFilter),
                              m_samplePage, m_infoPage})
            page->show();
        break;
    default: break;
    }
}

void Form2::TabStrip1_Click() {
    if (m_tabStrip->currentIndex() == 0)
        SetTabToStandard();
    else
        SetTabToAdvanced();
}

/// Selects a tab by its number, from 1. One that the standard set does not have brings the advanced set.
void Form2::selectTab(int number) {
    if (number > m_tabs->count())
        m_tabStrip->setCurrentIndex(1);
    m_tabs->setCurrentIndex(number - 1);
}

void Form2::selectNextTab() {
    m_tabs->setCurrentIndex((m_tabs->currentIndex() + 1) % m_tabs->count());
}

const ListPair* Form2::currentPair() const {
    return m_lists->pairOfTab(m_tabs->currentIndex());
}

} // namespace lingomat
