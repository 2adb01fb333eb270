#include "Form2.h"

#include "DateFilter.h"
#include "Form2Tabs.h"
#include "LengthLimit.h"
#include "LessonRules.h"
#include "ListPairFrame.h"
#include "ScoreFilter.h"
#include "SideTabBar.h"
#include "ValueLists.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

template <typename Widget>
Widget* named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

QLabel* addLabel(QGridLayout& grid, const QString& name, QWidget* buddy, int row) {
    auto* label = named(new QLabel, name);
    label->setBuddy(buddy);
    grid.addWidget(label, row, 0);
    return label;
}

QPushButton* addButton(QBoxLayout& row, const QString& name) {
    auto* button = named(new QPushButton, name);
    button->setAutoDefault(true);
    row.addWidget(button);
    return button;
}

/// Asks for the room that its pages need, and scrolls them where a screen has less.
class PageScroller final : public QScrollArea {
public:
    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
};

/// A page with one text box.
QWidget* textPage(const QString& name, QLineEdit* box) {
    auto* page = named(new QGroupBox, name);
    auto* grid = new QGridLayout(page);
    addLabel(*grid, u"lbl"_s + box->objectName(), box, 0);
    grid->addWidget(box, 0, 1);
    return page;
}

/// The page keeps its place while it is hidden, so that the window does not jump.
QWidget* keepingItsPlace(QWidget* page) {
    QSizePolicy policy = page->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    page->setSizePolicy(policy);
    return page;
}

} // namespace

void Form2::buildWidgets() {
    setObjectName(u"Form2"_s);
    m_tabStrip = named(new QTabBar, u"TabStrip1"_s);
    m_tabStrip->setExpanding(false);
    m_tabStrip->setDrawBase(false);
    m_tabStrip->setTabData(m_tabStrip->addTab({}), u"tabStandard"_s);
    m_tabStrip->setTabData(m_tabStrip->addTab({}), u"tabErweitert"_s);
    m_tabs = new SideTabBar(u"tbsOptions"_s);
    for (int number = 1; number <= TabCount; ++number)
        addTab(number, {});

    auto* body = new QHBoxLayout;
    body->setSpacing(0);
    body->addWidget(m_tabs, 0, Qt::AlignTop);
    body->addWidget(buildPages(), 1);
    auto* centre = named(new QWidget, u"centre"_s);
    auto* column = new QVBoxLayout(centre);
    column->addLayout(buildHead());
    column->addLayout(body, 1);
    column->addWidget(buildButtons());
    setCentralWidget(centre);
    buildMasters();
    buildMenus();
    named(statusBar(), u"StatusBar1"_s);
}

/// Beside the first tabs, where there is room: the lesson that fills the whole form.
QLayout* Form2::buildHead() {
    m_cmbName = named(new QComboBox, u"cmbName"_s);
    m_cmbName->setEditable(true);
    m_cmbName->setCompleter(nullptr);      // it would recall a lesson whose name is being typed still
    m_cmbName->setDuplicatesEnabled(true); // or Enter would choose the named lesson again
    m_cmbName->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_cmbName->setMinimumContentsLength(14);
    m_cmbName->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    limitLength(*m_cmbName, LessonNameSize, m_context.prompts);
    m_context.values.attach(*m_cmbName, u"Auswahl"_s);
    auto* label = named(new QLabel, u"lblName"_s);
    label->setBuddy(m_cmbName);

    auto* head = new QHBoxLayout;
    head->addWidget(m_tabStrip, 0, Qt::AlignBottom);
    head->addStretch(1);
    head->addWidget(label);
    head->addWidget(m_cmbName, 3);
    m_cmdSpeichern = addButton(*head, u"cmdSpeichern"_s);
    m_cmdLoeschen = addButton(*head, u"cmdLoeschen"_s);
    return head;
}

QWidget* Form2::buildPages() {
    m_lists = new ListPairFrame;
    m_score = new ScoreFilter(m_context.prompts);
    m_languagePage = buildLanguagePage();

    m_pages = named(new QStackedWidget, u"pages"_s);
    for (QWidget* page : {static_cast<QWidget*>(m_lists), static_cast<QWidget*>(m_score), m_languagePage})
        m_pages->addWidget(keepingItsPlace(page));
    m_pages->addWidget(buildMiscellaneousPage());

    auto* scroller = named(new PageScroller, u"pageScroller"_s);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setWidget(m_pages);
    return scroller;
}

