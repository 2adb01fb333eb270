#include "StoredList.h"

using namespace Qt::StringLiterals;

namespace lingomat {

StoredList::StoredList(const QString& language) : ListBench(language) {
    openDatabase();
    list.Form_Load();
}

void StoredList::fill(const QStringList& texts) {
    for (const QString& text : texts)
        addEntry({{u"Lang1_Main"_s, text}});
    listEverything();
}

void StoredList::listEverything() {
    list.initialisiereListe();
    dao::Recordset& entries = selection();
    entries.Requery();
    for (; !entries.EOF_(); entries.MoveNext())
        (void)fillRow();
    context.state.SelectionValid = list.countRows() > 0;
    list.ConditionToUI();
}

void StoredList::change(int row, int column, const QString& text) {
    grid.setRow(row);
    grid.setCol(column);
    grid.setText(text);
    list.ZeileGeaendert();
}

int StoredList::addNew(int column, const QString& text) {
    list.Command3_Click();
    grid.setTextMatrix(grid.Row(), column, text);
    return grid.Row();
}

void StoredList::remove(int row) {
    grid.setRow(row);
    grid.setCol(Liste::ColSprache1);
    list.Command4_Click();
}

QStringList StoredList::storedMains() const {
    return stored("SELECT Lang1_Main FROM Vokabular ORDER BY ID");
}

QStringList StoredList::keys() {
    QStringList all;
    for (int row = 1; row < grid.Rows(); ++row)
        all << cell(row, Liste::ColSchluessel);
    return all;
}

} // namespace lingomat
