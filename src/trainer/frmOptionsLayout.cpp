#include "frmOptions.h"

#include "ColumnOptions.h"
#include "FormContext.h"
#include "PairEditor.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// What an explanation gets at least, and how much of it is seen without scrolling at the first size.
constexpr int LeastExplanationLines = 3;
constexpr int ExplanationLines = 7;
constexpr int ExplanationCharacters = 72; ///< in a line

/// Names of the controls that stand for a member of the Trainer, in their order.
constexpr const char* optionNames[] = {"Reihenfolge_sequentiell",
                                       "Reihenfolge_shuffle",
                                       "Reihenfolge_random",
                                       "Sprache_spanisch", // language 1, whichever that is
                                       "Sprache_deutsch",  // language 2
                                       "Selbsttest",
                                       "Schleife",
                                       "Schreiben",
                                       "FehlerBestaetigen",
                                       "MainOnly"};

/// In the order of ListColumn.
constexpr std::array<const char*, ListColumnCount> columnBoxes{"chkWortart",
                                                               "chkGrammatikalischeAttribute",
                                                               "chkFunktionaleAttribute",
                                                               "chkBereich",
                                                               "chkBeispielsatz",
                                                               "chkZusatzinfo",
                                                               "chkQuelle",
                                                               "chkEingabedatum",
                                                               "chkAenderungsdatum",
                                                               "chkScore"};

template <typename Layout>
Layout* addFrame(QBoxLayout& column, const QString& name) {
    auto* frame = new QGroupBox(column.parentWidget());
    frame->setObjectName(name);
    column.addWidget(frame);
    return new Layout(frame);
}

} // namespace

void frmOptions::buildWidgets() {
    m_tabs = new QTabBar(this);
    m_tabs->setObjectName(u"tbsOptions"_s);
    m_tabs->setDrawBase(false);
    m_panels = new QStackedWidget(this);
    m_panels->setObjectName(u"panels"_s);
    m_panels->setFrameShape(QFrame::StyledPanel);

    buildOrderTab(*newTab(TabOfOrder));
    buildTestTab(*newTab(TabOfTest));
    buildPairsTab(*newTab(TabOfPairs));
    buildColumnsTab(*newTab(TabOfColumns));
    connect(m_tabs, &QTabBar::currentChanged, m_panels, &QStackedWidget::setCurrentIndex);

    m_ok = newButton(u"cmdOK"_s, &frmOptions::cmdOK_Click);
    m_ok->setDefault(true);
    auto* helpKey = new QLabel(this);
    helpKey->setObjectName(u"Label3"_s);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(helpKey);
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(newButton(u"cmdCancel"_s, &frmOptions::cmdCancel_Click));
    buttons->addWidget(newButton(u"cmdApply"_s, &frmOptions::cmdApply_Click));

    auto* column = new QVBoxLayout(this);
    auto* book = new QVBoxLayout;
    book->setSpacing(0);
    book->addWidget(m_tabs);
    book->addWidget(m_panels, 1);
    column->addLayout(book, 1);
    column->addLayout(buttons);
}

void frmOptions::takeFirstSize() {
    const int moreLines = ExplanationLines - LeastExplanationLines;
    resize(std::max(sizeHint().width(), fontMetrics().averageCharWidth() * ExplanationCharacters),
           sizeHint().height() + fontMetrics().lineSpacing() * moreLines);
}

QBoxLayout* frmOptions::newTab(int number) {
    auto* panel = new QWidget;
    panel->setObjectName(u"picOptions%1"_s.arg(number));
    m_panels->addWidget(panel);
    m_tabs->addTab({});
    m_tabs->setTabData(number - 1, u"tbsOptions_Tab%1"_s.arg(number));
    return new QVBoxLayout(panel);
}

void frmOptions::buildOrderTab(QBoxLayout& column) {
    auto* order = addFrame<QVBoxLayout>(column, u"fraSample1"_s);
    for (const Option option : {Sequential, Shuffle, Random})
        addOption(*order, option);
    auto* languages = addFrame<QVBoxLayout>(column, u"Frame1"_s);
    for (const Option option : {Language1First, Language2First})
        addOption(*languages, option);
    QScrollArea* area = newExplanation(u"Erklaerung_Reihenfolge"_s);
    m_orderExplanation = static_cast<QLabel*>(area->widget());
    column.addWidget(area, 1);
}

