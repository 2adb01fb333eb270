#include "NeueRelation.h"

#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Liste.h"
#include "ReferenceRecords.h"
#include "Relationen.h"
#include "RelationenFunktionen.h"
#include "RowMark.h"
#include "SharedState.h"
#include "frmSuchen.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Of a long expression the beginning.
void display(QLineEdit& box, const QString& expression) {
    box.setText(expression);
    box.setCursorPosition(0);
}

} // namespace

void NeueRelation::Form_Load() {
    MarkierteZeile = -1;
    AlterTyp.clear();
    SortierungAktiv = false;
    const FlexGrid& list = m_list.MSFlexGrid1();
    display(*m_text1, list.TextMatrix(list.Row(), Liste::ColSprache1));
    display(*m_text2, list.TextMatrix(list.Row(), Liste::ColSprache2));
    InitialisiereComboxBox();
    if (m_references.StatusAnlegen)
        SetAsCreate();
    else
        SetAsChange();
    m_search->setEnabled(m_grid->Rows() >= 2);
}

void NeueRelation::SetAsCreate() {
    setMode(true);
    Set2ndVoc();
    InitialisiereFlexGrid();
    m_text3->clear();
    m_text4->clear();
    m_type->setCurrentIndex(-1);
    m_type->clearEditText();
    m_action->setEnabled(false);
}

void NeueRelation::SetAsChange() {
    setMode(false);
    display(*m_text3, m_references.cell(Relationen::ColSprache1));
    display(*m_text4, m_references.cell(Relationen::ColSprache2));
    m_type->setEditText(m_references.cell(Relationen::ColTyp));
    AlterTyp = m_type->currentText();
    m_action->setEnabled(false);
}

// The types.

void NeueRelation::InitialisiereComboxBox() {
    m_type->clear();
    m_type->addItems(referenceTypes(m_context.state));
    m_type->setCurrentIndex(-1);
}