Form2::LanguageBoxes Form2::addLanguageColumn(QWidget& page, int number) {
    const QString stem = u"Lang"_s + QString::number(number);
    auto* grid = static_cast<QGridLayout*>(page.layout());
    const auto addBox = [&](const QString& name, int row) {
        auto* box = named(new QLineEdit, stem + name);
        grid->addWidget(box, row, number);
        return box;
    };
    LanguageBoxes boxes;
    boxes.gate = named(new QCheckBox, stem + u"Check"_s);
    boxes.gate->setChecked(true);
    grid->addWidget(boxes.gate, 0, number);
    boxes.prefix = addBox(u"Prefix"_s, 1);
    boxes.main = addBox(u"Main"_s, 2);
    boxes.suffix = addBox(u"Suffix"_s, 3);
    boxes.comment = addBox(u"Kommentar"_s, 4);
    return boxes;
}

QWidget* Form2::buildLanguagePage() {
    auto* page = named(new QGroupBox, u"picWortbestandteile"_s);
    auto* grid = new QGridLayout(page);
    m_lang1 = addLanguageColumn(*page, 1);
    m_lang2 = addLanguageColumn(*page, 2);
    addLabel(*grid, u"lblPrefix"_s, m_lang1.prefix, 1);
    addLabel(*grid, u"lblMain"_s, m_lang1.main, 2);
    addLabel(*grid, u"lblSuffix"_s, m_lang1.suffix, 3);
    addLabel(*grid, u"lblKommentar"_s, m_lang1.comment, 4);
    grid->setRowStretch(5, 1);
    return page;
}

QWidget* Form2::buildMiscellaneousPage() {
    m_entryFilter = new DateFilter(u"picEingabedatum"_s, u"Eingabe"_s, 1, m_entryDates);
    m_changeFilter = new DateFilter(u"picAenderungsdatum"_s, u"Aenderung"_s, 7, m_changeDates);
    m_beispielsatz = named(new QLineEdit, u"Beispielsatz"_s);
    m_zusatzinfo = named(new QLineEdit, u"Zusatzinfo"_s);
    m_samplePage = textPage(u"picBeispielsatz"_s, m_beispielsatz);
    m_infoPage = textPage(u"picZusatzinfo"_s, m_zusatzinfo);

    auto* panel = named(new QWidget, u"picSonstiges"_s);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    for (QWidget* page : {static_cast<QWidget*>(m_entryFilter), static_cast<QWidget*>(m_changeFilter),
                          m_samplePage, m_infoPage})
        column->addWidget(keepingItsPlace(page));
    column->addStretch();
    return panel;
}

QWidget* Form2::buildButtons() {
    auto* bar = named(new QWidget, u"buttons"_s);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    m_command2 = addButton(*row, u"Command2"_s);
    addButton(*row, u"cmdFont"_s);
    row->addStretch();
    m_command1 = addButton(*row, u"Command1"_s);
    m_command4 = addButton(*row, u"Command4"_s);
    m_command3 = addButton(*row, u"Command3"_s);
    m_command1->setDefault(true);
    return bar;
}

/// Boxes that are never shown: they hold what the left lists are filled from.
void Form2::buildMasters() {
    static constexpr std::array kinds{u"Wortart", u"Bereich", u"Quelle"};
    for (size_t i = 0; i < kinds.size(); ++i) {
        const QString kind = QString::fromUtf16(kinds[i]);
        auto* box = named(new QComboBox(this), kind + u"Box"_s);
        box->setEditable(true);
        box->setAccessibleName(kind);
        box->hide();
        m_context.values.attach(*box, kind);
        m_masters[i] = box;
    }
}

void Form2::buildMenus() {
    QMenu* selection = menuBar()->addMenu(QString());
    named(selection, u"mnAuswahl"_s);
    const auto add = [this](QMenu* menu, const QString& name) {
        auto* action = named(new QAction(this), name);
        menu->addAction(action);
        return action;
    };
    add(selection, u"mnAuswahlNeu"_s);
    add(selection, u"mnAuswahlOpen"_s);
    m_mnAuswahlSpeichern = add(selection, u"mnAuswahlSpeichern"_s);
    m_mnAuswahlDelete = add(selection, u"mnAuswahlDelete"_s);
    selection->addSeparator();
    add(selection, u"mnSuchen"_s);
    add(selection, u"mnSelectAll"_s);
    selection->addSeparator();
    add(selection, u"mnClose"_s);

    QMenu* edit = menuBar()->addMenu(QString());
    named(edit, u"mnBearbeiten"_s);
    for (const TabCommand& command : tabCommands)
        add(edit, QString::fromUtf8(command.menuEntry));
}

} // namespace lingomat
