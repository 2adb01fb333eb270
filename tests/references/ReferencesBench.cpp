#include "ReferencesBench.h"

#include "CDBCreator.h"
#include "DBEngine.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

ReferencesBench::ReferencesBench(const QString& language)
    : context(language), list(context.forms), grid(list.MSFlexGrid1()), path(context.path(u"words.lmt"_s)) {
    SharedState& state = context.state;
    state.Lang1Name = u"German"_s;
    state.Lang2Name = u"English"_s;
    CDBCreator creator({[](const QString&) {},
                        [](const QString& text) { throw std::runtime_error(text.toStdString()); }, [] {}});
    state.DBHandler.Database = creator.CreateNewDatabase(path, true, state);
    if (!state.DBHandler.OpenAllRecordsets())
        throw std::runtime_error("the file did not open");
    state.CurrentDBPath = path;
    list.Form_Load();
}

QString ReferencesBench::add(const QString& main1, const QString& main2, const Fields& fields) {
    const SharedState& state = context.state;
    Fields row{{state.Lang1PrefixField, QString()}, {state.Lang1MainField, main1},
               {state.Lang1SuffixField, QString()}, {state.Lang1KommentarField, QString()},
               {state.Lang2PrefixField, QString()}, {state.Lang2MainField, main2},
               {state.Lang2SuffixField, QString()}, {state.Lang2KommentarField, QString()}};
    row.insert(fields);
    addRow(session().RecordsetVokabular, row);
    session().RecordsetVokabular.setBookmark(session().RecordsetVokabular.LastModified());
    const QString id = session().RecordsetVokabular.field(u"ID"_s).toText();
    session().RecordsetSuche.Requery();
    grid.AddItem(u"\t"_s + id + u'\t' + main1 + u'\t' + main2);
    return id;
}

void ReferencesBench::addNewRow() {
    grid.AddItem(u"\t*\tneu\tnew"_s);
    grid.setRow(grid.Rows() - 1);
    grid.setCol(Liste::ColSprache1);
}

void ReferencesBench::addReference(const QString& von, const QString& nach, const QString& type) {
    addRow(session().RecordsetReferenzen,
           {{u"von"_s, von.toInt()}, {u"nach"_s, nach.toInt()}, {u"Typ"_s, type}});
}

void ReferencesBench::addSynonym(const QString& vid, int language, const QString& main) {
    addRow(session().RecordsetSynonyme,
           {{u"VID"_s, vid.toInt()}, {u"Sprache"_s, language}, {u"Main"_s, main}});
}

void ReferencesBench::addRow(dao::Recordset& table, const Fields& fields) {
    table.AddNew();
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        table.setField(field.key(), field.value());
    table.Update();
}

void ReferencesBench::deleteEntry(const QString& id) {
    dao::Recordset& entries = session().RecordsetVokabular;
    entries.FindFirst(u"ID="_s + id);
    entries.Edit();
    entries.Delete();
}

void ReferencesBench::goTo(const QString& id, int column) {
    for (int row = 1; row < grid.Rows(); ++row) {
        if (grid.TextMatrix(row, 1) != id)
            continue;
        grid.setRow(row);
        grid.setCol(column);
        return;
    }
    throw std::runtime_error("the list has no entry " + id.toStdString());
}

QStringList ReferencesBench::storedReferences() const {
    QStringList all;
    dao::Database file = dao::DBEngine::OpenDatabase(path);
    dao::Recordset table = file.OpenRecordset(u"SELECT * FROM Referenzen"_s);
    for (; !table.EOF_(); table.MoveNext())
        all << table.field(u"von"_s).toText() + u'>' + table.field(u"nach"_s).toText() + u' ' +
                   table.field(u"Typ"_s).toText();
    return all;
}

QStringList ReferencesBench::storedSynonyms() const {
    QStringList all;
    dao::Database file = dao::DBEngine::OpenDatabase(path);
    dao::Recordset table = file.OpenRecordset(u"SELECT * FROM Synonyme"_s);
    for (; !table.EOF_(); table.MoveNext()) {
        const auto text = [&table](const QString& field) { return table.field(field).toText(QString()); };
        all << u"%1/%2 "_s.arg(text(u"VID"_s), text(u"Sprache"_s)) +
                   QStringList{text(u"Prefix"_s), text(u"Main"_s), text(u"Suffix"_s), text(u"Kommentar"_s)}
                       .join(u'|');
    }
    return all;
}

} // namespace lingomat
