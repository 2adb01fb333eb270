#include "ListBench.h"

#include "CDBCreator.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

ListBench::ListBench(const QString& language)
    : context(language), list(context.forms), grid(list.MSFlexGrid1()) {}

void ListBench::openDatabase() {
    SharedState& state = context.state;
    state.Lang1Name = u"German"_s;
    state.Lang2Name = u"English"_s;
    CDBCreator creator({[](const QString&) {},
                        [](const QString& text) { throw std::runtime_error(text.toStdString()); }, [] {}});
    const QString path = context.path(u"list.lmt"_s);
    state.DBHandler.Database = creator.CreateNewDatabase(path, true, state);
    if (!state.DBHandler.OpenAllRecordsets())
        throw std::runtime_error("the file did not open");
    state.CurrentDBPath = path;
}

QString ListBench::addEntry(const Fields& fields) {
    const SharedState& state = context.state;
    Fields row{{state.Lang1PrefixField, QString()}, {state.Lang1MainField, QString()},
               {state.Lang1SuffixField, QString()}, {state.Lang1KommentarField, QString()},
               {state.Lang2PrefixField, QString()}, {state.Lang2MainField, QString()},
               {state.Lang2SuffixField, QString()}, {state.Lang2KommentarField, QString()}};
    row.insert(fields);
    CDBHandler& session = context.state.DBHandler;
    addRow(session.RecordsetVokabular, row);
    session.RecordsetVokabular.setBookmark(session.RecordsetVokabular.LastModified());
    const QString id = session.RecordsetVokabular.field(u"ID"_s).toText();
    session.RecordsetSuche.Requery();
    session.RecordsetAuswahl.Requery();
    return id;
}

void ListBench::addRow(dao::Recordset& table, const Fields& fields) {
    table.AddNew();
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        table.setField(field.key(), field.value());
    table.Update();
}

void ListBench::select(const QString& statement) {
    selection() = context.state.DBHandler.Database.OpenRecordset(statement);
    selection().MoveFirst();
}

bool ListBench::fillRow(const EntryLookups& lookups) {
    grid.AddItem(QString());
    return list.ZeileAusDatensatz(grid.Rows() - 1, true, lookups);
}

void ListBench::addPlainRow(const QString& key) {
    grid.AddItem(u"\t"_s + key);
}

EntryLookups ListBench::emptyLookups() {
    const auto none = [](const QString&) { return QString(); };
    return {none, none, none};
}

} // namespace lingomat
