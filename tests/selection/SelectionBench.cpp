#include "SelectionBench.h"

#include "CDBCreator.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

SelectionBench::SelectionBench(const QString& language)
    : context(language),
      list(context.forms),
      trainer(context.forms, list),
      form(context.forms, list, trainer) {}

void SelectionBench::openDatabase() {
    SharedState& state = context.state;
    state.Lang1Name = u"German"_s;
    state.Lang2Name = u"English"_s;
    CDBCreator creator({[](const QString&) {},
                        [](const QString& text) { throw std::runtime_error(text.toStdString()); }, [] {}});
    const QString path = context.path(u"selection.lmt"_s);
    state.DBHandler.Database = creator.CreateNewDatabase(path, true, state);
    if (!state.DBHandler.OpenAllRecordsets())
        throw std::runtime_error("the file did not open");
    state.CurrentDBPath = path;
}

QString SelectionBench::add(const Entry& entry) {
    const SharedState& state = context.state;
    CDBHandler& session = context.state.DBHandler;
    Fields row{{state.Lang1PrefixField, QString()}, {state.Lang1MainField, entry.main1},
               {state.Lang1SuffixField, QString()}, {state.Lang1KommentarField, QString()},
               {state.Lang2PrefixField, QString()}, {state.Lang2MainField, QString()},
               {state.Lang2SuffixField, QString()}, {state.Lang2KommentarField, QString()},
               {u"Eingabedatum"_s, u"20010105"_s},  {u"Aenderungsdatum"_s, u"20010105"_s}};
    row.insert(entry.fields);
    addRow(session.RecordsetVokabular, row);
    session.RecordsetVokabular.setBookmark(session.RecordsetVokabular.LastModified());
    const QString id = session.RecordsetVokabular.field(u"ID"_s).toText();
    link(id, entry.bereiche, session.RecordsetBereiche, u"Bereich_Text"_s, u"ID"_s,
         session.RecordsetBereiche_Z);
    link(id, entry.grammatikalisch, session.RecordsetGrammatikalisch, u"Attribut_Text"_s, u"IDA"_s,
         session.RecordsetGrammatikalisch_Z);
    link(id, entry.funktional, session.RecordsetFunktional, u"Attribut_Text"_s, u"IDA"_s,
         session.RecordsetFunktional_Z);
    return id;
}

void SelectionBench::link(const QString& id, const QStringList& values, dao::Recordset& table,
                          const QString& textField, const QString& keyField, dao::Recordset& links) {
    for (const QString& value : values) {
        table.FindFirst(textField + u"='"_s + value + u'\'');
        if (table.NoMatch()) {
            addRow(table, {{textField, value}});
            table.setBookmark(table.LastModified());
        }
        addRow(links, {{u"IDV"_s, id.toInt()}, {u"ID"_s, table.field(keyField)}});
    }
}

void SelectionBench::addReference(const QString& von, const QString& nach, const QString& type) {
    addRow(context.state.DBHandler.RecordsetReferenzen,
           {{u"von"_s, von.toInt()}, {u"nach"_s, nach.toInt()}, {u"Typ"_s, type}});
}

void SelectionBench::addRow(dao::Recordset& table, const Fields& fields) {
    table.AddNew();
    for (auto field = fields.cbegin(); field != fields.cend(); ++field)
        table.setField(field.key(), field.value());
    table.Update();
}

void SelectionBench::load() {
    if (selection().isOpen()) {
        selection().Requery();
        context.state.DBHandler.RecordsetSuche.Requery();
    }
    list.Form_Load();
    trainer.Form_Load();
    form.Form_Load();
}

void SelectionBench::loadWith(const QList<Entry>& entries) {
    openDatabase();
    for (const Entry& entry : entries)
        add(entry);
    load();
}

QStringList SelectionBench::listed() {
    QStringList texts;
    for (int row = 1; row < list.MSFlexGrid1().Rows(); ++row)
        texts.append(cell(row, Liste::ColHaupt1));
    return texts;
}

QString SelectionBench::statusText() {
    return child<QStatusBar>(form, "StatusBar1").currentMessage();
}

void SelectionBench::click(const char* button) {
    child<QPushButton>(form, button).click();
}

void SelectionBench::trigger(const char* menuEntry) {
    child<QAction>(form, menuEntry).trigger();
}

void SelectionBench::type(const char* box, const QString& text) {
    auto& edit = child<QLineEdit>(form, box);
    edit.selectAll();
    edit.insert(text);
}

QString SelectionBench::text(const char* box) {
    return child<QLineEdit>(form, box).text();
}

QStringList SelectionBench::items(const QString& name) {
    const QListWidget& box = listBox(name);
    QStringList texts;
    for (int row = 0; row < box.count(); ++row)
        texts.append(box.item(row)->text());
    return texts;
}

void SelectionBench::choose(const QString& kind, const QStringList& values) {
    static const QHash<QString, const char*> entries{
        {u"Quelle"_s, "mnQuelle"},         {u"Bereich"_s, "mnBereich"},
        {u"Wortart"_s, "mnWortart"},       {u"Grammatikalisch"_s, "mnGrammatikalisch"},
        {u"Funktional"_s, "mnFunktional"}, {u"Referenzen"_s, "mnRelationen"},
    };
    trigger(entries.value(kind));
    QListWidget& left = listBox(u"lst"_s + kind + u"Links"_s);
    for (const QString& value : values) {
        const auto found = left.findItems(value, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (found.isEmpty())
            throw std::runtime_error("not offered: " + value.toStdString());
        left.setCurrentItem(found.first());
        click("cmdAdd");
    }
}

void SelectionBench::selectTab(int number) {
    child<QTabBar>(form, "tbsOptions").setCurrentIndex(number - 1);
}

} // namespace lingomat
