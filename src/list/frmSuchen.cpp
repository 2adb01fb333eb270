#include "frmSuchen.h"

#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "FormTexts.h"
#include "WindowPlacement.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr FormText texts[] = {
    {"frmSuchen", u"Ausdruck suchen", u"Search Expression"},
    {"txtAusdruck", u"Ausdruck", u"Expression"},
    {"lblNicht", u"Nicht gefunden", u"Not found"},
    {"Command1", u"Schließen", u"Close"},
};

} // namespace

frmSuchen::frmSuchen(Prompts& prompts, SearchTarget target, QWidget* parent)
    : QDialog(parent), Aufrufer(target.Aufrufer), m_prompts(prompts), m_target(std::move(target)) {
    setObjectName(u"frmSuchen"_s);
    buildWidgets();
    SetUserInterfaceProperties();
    connectEvents();
    Form_Load();
}

void frmSuchen::buildWidgets() {
    m_text = new QLineEdit(this);
    m_text->setObjectName(u"txtAusdruck"_s);
    m_text->setMinimumWidth(m_text->fontMetrics().averageCharWidth() * 40);
    for (size_t language = 0; language < m_options.size(); ++language) {
        m_options[language] = new QRadioButton(this);
        m_options[language]->setObjectName(u"Option%1"_s.arg(language + 1));
    }
    m_notFound = new QLabel(this);
    m_notFound->setObjectName(u"lblNicht"_s);
    QSizePolicy keepsRoom = m_notFound->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    m_notFound->setSizePolicy(keepsRoom);
    m_notFound->hide();
    auto* close = new QPushButton(this);
    close->setObjectName(u"Command1"_s);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &frmSuchen::Command1_Click);

    auto* foot = new QHBoxLayout;
    foot->addWidget(m_notFound);
    foot->addStretch();
    foot->addWidget(close);

    auto* column = new QVBoxLayout(this);
    column->addWidget(m_text);
    for (QRadioButton* option : m_options)
        column->addWidget(option);
    column->addLayout(foot);
    column->addStretch();
    m_text->setFocus();
}

void frmSuchen::connectEvents() {
    connect(m_text, &QLineEdit::textChanged, this, &frmSuchen::txtAusdruck_Change);
    m_options[0]->setChecked(true);
    for (int language = 0; language < 2; ++language)
        connect(m_options[static_cast<size_t>(language)], &QRadioButton::toggled, this,
                [this, language](bool set) { Option_Click(language, set); });
}

void frmSuchen::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
}

void frmSuchen::Form_Load() {
    sortBy(m_options[0]->isChecked() ? 0 : 1);
}

void frmSuchen::Form_Activate() {
    for (size_t language = 0; language < m_options.size(); ++language) {
        // The name of a language is data: an ampersand in it is one.
        QString caption = m_target.languages[language];
        m_options[language]->setText(caption.replace(u'&', u"&&"_s));
    }
}

void frmSuchen::showEvent(QShowEvent* event) {
    Form_Activate();
    adjustSize();
    // At the foot of the caller: what is found comes to the top of the grid.
    if (const QWidget* caller = parentWidget() ? parentWidget()->window() : nullptr) {
        const QPoint corner = caller->frameGeometry().bottomRight() - rect().bottomRight();
        move(keptInside({corner, size()}, usableScreen(*caller)));
    }
    QDialog::showEvent(event);
}

void frmSuchen::Option_Click(int language, bool set) {
    if (!set)
        return;
    sortBy(language);
    m_text->setFocus();
}

void frmSuchen::sortBy(int language) {
    trapped(m_prompts, [this, language] {
        m_target.grid.setCol(m_target.columns[static_cast<size_t>(language)]);
        m_target.sortByCol();
    });
}

void frmSuchen::txtAusdruck_Change() {
    trapped(m_prompts, [this] {
        const int row = firstRowWith(m_text->text());
        m_notFound->setVisible(row == 0 && !m_text->text().isEmpty());
        if (row != 0)
            go(row);
    });
}

int frmSuchen::firstRowWith(const QString& beginning) const {
    const FlexGrid& grid = m_target.grid;
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        if (grid.RowHeight(row) > 0 &&
            grid.TextMatrix(row, grid.Col()).startsWith(beginning, Qt::CaseInsensitive))
            return row;
    }
    return 0;
}

void frmSuchen::go(int row) {
    m_target.grid.setTopRow(row);
    m_target.grid.setRow(row);
    m_target.markRow();
}

void frmSuchen::Command1_Click() {
    close();
}

} // namespace lingomat
