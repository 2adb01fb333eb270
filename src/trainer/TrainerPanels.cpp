#include "TrainerPanels.h"

#include "FlexGrid.h"
#include "Globals.h"
#include "Liste.h"
#include "PackedList.h"
#include "TrainerReferences.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int ListLines = 3; ///< least height of a list or a text, in lines

/// Makes a panel reachable by scrolling where the window is too small for it.
QScrollArea* scrolling(QWidget* panel) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(panel);
    return area;
}

QLabel* newLabel(QWidget& panel, const QString& name, QWidget* buddy) {
    auto* label = new QLabel(&panel);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setBuddy(buddy);
    return label;
}

QString shown(const QString& text) {
    return text.isEmpty() ? KeinEintrag : text;
}

void SetzeFeldVonGridInListbox(const QString& packed, QListWidget& list) {
    list.clear();
    list.addItems(splitPacked(packed));
}

} // namespace

TrainerPanels::TrainerPanels(FormContext& context, QWidget* parent)
    : QWidget(parent), m_references(new TrainerReferences(context, nullptr)) {
    setObjectName(u"panels"_s);
    m_tabs = new QTabBar(this);
    m_tabs->setObjectName(u"TabStrip1"_s);
    m_tabs->setDrawBase(false);
    m_tabs->setUsesScrollButtons(true);
    m_panels = new QStackedWidget(this);
    m_panels->setObjectName(u"boxes"_s);
    for (QWidget* const panel : {newAttributes(), newDetails(), static_cast<QWidget*>(m_references)}) {
        m_panels->addWidget(scrolling(panel));
        const int tab = m_tabs->addTab({});
        m_tabs->setTabData(tab, u"TabStrip1_Tab%1"_s.arg(tab + 1));
    }
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) {
        m_panels->setCurrentIndex(index);
        Q_EMIT tabChanged(index + 1);
    });

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_tabs);
    column->addWidget(m_panels, 1);
}

QLineEdit* TrainerPanels::addField(QVBoxLayout& column, const QString& label, const QString& name) {
    QWidget& panel = *column.parentWidget();
    auto* field = new QLineEdit(&panel);
    field->setObjectName(name);
    field->setReadOnly(true);
    column.addWidget(newLabel(panel, label, field));
    column.addWidget(field);
    return field;
}

QListWidget* TrainerPanels::addList(QVBoxLayout& column, const QString& label, const QString& name) {
    QWidget& panel = *column.parentWidget();
    auto* list = new QListWidget(&panel);
    list->setObjectName(name);
    list->setMinimumHeight(list->fontMetrics().lineSpacing() * ListLines);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // shares out what room there is
    column.addWidget(newLabel(panel, label, list));
    column.addWidget(list, 1);
    return list;
}

QPlainTextEdit* TrainerPanels::addText(QVBoxLayout& column, const QString& label, const QString& name) {
    QWidget& panel = *column.parentWidget();
    auto* text = new QPlainTextEdit(&panel);
    text->setObjectName(name);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    text->setMinimumHeight(text->fontMetrics().lineSpacing() * ListLines);
    column.addWidget(newLabel(panel, label, text));
    column.addWidget(text, 1);
    return text;
}

QWidget* TrainerPanels::newAttributes() {
    auto* panel = new QWidget;
    panel->setObjectName(u"picAttribute"_s);
    auto* column = new QVBoxLayout(panel);
    m_wortart = addField(*column, u"Label1"_s, u"tWortart"_s);
    m_grammatikalisch = addList(*column, u"Label12"_s, u"lbGrammatikalisch"_s);
    m_funktional = addList(*column, u"Label13"_s, u"lbFunktional"_s);
    m_quelle = addField(*column, u"Label11"_s, u"tQuelle"_s);
    newLabel(*panel, u"Label3"_s, nullptr)->hide(); // the caption has two names
    return panel;
}

QWidget* TrainerPanels::newDetails() {
    auto* panel = new QWidget;
    panel->setObjectName(u"picDetails"_s);
    auto* column = new QVBoxLayout(panel);
    m_bereiche = addList(*column, u"Label14"_s, u"lbBereiche"_s);
    m_beispielsatz = addText(*column, u"Label6"_s, u"tBsp"_s);
    m_zusatzinfo = addText(*column, u"Label5"_s, u"tZusatzinfo"_s);
    m_eingabedatum = addField(*column, u"Label8"_s, u"tEingabedatum"_s);
    m_aenderungsdatum = addField(*column, u"Label9"_s, u"tAenderungsdatum"_s);
    m_score = addField(*column, u"Label10"_s, u"tScore"_s);
    return panel;
}

void TrainerPanels::showRow(const FlexGrid& list, int row) {
    const auto cell = [&list, row](int column) { return list.TextMatrix(row, column); };
    m_wortart->setText(shown(cell(Liste::ColWortart)));
    SetzeFeldVonGridInListbox(cell(Liste::ColBereich), *m_bereiche);
    SetzeFeldVonGridInListbox(cell(Liste::ColGrammatikalisch), *m_grammatikalisch);
    SetzeFeldVonGridInListbox(cell(Liste::ColFunktional), *m_funktional);
    m_beispielsatz->setPlainText(shown(cell(Liste::ColBeispielsatz)));
    m_quelle->setText(shown(cell(Liste::ColQuelle)));
    m_zusatzinfo->setPlainText(shown(cell(Liste::ColZusatzinfo)));
    m_eingabedatum->setText(cell(Liste::ColEingabedatum));
    m_aenderungsdatum->setText(cell(Liste::ColAenderungsdatum));
    m_score->setText(cell(Liste::ColScore));
    for (QLineEdit* const field : {m_wortart, m_quelle})
        field->setCursorPosition(0);
}

void TrainerPanels::ClearDetails() {
    for (QLineEdit* const field : {m_wortart, m_quelle, m_eingabedatum, m_aenderungsdatum, m_score})
        field->clear();
    for (QListWidget* const list : {m_bereiche, m_grammatikalisch, m_funktional})
        list->clear();
    m_beispielsatz->clear();
    m_zusatzinfo->clear();
    m_references->ClearDetails();
}

int TrainerPanels::tab() const {
    return m_tabs->currentIndex() + 1;
}

void TrainerPanels::setTab(int number) {
    m_tabs->setCurrentIndex(number - 1);
}

} // namespace lingomat
