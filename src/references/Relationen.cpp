#include "Relationen.h"

#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Liste.h"
#include "NeueRelation.h"
#include "ReferenceRecords.h"
#include "RowMark.h"
#include "SharedState.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int ListKeyColumn = 1;

} // namespace

bool Relationen::Form_Load() {
    MarkierteZeile = -1;
    AnzahlZeilen = 0;
    SortierungAktiv = false;
    enableRowCommands(false);
    MinZeilen = dao::toInteger16(m_grid->Rows());
    setColumns();
    const FlexGrid& list = m_list.MSFlexGrid1();
    m_label2->setText(list.TextMatrix(list.Row(), Liste::ColSprache1));
    m_label3->setText(list.TextMatrix(list.Row(), Liste::ColSprache2));
    if (!AktualisiereListe())
        return false;
    StatusAnlegen = true;
    SetUserInterfaceProperties();
    return true;
}

QString Relationen::ownID() const {
    const FlexGrid& list = m_list.MSFlexGrid1();
    return list.TextMatrix(list.Row(), ListKeyColumn);
}

bool Relationen::AktualisiereListe() {
    bool loaded = false;
    trapped(m_context.prompts, [&] {
        AnzahlZeilen = 0;
        const QString id = ownID();
        if (id == u"*"_s) {
            critical(u"Dieser Eintrag ist noch nicht in die Datenbank zurückgeschrieben"_s,
                     u"This entry has not yet been saved to the database"_s);
            return;
        }
        dao::Recordset& references = m_context.state.DBHandler.RecordsetReferenzen;
        const QString criterion = referencesOf(id);
        references.FindFirst(criterion);
        while (!references.EOF_() && !references.NoMatch()) {
            const QString von = references.field(u"von"_s).toText();
            const QString nach = references.field(u"nach"_s).toText();
            AddOneRow(von == id ? nach : von, references.field(u"Typ"_s).toText(QString()));
            references.FindNext(criterion);
        }
        m_grid->setCol(ColTyp);
        m_grid->Sort();
        LeereZeilenNachHinten();
        m_grid->setRow(0); // the first row is to be chosen as well
        loaded = true;
    });
    return loaded;
}

void Relationen::AddOneRow(const QString& id, const QString& typ) {
    trapped(m_context.prompts, [&] {
        SharedState& state = m_context.state;
        dao::Recordset& entries = state.DBHandler.RecordsetSuche;
        entries.FindFirst(u"ID LIKE "_s + literalPattern(id));
        if (entries.EOF_() || entries.NoMatch()) {
            critical(u"Es ist ein interner Fehler aufgetreten!"_s, u"Es An internal error occured!"_s);
            return;
        }
        const QString expression1 = expressionOf(entries, state, 1);
        const QString expression2 = expressionOf(entries, state, 2);
        AnzahlZeilen = dao::toInteger16(AnzahlZeilen + 1);
        ExtendRow();
        const int row = m_grid->Row();
        m_grid->setTextMatrix(row, ColTyp, typ);
        m_grid->setTextMatrix(row, ColSprache1, expression1);
        m_grid->setTextMatrix(row, ColSprache2, expression2);
        m_grid->setTextMatrix(row, ColID, id);
    });
}

void Relationen::ExtendRow() {
    if (AnzahlZeilen < m_grid->Rows()) {
        m_grid->setRow(AnzahlZeilen);
        return;
    }
    m_grid->AddItem(QString());
    m_grid->setRow(m_grid->Rows() - 1);
}

bool Relationen::rowIsEmpty(int row) const {
    return m_grid->TextMatrix(row, ColID).isEmpty();
}

void Relationen::LeereZeilenNachHinten() {
    if (AnzahlZeilen == 0)
        return;
    // Not only those at the top: a reference can be empty in the column that was sorted by, and then stands
    // among them.
    int removed = 0;
    for (int row = m_grid->Rows() - 1; row > 0; --row) {
        if (rowIsEmpty(row)) {
            m_grid->RemoveItem(row);
            ++removed;
        }
    }
    for (; removed > 0; --removed)
        m_grid->AddItem(QString());
}

