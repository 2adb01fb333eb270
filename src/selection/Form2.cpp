#include "Form2.h"

#include "CSelection.h"
#include "DateFilter.h"
#include "ErrorTrap.h"
#include "Form2Tabs.h"
#include "ListPairFrame.h"
#include "Liste.h"
#include "ScoreFilter.h"
#include "SharedState.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// The window is made for a screen of 800x600; some of it goes to its frame and to the desktop's bars.
constexpr QSize SmallestStart{720, 480};
constexpr QSize LargestStart{780, 560};

} // namespace

Form2::Form2(FormContext& context, Liste& liste, Trainer& trainer, QWidget* parent)
    : QMainWindow(parent),
      m_context(context),
      m_liste(liste),
      m_trainer(trainer),
      m_entryDates(context.state, context.prompts, context.today),
      m_changeDates(context.state, context.prompts, context.today),
      m_query(context.state.DBHandler.Database),
      m_lookups{[this](const QString& id) { return m_query.GetAllBereiche(id); },
                [this](const QString& id) { return m_query.GetAllGrammatikalisch(id); },
                [this](const QString& id) { return m_query.GetAllFunktional(id); }} {
    buildWidgets();
    buildLessons();
    connectEvents();
    connectMenus();
    connectLessons();
}

Form2::~Form2() = default;

void Form2::Form_Load() {
    trapped(m_context.prompts, [this] {
        m_entryDates.SetInitialisierung(true);
        m_changeDates.SetInitialisierung(true);
        m_entryDates.init();
        m_changeDates.init();
        SetUserInterfaceProperties();
        initialisiere();
        m_tabStrip->setCurrentIndex(1);
        m_entryDates.SetInitialisierung(false);
        m_changeDates.SetInitialisierung(false);
    });
    resize(sizeHint().expandedTo(SmallestStart).boundedTo(LargestStart));
}

void Form2::initialisiere() {
    trapped(m_context.prompts, [this] {
        showLanguageNames();
        InitialisiereAuswahlBox();
        m_entryDates.init();
        m_changeDates.init();
        Command2_Click();
        AuswahlGeaendert = true;
        showCount(0);
    });
}

void Form2::connectEvents() {
    connect(m_command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(m_command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(m_command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
    connect(m_command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
    connect(findChild<QPushButton*>(u"cmdFont"_s), &QPushButton::clicked, this,
            [this] { Q_EMIT specialCharactersRequested(*this); });
    connect(m_lists, &ListPairFrame::addRequested, this, &Form2::cmdAdd_Click);
    connect(m_lists, &ListPairFrame::removeRequested, this, &Form2::cmdRemove_Click);
    connect(m_lists, &ListPairFrame::addAllRequested, this, &Form2::cmdAddAll_Click);
    connect(m_lists, &ListPairFrame::removeAllRequested, this, &Form2::cmdRemoveAll_Click);
    connect(m_tabs, &QTabBar::currentChanged, this, &Form2::tbsOptions_Click);
    connect(m_tabStrip, &QTabBar::currentChanged, this, &Form2::TabStrip1_Click);
    connect(new QShortcut(Qt::CTRL | Qt::Key_Tab, this), &QShortcut::activated, this, &Form2::selectNextTab);

    for (const LanguageBoxes& boxes : {m_lang1, m_lang2}) {
        for (QLineEdit* box : boxes.all())
            connect(box, &QLineEdit::textChanged, this, &Form2::filterChanged);
    }
    connect(m_lang1.gate, &QCheckBox::toggled, this, [this] { gateChanged(u"Lang1"_s); });
    connect(m_lang2.gate, &QCheckBox::toggled, this, [this] { gateChanged(u"Lang2"_s); });
    connect(m_beispielsatz, &QLineEdit::textChanged, this, &Form2::filterChanged);
    connect(m_zusatzinfo, &QLineEdit::textChanged, this, &Form2::filterChanged);
    connect(m_entryFilter, &DateFilter::changed, this, &Form2::filterChanged);
    connect(m_changeFilter, &DateFilter::changed, this, &Form2::filterChanged);
    connect(m_score, &ScoreFilter::changed, this, &Form2::filterChanged);
    for (QComboBox* box : m_masters)
        connect(box, &QComboBox::editTextChanged, this, &Form2::filterChanged);

    const auto boxes = findChildren<QLineEdit*>();
    for (QLineEdit* box : boxes) {
        if (box != m_cmbName->lineEdit()) // no filter
            box->installEventFilter(this);
    }
}

void Form2::connectMenus() {
    const auto onTrigger = [this](const char* name, auto act) {
        connect(findChild<QAction*>(QString::fromUtf8(name)), &QAction::triggered, this, [act] { act(); });
    };
    onTrigger("mnSuchen", [this] { Command4_Click(); });
    onTrigger("mnSelectAll", [this] { Command2_Click(); });
    onTrigger("mnClose", [this] { Command3_Click(); });
    for (const TabCommand& command : tabCommands)
        onTrigger(command.menuEntry, [this, tab = command.tab] { selectTab(tab); });
    onTrigger("mnBeispielsatz", [this] { m_beispielsatz->setFocus(); });
    onTrigger("mnZusatzinfo", [this] { m_zusatzinfo->setFocus(); });
}

void Form2::Command1_Click() {
    if (AuswahlGeaendert)
        Command4_Click();
    Command3_Click();
}

void Form2::Command2_Click() {
    trapped(m_context.prompts, [this] {
        AuswahlGeaendert = true;
        for (const LanguageBoxes& boxes : {m_lang1, m_lang2}) {
            for (QLineEdit* box : boxes.all())
                box->clear();
        }
        for (QComboBox* box : m_masters)
            box->clearEditText();
        m_beispielsatz->clear();
        m_zusatzinfo->clear();
        SetzeEingabeDatum();
        SetzeAenderungsDatum();
        m_score->setFullRange();
        InitialisiereSelectionboxes();
    });
}

void Form2::Command3_Click() {
    hide();
}

void Form2::SetzeEingabeDatum() {
    m_entryFilter->setFullRange();
}

void Form2::SetzeAenderungsDatum() {
    m_changeFilter->setFullRange();
}

bool Form2::CheckScoreValues(const QString& kind) {
    return m_score->CheckScoreValues(kind);
}

void Form2::SetLangEingabe(const QString& /*language*/) {}

void Form2::gateChanged(const QString& language) {
    SetLangEingabe(language);
    filterChanged();
}

QString Form2::QueryStringForExpression(const QString& /*text*/) {
    return {};
}

bool Form2::event(QEvent* event) {
    // A menu that is being walked through would wipe the count off the status bar.
    if (event->type() == QEvent::StatusTip)
        return true;
    return QMainWindow::event(event);
}

bool Form2::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_cmbName) // a slip of the wheel must not put a lesson in place of all filters
        return event->type() == QEvent::Wheel;
    if (event->type() == QEvent::FocusIn)
        m_context.state.ActiveFieldName = watched->objectName();
    return QMainWindow::eventFilter(watched, event);
}

void Form2::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: m_command1->click(); return;
    case Qt::Key_Escape: m_command3->click(); return;
    default: QMainWindow::keyPressEvent(event);
    }
}

} // namespace lingomat