void NeueRelation::AddToCombo(const QString& text) {
    const QString type = extract(text);
    if (!type.isEmpty() && m_type->findText(type, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
        m_type->addItem(type);
}

void NeueRelation::AddTypToCombo() {
    AddToCombo(m_type->currentText());
}

void NeueRelation::checkComboValue() {
    const QString type = m_type->currentText();
    const bool somethingNew = m_creating ? MarkierteZeile > 0 : type != AlterTyp;
    m_action->setEnabled(somethingNew && !type.isEmpty());
}

// The grid.

void NeueRelation::InitialisiereFlexGrid() {
    trapped(m_context.prompts, [this] {
        m_grid->setRows(1);
        m_grid->setTextMatrix(0, ColSprache1, m_context.state.Lang1Name);
        m_grid->setTextMatrix(0, ColSprache2, m_context.state.Lang2Name);
        fillGrid();
        m_grid->setCol(ColSprache1);
        m_grid->Sort();
    });
}

/// All entries but the current one, which cannot refer to itself.
void NeueRelation::fillGrid() {
    SharedState& state = m_context.state;
    dao::Recordset& entries = state.DBHandler.RecordsetSuche;
    const QString own = m_references.ownID();
    const QString everyEntry = u"ID LIKE '*'"_s;
    entries.FindFirst(everyEntry);
    while (!entries.EOF_() && !entries.NoMatch()) {
        const QString id = entries.field(u"ID"_s).toText();
        if (id != own) {
            m_grid->AddItem(QString());
            const int row = m_grid->Rows() - 1;
            m_grid->setTextMatrix(row, ColSprache1, expressionOf(entries, state, 1));
            m_grid->setTextMatrix(row, ColSprache2, expressionOf(entries, state, 2));
            m_grid->setTextMatrix(row, ColID, id);
        }
        entries.FindNext(everyEntry);
    }
}

void NeueRelation::SortGrid() {
    ResetMarke();
    if (m_grid->Rows() < 2)
        return;
    m_grid->setTopRow(1);
    m_grid->Sort();
    m_grid->setRow(1);
}

void NeueRelation::SetzeMarke() {
    const int row = m_grid->Row();
    if (row < 1)
        return;
    m_mark->take(MarkierteZeile);
    m_mark->put(row);
    MarkierteZeile = dao::toInteger16(row);
    Set2ndVoc();
}

void NeueRelation::ResetMarke() {
    m_mark->take(MarkierteZeile);
    MarkierteZeile = 0;
    Set2ndVoc();
}

void NeueRelation::Set2ndVoc() {
    const bool marked = MarkierteZeile > 0;
    display(*m_text3, marked ? m_grid->TextMatrix(MarkierteZeile, ColSprache1) : QString());
    display(*m_text4, marked ? m_grid->TextMatrix(MarkierteZeile, ColSprache2) : QString());
    checkComboValue();
}

void NeueRelation::grid_SelChange() {
    if (std::exchange(SortierungAktiv, false))
        return;
    trapped(m_context.prompts, [this] { SetzeMarke(); });
}

void NeueRelation::grid_MouseDown(int column) {
    if (m_grid->Rows() < 2 || column == ColMarke)
        return;
    trapped(m_context.prompts, [this, column] {
        SortierungAktiv = true;
        m_grid->setCol(column);
        SortGrid();
        SortierungAktiv = false;
    });
}

void NeueRelation::grid_MouseMove() {
    m_grid->setToolTip(m_grid->MouseRow() == 0 ? uiText(u"Klicken, um nach dieser Spalte zu Sortieren"_s,
                                                        u"Click to sort by this column"_s)
                                               : uiText(u"Klicken, um Vokabel für Referenz auszuwählen"_s,
                                                        u"Click to select vocab for Reference"_s));
}

// Storing.

bool NeueRelation::FindRelation(const QString& id1, const QString& id2, const QString& typ) {
    return findReference(m_context.state.DBHandler.RecordsetReferenzen, id1, id2, typ);
}

bool NeueRelation::alreadyExists(const QString& other, const QString& type) {
    if (!FindRelation(m_references.ownID(), other, type))
        return false;
    m_context.prompts.exclamation(
        this, uiText(u"Diese Referenz existiert bereits."_s, u"This Reference already exists."_s));
    return true;
}

bool NeueRelation::CreateRelation() {
    bool created = false;
    trapped(m_context.prompts, [&] {
        const QString id1 = m_references.ownID();
        const QString id2 = m_grid->TextMatrix(MarkierteZeile, ColID);
        const QString type = m_type->currentText();
        if (alreadyExists(id2, type))
            return;
        dao::Recordset& references = m_context.state.DBHandler.RecordsetReferenzen;
        references.AddNew();
        references.setField(u"von"_s, id1);
        references.setField(u"nach"_s, id2);
        references.setField(u"Typ"_s, type);
        references.Update();
        created = true;
        m_references.AddOneRow(id2, type);
    });
    return created;
}

bool NeueRelation::ChangeRelation() {
    bool changed = false;
    trapped(m_context.prompts, [&] {
        const QString other = m_references.cell(Relationen::ColID);
        const QString type = m_type->currentText();
        if (alreadyExists(other, type))
            return;
        dao::Recordset& references = m_context.state.DBHandler.RecordsetReferenzen;
        if (!findThisReference(references, m_references.ownID(), other,
                               m_references.cell(Relationen::ColTyp))) {
            m_context.prompts.critical(
                this, uiText(u"Referenz wurde nicht gefunden!"_s, u"The Reference could not be found!"_s));
            return;
        }
        references.Edit();
        references.setField(u"Typ"_s, type);
        references.Update();
        m_references.setMarkedType(type);
        changed = true;
    });
    return changed;
}

void NeueRelation::Command1_Click() {
    const QString type = extract(m_type->currentText());
    m_type->setEditText(type);
    if (type.isEmpty())
        return;
    const bool stored = m_creating ? CreateRelation() : ChangeRelation();
    if (!stored)
        return;
    m_context.prompts.information(
        this, m_creating ? uiText(u"Die Referenz wurde erzeugt"_s, u"The Reference has been created"_s)
                         : uiText(u"Die Referenz wurde verändert"_s, u"The Reference has been modified"_s));
    AddTypToCombo();
    AlterTyp = m_type->currentText();
    checkComboValue();
}

void NeueRelation::Command2_Click() {
    close();
}

void NeueRelation::cmdSuchen_Click() {
    trapped(m_context.prompts, [this] {
        const SharedState& state = m_context.state;
        frmSuchen search(m_context.prompts,
                         {.grid = *m_grid,
                          .columns = {ColSprache1, ColSprache2},
                          .languages = {state.Lang1Name, state.Lang2Name},
                          .sortByCol = [this] { SortGrid(); },
                          .markRow = [this] { SetzeMarke(); },
                          .Aufrufer = u"NeueRelation"_s},
                         this);
        m_context.prompts.exec(search);
    });
}

} // namespace lingomat