void Relationen::MakeStdNumRows() {
    const int row = m_grid->Row();
    while (m_grid->Rows() < MinZeilen)
        m_grid->AddItem(QString());
    m_grid->setRow(row);
}

bool Relationen::DeleteOneRow(const QString& id1, const QString& id2, const QString& typ) {
    bool deleted = false;
    trapped(m_context.prompts, [&] {
        dao::Recordset& references = m_context.state.DBHandler.RecordsetReferenzen;
        if (!findThisReference(references, id1, id2, typ)) {
            critical(u"Referenz wurde nicht gefunden!"_s, u"The Reference could not be found!"_s);
            return;
        }
        references.Edit();
        references.Delete();
        AnzahlZeilen = dao::toInteger16(AnzahlZeilen - 1);
        deleted = true;
    });
    return deleted;
}

void Relationen::ResetMarke() {
    m_mark->take(MarkierteZeile);
    MarkierteZeile = 0;
    enableRowCommands(false);
}

/// Also while the dialog is being loaded, before it can own a box.
void Relationen::critical(const QString& german, const QString& english) {
    m_context.prompts.critical(isVisible() ? this : parentWidget(), uiText(german, english));
}

QString Relationen::cell(Column column) const {
    return MarkierteZeile > 0 ? m_grid->TextMatrix(MarkierteZeile, column) : QString();
}

void Relationen::setMarkedType(const QString& type) {
    m_grid->setTextMatrix(MarkierteZeile, ColTyp, type);
}

void Relationen::enableRowCommands(bool enabled) {
    m_change->setEnabled(enabled);
    m_delete->setEnabled(enabled);
}

void Relationen::OK_Click() {
    close();
}

void Relationen::Add_Click() {
    StatusAnlegen = true;
    showNewReference();
}

void Relationen::Change_Click() {
    StatusAnlegen = false;
    showNewReference();
}

void Relationen::showNewReference() {
    trapped(m_context.prompts, [this] {
        NeueRelation dialog(m_context, *this, m_list, this);
        m_context.prompts.exec(dialog);
        m_grid->setRow(std::max<int>(MarkierteZeile, 0)); // from the row that was added
    });
}

void Relationen::Delete_Click() {
    trapped(m_context.prompts, [this] {
        if (MarkierteZeile < 1 || !DeleteOneRow(ownID(), cell(ColID), cell(ColTyp)))
            return;
        m_grid->RemoveItem(MarkierteZeile);
        MakeStdNumRows();
        enableRowCommands(false);
        MarkierteZeile = 0;
        m_grid->setRow(0); // the row that moved up is not chosen
    });
}

void Relationen::grid_SelChange() {
    trapped(m_context.prompts, [this] {
        const bool sorting = std::exchange(SortierungAktiv, false);
        const int row = m_grid->Row();
        if (sorting || AnzahlZeilen == 0 || row < 1)
            return;
        if (row > AnzahlZeilen) {
            m_grid->setRow(std::max<int>(MarkierteZeile, 0));
            return;
        }
        m_mark->take(MarkierteZeile);
        m_mark->put(row);
        MarkierteZeile = dao::toInteger16(row);
        enableRowCommands(true);
    });
}

void Relationen::grid_MouseDown(int column) {
    if (m_grid->Rows() < 2 || column == ColMarke)
        return;
    trapped(m_context.prompts, [this, column] {
        SortierungAktiv = true;
        ResetMarke();
        m_grid->setCol(column);
        m_grid->Sort();
        LeereZeilenNachHinten();
        m_grid->setTopRow(1);
        m_grid->setRow(0);
        SortierungAktiv = false;
    });
}

void Relationen::grid_MouseMove() {
    m_grid->setToolTip(m_grid->MouseRow() == 0 ? uiText(u"Klicken, um nach dieser Spalte zu Sortieren"_s,
                                                        u"Click to sort by this column"_s)
                                               : QString());
}

void showReferences(FormContext& context, const Liste& list, QWidget* parent) {
    trapped(context.prompts, [&] {
        Relationen dialog(context, list, parent);
        if (dialog.Form_Load())
            context.prompts.exec(dialog);
    });
}

} // namespace lingomat