void frmOptions::buildTestTab(QBoxLayout& column) {
    auto* test = addFrame<QVBoxLayout>(column, u"fraSample2"_s);
    for (const Option option : {SelfTest, Loop, Write, ConfirmError, MainOnly})
        addOption(*test, option);
    QScrollArea* area = newExplanation(u"KommentarLabel"_s);
    m_testExplanation = static_cast<QLabel*>(area->widget());
    column.addWidget(area, 1);
}

void frmOptions::buildPairsTab(QBoxLayout& column) {
    m_pairs = new PairEditor(m_context.prompts, column.parentWidget());
    column.addWidget(m_pairs);
}

void frmOptions::buildColumnsTab(QBoxLayout& column) {
    auto* explanation = new QLabel(column.parentWidget());
    explanation->setObjectName(u"Label4"_s);
    explanation->setWordWrap(true);
    column.addWidget(explanation);
    auto* boxes = addFrame<QGridLayout>(column, u"Frame2"_s);
    const int rows = ListColumnCount / 2;
    for (int index = 0; index < ListColumnCount; ++index) {
        auto* box = new QCheckBox(boxes->parentWidget());
        box->setObjectName(QString::fromLatin1(columnBoxes[static_cast<size_t>(index)]));
        boxes->addWidget(box, index % rows, index / rows);
        m_columns[static_cast<size_t>(index)] = box;
    }
    column.addStretch();
}

void frmOptions::addOption(QBoxLayout& frame, Option option) {
    QWidget* parent = frame.parentWidget();
    QAbstractButton* control =
        option < SelfTest ? static_cast<QAbstractButton*>(new QRadioButton(parent)) : new QCheckBox(parent);
    control->setObjectName(QString::fromLatin1(optionNames[option]));
    control->setMouseTracking(true);
    control->installEventFilter(this);
    frame.addWidget(control, 0, Qt::AlignLeft); // as wide as its text
    m_options[option] = control;
}

/// A text under which the mouse moves, with room kept for the longest.
QScrollArea* frmOptions::newExplanation(const QString& name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText); // it may hold the name of a language
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * ExplanationCharacters / 2);

    auto* area = new QScrollArea;
    area->setObjectName(name + u"_Area"_s);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setWidget(label);
    area->setMinimumHeight(label->fontMetrics().lineSpacing() * LeastExplanationLines);
    return area;
}

QPushButton* frmOptions::newButton(const QString& name, void (frmOptions::*click)()) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

void frmOptions::connectOptions() {
    for (const Option order : {Sequential, Shuffle, Random}) {
        connect(m_options[order], &QAbstractButton::toggled, this, [this](bool chosen) {
            if (chosen)
                settle(ChangedOption::Order);
        });
    }
    const std::pair<Option, ChangedOption> checks[]{
        {SelfTest, ChangedOption::SelfTest}, {Loop, ChangedOption::Loop}, {Write, ChangedOption::Other}};
    for (const auto& [option, change] : checks)
        connect(m_options[option], &QAbstractButton::toggled, this,
                [this, changed = change] { settle(changed); });

    const std::pair<QKeySequence, int> keys[]{{Qt::CTRL | Qt::Key_Tab, 1},
                                              {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1}};
    for (const auto& [key, direction] : keys) {
        auto* shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, [this, step = direction] { selectNextTab(step); });
    }
}

bool frmOptions::eventFilter(QObject* watched, QEvent* event) {
    // Who goes by the keyboard gets the explanations as well.
    const bool isReached = event->type() == QEvent::MouseMove || event->type() == QEvent::Enter ||
                           event->type() == QEvent::FocusIn;
    if (isReached) {
        const auto found = std::find(m_options.begin(), m_options.end(), watched);
        if (found != m_options.end())
            explain(static_cast<Option>(found - m_options.begin()));
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace lingomat
