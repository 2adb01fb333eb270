#include "frmSelectAuswahl.h"

#include "FormTexts.h"
#include "LengthLimit.h"
#include "LessonRules.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

// clang-format off
constexpr FormText texts[] = {
    {"frmSelectAuswahl", u"Name der Lektion", u"Name of Lesson"},
    {"Label1",
     u"Bitte vorhandenen Namen aus der Klappbox auswählen, oder einen neuen Namen eingeben.",
     u"Please select a name from the combo box, or type in a new name."},
    {"Label2", u"Lektion:", u"Lesson:"},
    {"Combo1", u"Lektion", u"Lesson"},
    {"cmdClose", u"OK", u"OK"},
};
// clang-format on

} // namespace

frmSelectAuswahl::frmSelectAuswahl(Prompts& prompts, const QStringList& lessons, QWidget* parent)
    : QDialog(parent) {
    setObjectName(u"frmSelectAuswahl"_s);
    buildWidgets(prompts);
    SetUserInterfaceProperties();
    m_combo1->addItems(lessons);
    m_combo1->setCurrentIndex(-1);
    m_combo1->clearEditText();
    m_combo1->setFocus();
}

void frmSelectAuswahl::buildWidgets(Prompts& prompts) {
    auto* instruction = new QLabel(this);
    instruction->setObjectName(u"Label1"_s);
    instruction->setWordWrap(true);
    auto* label = new QLabel(this);
    label->setObjectName(u"Label2"_s);

    m_combo1 = new QComboBox(this);
    m_combo1->setObjectName(u"Combo1"_s);
    m_combo1->setEditable(true);
    m_combo1->setInsertPolicy(QComboBox::NoInsert);
    m_combo1->setCompleter(nullptr); // it would put another name in place of the one typed
    m_combo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_combo1->setMinimumContentsLength(30);
    limitLength(*m_combo1, LessonNameSize, prompts);
    label->setBuddy(m_combo1);

    auto* close = new QPushButton(this);
    close->setObjectName(u"cmdClose"_s);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_combo1, 1);
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(instruction);
    column->addLayout(row);
    column->addStretch();
    column->addLayout(foot);
}

QString frmSelectAuswahl::name() const {
    return m_combo1->currentText();
}

void frmSelectAuswahl::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
}

} // namespace lingomat
