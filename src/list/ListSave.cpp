#include "ListSave.h"

#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "KeptCell.h"
#include "ListColumns.h"
#include "PackedList.h"
#include "SharedState.h"
#include "StoredDate.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

using Column = ListColumnNumbers;

struct TextField {
    int column;
    const char16_t* field;
};

constexpr TextField textFields[] = {
    {Column::ColWortart, u"wortart"},
    {Column::ColBeispielsatz, u"Beispielsatz"},
    {Column::ColZusatzinfo, u"Zusatzinfo"},
    {Column::ColQuelle, u"Quelle"},
};

std::array<QString, 8> expressionFields(const LanguageFields& names) {
    return {names.Lang1PrefixField, names.Lang1MainField, names.Lang1SuffixField, names.Lang1KommentarField,
            names.Lang2PrefixField, names.Lang2MainField, names.Lang2SuffixField, names.Lang2KommentarField};
}

} // namespace

ListSave::ListSave(FormContext& context, FlexGrid& grid) : m_context(context), m_grid(grid) {}

dao::Recordset& ListSave::entries() const {
    return m_context.state.DBHandler.RecordsetVokabular;
}

bool ListSave::findEntry(qint16 id) {
    entries().FindFirst(u"Vokabular.ID LIKE '%1'"_s.arg(id));
    return !entries().EOF_() && !entries().NoMatch();
}

qint16 ListSave::DeleteOneRow(qint16 id) {
    qint16 result = 0;
    trapped(m_context.prompts, [&] {
        if (!findEntry(id))
            return;
        entries().Edit();
        m_context.state.DBHandler.DeleteRelationalEntriesForID(id);
        entries().Delete();
        result = id;
    });
    return result;
}

qint16 ListSave::UpdateOneRow(qint16 id) {
    qint16 result = 0;
    trapped(m_context.prompts, [&] {
        // The record found before is still the current one where this one has gone: not to be written over.
        if (!findEntry(id))
            throw dao::Error(dao::ErrorNumber::NoCurrentRecord, u"No current record."_s);
        entries().Edit();
        const KeptCell kept(m_grid);
        m_grid.setRow(rowOf(id));
        schreibeGridToDB();
        setzeZeit(u"Aenderungsdatum"_s, Column::ColAenderungsdatum);
        entries().Update();
        result = id;
    });
    return result;
}

/// A search through the list for each entry would cost the product of the two.
int ListSave::rowOf(qint16 id) {
    if (!m_rows) {
        m_rows.emplace();
        m_rows->reserve(m_grid.Rows());
        for (int row = m_grid.Rows() - 1; row >= 1; --row)
            m_rows->insert(m_grid.TextMatrix(row, Column::ColSchluessel), row);
    }
    const auto found = m_rows->constFind(QString::number(id));
    if (found == m_rows->cend())
        throw dao::Error(dao::ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
    return *found;
}

void ListSave::AddNewRows(int count, const std::function<void(int)>& added) {
    const KeptCell kept(m_grid);
    int done = 0;
    for (int row = m_grid.Rows() - 1; row >= 1 && done < count; --row) {
        if (m_grid.TextMatrix(row, Column::ColSchluessel) != u"*"_s)
            continue;
        // A row that fails is told to the user and keeps none of the others from the file.
        trapped(m_context.prompts, [&] {
            added(done);
            m_grid.setRow(row);
            addCurrentRow();
            ++done;
        });
    }
}

void ListSave::addCurrentRow() {
    entries().AddNew();
    schreibeGridToDB();
    setzeZeit(u"Eingabedatum"_s, Column::ColEingabedatum);
    setzeZeit(u"Aenderungsdatum"_s, Column::ColAenderungsdatum);
    entries().Update();
    entries().MoveLast();
    m_grid.setTextMatrix(m_grid.Row(), Column::ColSchluessel, entries().field(0).toText());
}

QString ListSave::currentText(int column) const {
    return m_grid.TextMatrix(m_grid.Row(), column);
}

/// The text of a cell, none for the mark of a missing value.
QString ListSave::valueOf(int column) const {
    const QString text = currentText(column);
    return text == KeinEintrag ? QString() : text;
}

void ListSave::schreibeGridToDB() {
    trapped(m_context.prompts, [this] {
        int column = Column::ColPrefix1;
        for (const QString& field : expressionFields(m_context.state))
            entries().setField(field, currentText(column++));
        for (const TextField& text : textFields)
            entries().setField(QString::fromUtf16(text.field), valueOf(text.column));

        CDBHandler& session = m_context.state.DBHandler;
        const auto write = [&](int packed, dao::Recordset& list, dao::Recordset& links) {
            return session.SchreibeArrayToDB(valueOf(packed), list, links, entries());
        };
        (void)(write(Column::ColGrammatikalisch, session.RecordsetGrammatikalisch,
                     session.RecordsetGrammatikalisch_Z) &&
               write(Column::ColFunktional, session.RecordsetFunktional, session.RecordsetFunktional_Z) &&
               write(Column::ColBereich, session.RecordsetBereiche, session.RecordsetBereiche_Z));
    });
}

void ListSave::setzeZeit(const QString& field, int column) {
    trapped(m_context.prompts, [&] {
        const QString stored = storedDate(m_context.today());
        const int keyColumn = field == u"Eingabedatum"_s ? Column::ColEingabeKey : Column::ColAenderungKey;
        m_grid.setTextMatrix(m_grid.Row(), column, FormatDatum(stored));
        m_grid.setTextMatrix(m_grid.Row(), keyColumn, stored);
        entries().setField(field, stored);
    });
}

// Links

bool ListSave::removeLinks(dao::Recordset& links) {
    return trapped(m_context.prompts,
                   [&] { m_context.state.DBHandler.EntferneAllArraysForCurrent(links, entries()); });
}

bool ListSave::addLink(const QString& attribute, dao::Recordset& list, dao::Recordset& links) {
    return trapped(m_context.prompts, [&] {
        m_context.state.DBHandler.SchreibeArrayItemToDB(attribute, list, links, entries());
    });
}

bool ListSave::EntferneAllGrammatischesForCurrent() {
    return removeLinks(m_context.state.DBHandler.RecordsetGrammatikalisch_Z);
}

bool ListSave::EntferneAllFunktionalesForCurrent() {
    return removeLinks(m_context.state.DBHandler.RecordsetFunktional_Z);
}

bool ListSave::EntferneAllBereicheForCurrent() {
    return removeLinks(m_context.state.DBHandler.RecordsetBereiche_Z);
}

void ListSave::SchreibeGrammatikalischeAttributeFromGridToDB(const QString& packed) {
    EntferneAllGrammatischesForCurrent();
    for (const QString& attribute : splitPacked(packed))
        SchreibeGrammatikalischesToDB(attribute);
}

void ListSave::SchreibeFunktionaleAttributeFromGridToDB(const QString& packed) {
    EntferneAllFunktionalesForCurrent();
    for (const QString& attribute : splitPacked(packed))
        SchreibeFunktionalesToDB(attribute);
}

bool ListSave::SchreibeGrammatikalischesToDB(const QString& attribute) {
    CDBHandler& session = m_context.state.DBHandler;
    return addLink(attribute, session.RecordsetGrammatikalisch, session.RecordsetGrammatikalisch_Z);
}

bool ListSave::SchreibeFunktionalesToDB(const QString& attribute) {
    CDBHandler& session = m_context.state.DBHandler;
    return addLink(attribute, session.RecordsetFunktional, session.RecordsetFunktional_Z);
}

} // namespace lingomat
