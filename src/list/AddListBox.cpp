#include "AddListBox.h"

#include "Collation.h"
#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "FlexGrid.h"
#include "FormTexts.h"
#include "Globals.h"
#include "InternalCharacters.h"
#include "LengthLimit.h"
#include "LstFkt.h"
#include "PackedList.h"
#include "ValueLists.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

struct AddListBox::Mode {
    const char16_t* name;
    const char16_t* kind; ///< of the value list
    const char16_t* german;
    const char16_t* english;
    int size; ///< longest value
};

namespace {

// clang-format off
constexpr FormText texts[] = {
    {"lblAvailable", u"Nicht zugewiesen:", u"Not Assigned:"},
    {"lblSelected", u"Zugewiesen:", u"Assigned:"},
    {"lblText", u"Ausgewählt bzw. neu:", u"Selected or New:"},
    {"LbAvailable", u"", u"",
     u"Klicken Sie auf den zuzuweisenden Eintrag, dann Schaltfläche Hinzufügen anklicken",
     u"Click the entry that shall be assigned, then press button 'Add'"},
    {"LbSelected", u"", u"",
     u"Klicken Sie auf den zu entfernenden Eintrag, dann Schaltfläche Entfernen anklicken",
     u"Click the entry that shall be removed, then press button 'Remove'"},
    {"txtSelected", u"", u"",
     u"Hier wird der gerade ausgewählte Eintrag angezeigt, oder Sie können einen neuen Eintrag eingeben",
     u"Here the currently selected entry is displayed, or you can type in a new entry"},
    {"lblHelp", u"Hilfe: F1", u"Help: F1"},
    {"Add", u"Hinzufügen >>", u"Add >>"},
    {"Remove", u"<< Entfernen", u"<< Remove"},
    {"OK", u"OK", u"OK"},
    {"cmClose", u"Abbrechen", u"Cancel"},
    {"cmdFont", u"Sonderzeichen", u"Special Characters"},
};
// clang-format on

bool equalButForCase(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// The values in a cell, up to the first empty one.
QStringList valuesIn(const QString& cell) {
    QStringList values;
    for (int i = 1;; ++i) {
        const QString value = ArrayGetItes(cell, i, u';');
        if (value.isEmpty())
            return values;
        values.append(value);
    }
}

} // namespace

const AddListBox::Mode& AddListBox::mode() const {
    static constexpr Mode modes[] = {
        {u"Bereich", u"Bereich", u"Bereiche verwalten", u"Edit section", BereichSize},
        {u"GrammatikalischeAttribute", u"Grammatikalisch", u"Grammatikalische Attribute verwalten",
         u"Edit grammar attributes", AttributSize},
        {u"FunktionaleAttribute", u"Funktionales", u"Funktionale Attribute verwalten",
         u"Edit functional attributes", AttributSize},
    };
    const auto* found = std::find_if(std::begin(modes), std::end(modes), [this](const Mode& candidate) {
        return Modus == QStringView(candidate.name);
    });
    Q_ASSERT_X(found != std::end(modes), "AddListBox::Modus", qPrintable(Modus));
    return found != std::end(modes) ? *found : modes[0];
}

AddListBox::AddListBox(Prompts& prompts, ValueLists& values, AttributeCells cells, QWidget* parent)
    : QDialog(parent), m_prompts(prompts), m_values(values), m_cells(std::move(cells)) {
    setObjectName(u"AddListBox"_s);
    buildWidgets();
    connectEvents();
}

void AddListBox::buildWidgets() {
    const auto newLabel = [this](const char16_t* name, QWidget* buddy) {
        auto* label = new QLabel(this);
        label->setObjectName(QString::fromUtf16(name));
        label->setBuddy(buddy);
        return label;
    };
    const auto newList = [this](const char16_t* name) {
        auto* list = new QListWidget(this);
        list->setObjectName(QString::fromUtf16(name));
        return list;
    };
    const auto newButton = [this](const char16_t* name) {
        auto* button = new QPushButton(this);
        button->setObjectName(QString::fromUtf16(name));
        return button;
    };
    LbAvailable = newList(u"LbAvailable");
    LbSelected = newList(u"LbSelected");
    txtSelected = new QLineEdit(this);
    txtSelected->setObjectName(u"txtSelected"_s);
    Add = newButton(u"Add");
    Remove = newButton(u"Remove");
    OK = newButton(u"OK");
    QPushButton* cancel = newButton(u"cmClose");
    QPushButton* font = newButton(u"cmdFont");
    font->setFocusPolicy(Qt::TabFocus); // a click leaves the caret in the field that is to be pasted into
    connect(cancel, &QPushButton::clicked, this, &AddListBox::cmClose_Click);
    connect(font, &QPushButton::clicked, this, &AddListBox::cmdFont_Click);

    auto* moves = new QVBoxLayout;
    moves->addStretch();
    moves->addWidget(Add);
    moves->addWidget(Remove);
    moves->addStretch();

    auto* lists = new QGridLayout;
    lists->addWidget(newLabel(u"lblAvailable", LbAvailable), 0, 0);
    lists->addWidget(LbAvailable, 1, 0);
    lists->addLayout(moves, 1, 1);
    lists->addWidget(newLabel(u"lblSelected", LbSelected), 0, 2);
    lists->addWidget(LbSelected, 1, 2);
    lists->setColumnStretch(0, 1);
    lists->setColumnStretch(2, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(font);
    buttons->addStretch();
    buttons->addWidget(OK);
    buttons->addWidget(cancel);

    auto* column = new QVBoxLayout(this);
    column->addLayout(lists, 1);
    auto* aboveText = new QHBoxLayout;
    aboveText->addWidget(newLabel(u"lblText", txtSelected));
    aboveText->addStretch();
    aboveText->addWidget(newLabel(u"lblHelp", nullptr));
    column->addLayout(aboveText);
    column->addWidget(txtSelected);
    column->addLayout(buttons);

    QWidget* before = LbAvailable;
    for (QWidget* next :
         std::initializer_list<QWidget*>{txtSelected, Add, LbSelected, Remove, font, OK, cancel}) {
        setTabOrder(before, next);
        before = next;
    }
}

void AddListBox::connectEvents() {
    for (const auto& [list, click] : {std::pair(LbAvailable, &AddListBox::LbAvailable_Click),
                                      std::pair(LbSelected, &AddListBox::LbSelected_Click)}) {
        // By keyboard as well; and a click on what is selected already is one, too.
        connect(list, &QListWidget::itemSelectionChanged, this, click);
        connect(list, &QListWidget::itemClicked, this, click);
    }
    connect(txtSelected, &QLineEdit::textChanged, this, &AddListBox::txtSelected_Change);
    connect(Add, &QPushButton::clicked, this, &AddListBox::Add_Click);
    connect(Remove, &QPushButton::clicked, this, &AddListBox::Remove_Click);
    connect(OK, &QPushButton::clicked, this, &AddListBox::OK_Click);
}

void AddListBox::SetUserInterfaceProperties() {
    applyTexts(*this, texts);
    setWindowTitle(uiText(QString::fromUtf16(mode().german), QString::fromUtf16(mode().english)));
}

void AddListBox::showEvent(QShowEvent* event) {
    if (!event->spontaneous())
        trapped(m_prompts, [this] { Form_Load(); });
    QDialog::showEvent(event);
}

void AddListBox::Form_Load() {
    LbAvailable->clear();
    LbSelected->clear();
    txtSelected->clear();
    KopiereListe(m_values.values(QString::fromUtf16(mode().kind)), *LbAvailable);
    const QStringList assigned = valuesIn(m_cells.grid.Text());
    for (const QString& value : assigned) {
        if (!isAssigned(value))
            assign(value);
    }
    limitLength(*txtSelected, mode().size, m_prompts);
    updateScrollExtents();
    enableAdd(false);
    Remove->setEnabled(false);
    SetUserInterfaceProperties();
    txtSelected->setFocus();
}

void AddListBox::updateScrollExtents() {
    SetzeScrollbreite(*LbAvailable);
    SetzeScrollbreite(*LbSelected);
}

/// Return adds what stands ready, and ends the dialog when nothing does: a value just typed is not lost.
void AddListBox::enableAdd(bool enabled) {
    Add->setEnabled(enabled);
    (enabled ? Add : OK)->setDefault(true);
}

bool AddListBox::isAssigned(const QString& value) const {
    const QStringList assigned = listItems(*LbSelected);
    return std::any_of(assigned.begin(), assigned.end(),
                       [&value](const QString& other) { return equalButForCase(other, value); });
}

void AddListBox::assign(const QString& value) {
    LbSelected->addItem(value);
    const auto offered = LbAvailable->findItems(value, Qt::MatchExactly | Qt::MatchCaseSensitive);
    qDeleteAll(offered);
}

/// Puts a value among those not assigned, which stand in order.
void AddListBox::offer(const QString& value) {
    const QCollator order = interfaceCollator();
    int row = 0;
    while (row < LbAvailable->count() && order.compare(LbAvailable->item(row)->text(), value) <= 0)
        ++row;
    LbAvailable->insertItem(row, value);
}

void AddListBox::LbAvailable_Click() {
    const int index = ListIndex(*LbAvailable);
    if (index < 0)
        return;
    const QString value = LbAvailable->item(index)->text();
    txtSelected->setText(value);
    enableAdd(!isAssigned(value));
}

void AddListBox::LbSelected_Click() {
    if (ListIndex(*LbSelected) >= 0)
        Remove->setEnabled(true);
}

void AddListBox::txtSelected_Change() {
    trapped(m_prompts, [this] {
        const qsizetype place = CheckForInternalCharacters(m_prompts, this, txtSelected->text());
        if (place == 0) {
            enableAdd(!txtSelected->text().isEmpty());
            return;
        }
        txtSelected->setSelection(static_cast<int>(place) - 1, 1);
        txtSelected->insert({}); // a change of its own, which finds the next such character
        enableAdd(false);
    });
}

void AddListBox::Add_Click() {
    trapped(m_prompts, [this] {
        const QString value = extract(txtSelected->text());
        if (value.isEmpty() || isAssigned(value))
            return;
        assign(value);
        m_values.AddToComboBoxes(value, QString::fromUtf16(mode().kind));
        updateScrollExtents();
        txtSelected->clear();
        enableAdd(false);
    });
}

void AddListBox::Remove_Click() {
    const int index = ListIndex(*LbSelected);
    if (index < 0)
        return;
    const QString value = LbSelected->item(index)->text();
    offer(value);
    delete LbSelected->takeItem(index);
    LbSelected->clearSelection(); // the view has chosen a neighbour by itself
    Remove->setEnabled(LbSelected->count() > 0);
    updateScrollExtents();
}

void AddListBox::OK_Click() {
    trapped(m_prompts, [this] {
        Ergebnis.clear();
        const QStringList assigned = listItems(*LbSelected);
        for (const QString& value : assigned)
            Ergebnis += value + u';';
        writeCell();
        DoSelectedRows();
        cmClose_Click();
    });
}

void AddListBox::writeCell() {
    if (extract(m_cells.grid.Text()) == Ergebnis)
        return;
    m_cells.ZeileGeaendert();
    m_cells.grid.setText(Ergebnis);
}

void AddListBox::DoSelectedRows() {
    const int start = std::max(1, m_cells.MehrfachStart);
    const int end = m_cells.MehrfachEnde < 0 ? start : std::max(1, m_cells.MehrfachEnde);
    if (start == end)
        return;
    if (!m_prompts.yesNo(this, uiText(u"Änderungen für alle selektierten Zellen vornehmen?"_s,
                                      u"Process changes for all selected cells?"_s)))
        return;
    FlexGrid& grid = m_cells.grid;
    const int row = grid.Row();
    const int first = start < end ? start + 1 : end;
    const int last = start < end ? end : start - 1;
    for (int other = first; other <= last; ++other) {
        grid.setRow(other);
        writeCell();
    }
    grid.setRow(row);
}

void AddListBox::cmClose_Click() {
    close();
}

void AddListBox::cmdFont_Click() {
    Q_EMIT specialCharactersRequested(*this);
}

} // namespace lingomat
