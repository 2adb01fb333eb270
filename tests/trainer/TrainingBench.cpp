#include "TrainingBench.h"

#include "CDBCreator.h"
#include "DBEngine.h"
#include "Globals.h"

#include <QLineEdit>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Number of the button that sets a member; 0: there is none.
int optionNumber(const char* name) {
    static const QHash<QByteArray, int> numbers{
        {"Reihenfolge_sequentiell", 1},
        {"Reihenfolge_shuffle", 2},
        {"Reihenfolge_random", 3},
        {"Lang1Zuerst", 5},
        {"Lang2Zuerst", 6},
        {"Selbsttest", 8},
        {"Schleife", 9},
        {"Schreiben", 10},
        {"FehlerBestaetigen", 11},
        {"MainOnly", 12},
    };
    return numbers.value(name);
}

} // namespace

TrainingBench::TrainingBench(int entries, const QString& language)
    : context(language),
      list(context.forms),
      trainer(context.forms, list),
      grid(child<FlexGrid>(trainer, "VokabelnGrid")) {
    context.state.Lang1Name = u"German"_s;
    context.state.Lang2Name = u"English"_s;
    list.Form_Load();
    trainer.Form_Load();
    setEntries(entries);
}

void TrainingBench::setEntries(int count) {
    FlexGrid& rows = list.MSFlexGrid1();
    rows.setRows(1);
    for (int entry = 1; entry <= count; ++entry)
        rows.AddItem(u"\t%1\tWort %1\tword %1"_s.arg(entry));
    trainer.Command6_Click();
}

void TrainingBench::draw(const QList<int>& entries) {
    QList<double> draws;
    for (const int entry : entries)
        draws += (entry - 0.5) / trainer.AnzahlEintraege;
    context.random.setDraws(draws);
}

void TrainingBench::choose(const char* name) {
    if (optionNumber(name) > 0)
        option(name).click();
    else
        action(name).trigger();
}

void TrainingBench::expectEnd() {
    context.prompts.expect({.text = uiText(u"Die Sequenz ist beendet."_s, u"End of sequence."_s)});
}

void TrainingBench::openFile() {
    SharedState& state = context.state;
    CDBCreator creator({[](const QString&) {},
                        [](const QString& text) { throw std::runtime_error(text.toStdString()); }, [] {}});
    state.DBHandler.Database = creator.CreateNewDatabase(filePath(), true, state);
    if (!state.DBHandler.OpenAllRecordsets())
        throw std::runtime_error("the file did not open");
    state.CurrentDBPath = filePath();
}

void TrainingBench::openFileWith(int entries) {
    openFile();
    for (int entry = 1; entry <= entries; ++entry)
        addEntry({{context.state.Lang1MainField, u"Wort %1"_s.arg(entry)},
                  {context.state.Lang2MainField, u"word %1"_s.arg(entry)},
                  {u"Score"_s, 3}});
    listEntries();
}

QString TrainingBench::addEntry(const Fields& fields) {
    const SharedState& state = context.state;
    Fields row{{state.Lang1PrefixField, QString()},  {state.Lang1MainField, QString()},
               {state.Lang1SuffixField, QString()},  {state.Lang1KommentarField, QString()},
               {state.Lang2PrefixField, QString()},  {state.Lang2MainField, QString()},
               {state.Lang2SuffixField, QString()},  {state.Lang2KommentarField, QString()},
               {u"Aenderungsdatum"_s, u"20010105"_s}};
    row.insert(fields);
    dao::Recordset& entries = context.state.DBHandler.RecordsetVokabular;
    addRow(entries, row);
    entries.setBookmark(entries.LastModified());
    return entries.field(u"ID"_s).toText();
}

QString TrainingBench::addEntry(const QString& main1, const QString& main2) {
    return addEntry({{context.state.Lang1MainField, main1}, {context.state.Lang2MainField, main2}});
}

void TrainingBench::addSynonym(const QString& id, int language, const QString& main, const QString& prefix) {
    addRow(context.state.DBHandler.RecordsetSynonyme, {{u"VID"_s, id.toInt()},
                                                       {u"Sprache"_s, language},
                                                       {u"Prefix"_s, prefix},
                                                       {u"Main"_s, main},
                                                       {u"Suffix"_s, QString()},
                                                       {u"Kommentar"_s, QString()}});
}

void TrainingBench::addReference(const QString& from, const QString& to, const QString& type) {
    addRow(context.state.DBHandler.RecordsetReferenzen,
           {{u"von"_s, from.toInt()}, {u"nach"_s, to.toInt()}, {u"Typ"_s, type}});
}

void TrainingBench::addRow(dao::Recordset& table, const Fields& fields) {
    table.AddNew();
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        table.setField(field.key(), field.value());
    table.Update();
}

void TrainingBench::listEntries() {
    const auto none = [](const QString&) { return QString(); };
    dao::Recordset& entries = context.state.DBHandler.RecordsetAuswahl;
    entries.Requery();
    list.MSFlexGrid1().setRows(1);
    for (; !entries.EOF_(); entries.MoveNext()) {
        list.MSFlexGrid1().AddItem({});
        (void)list.ZeileAusDatensatz(list.MSFlexGrid1().Rows() - 1, true, {none, none, none});
    }
    trainer.OptionsToUI();
    trainer.Command6_Click();
}

QString TrainingBench::stored(int row, const QString& field) const {
    dao::Database file = dao::DBEngine::OpenDatabase(filePath());
    dao::Recordset entries = file.OpenRecordset(u"SELECT * FROM Vokabular"_s);
    for (int skipped = 1; skipped < row; ++skipped)
        entries.MoveNext();
    return entries.field(field).toText(QString());
}

void TrainingBench::beginTyping() {
    trainer.Selbsttest = true;
    trainer.Schreiben = true;
    trainer.OptionsToUI();
}

void TrainingBench::willType(const QString& answer) {
    context.prompts.expectDialog("InputFenster", [answer](QDialog& form) {
        child<QLineEdit>(form, "Text1").setText(answer);
        child<QPushButton>(form, "OK").click();
    });
}

void TrainingBench::willConfirm(bool known) {
    context.prompts.expectDialog("ConfirmDlg", [known](QDialog& form) {
        child<QPushButton>(form, known ? "JaButton" : "NeinButton").click();
    });
}

void TrainingBench::type(const QString& answer) {
    willType(answer);
    step();
}

QString TrainingBench::panel(int number) const {
    return child<QLabel>(trainer, u"StatusBar1_Panel%1"_s.arg(number)).text();
}

QToolButton& TrainingBench::option(int number) {
    return child<QToolButton>(trainer, u"Toolbar1_Button%1"_s.arg(number));
}

QToolButton& TrainingBench::option(const char* name) {
    return option(optionNumber(name));
}

} // namespace lingomat
