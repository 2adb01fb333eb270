#include "ConvertSupport.h"

#include "DBEngine.h"
#include "Progress.h"

#include <QApplication>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

const Progress* progressOnScreen() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows)
        if (const auto* progress = qobject_cast<const Progress*>(window); progress && progress->isVisible())
            return progress;
    return nullptr;
}

QJsonValue toJson(const dao::Value& value) {
    if (value.isNull())
        return {};
    return value.isInteger() ? QJsonValue(value.toInteger()) : QJsonValue(value.toText());
}

dao::TableDef oldTable(const OldDatabase& wanted) {
    using dao::DataType;
    dao::TableDef table{.Name = u"Vokabular"_s, .Fields = {}, .Indexes = {}, .Properties = {}};
    const auto add = [&](const QString& name, DataType type = DataType::Text) {
        if (!wanted.missingFields.contains(name))
            table.Fields.append({name, type, 255, name == u"ID"_s ? dao::dbAutoIncrField : 0, {}, true});
    };
    add(u"ID"_s, DataType::Long);
    for (const auto& name : {u"Quelle"_s, u"Eingabedatum"_s, u"Aenderungsdatum"_s, u"Beispielsatz"_s})
        add(name);
    for (const QString& prefix : {wanted.prefix1, wanted.prefix2})
        for (const auto& part : {u"_Prefix"_s, u"_Main"_s, u"_Suffix"_s, u"_Kommentar"_s})
            add(prefix + part);
    add(u"Score"_s, DataType::Integer);
    for (const auto& name : {u"Zusatzinfo"_s, u"Wortart"_s, u"Bereich"_s})
        add(name);
    for (const QString& name : wanted.extraFields)
        add(name);
    if (!wanted.languages.isNull())
        table.Properties.append({u"Languages"_s, DataType::Text, wanted.languages});
    if (wanted.version != 0)
        table.Properties.append({u"DBVersion"_s, DataType::Integer, wanted.version});
    return table;
}

} // namespace

QMessageBox::StandardButton ConvertingPrompts::message(QWidget*, const Message& message) {
    if (message.text.contains(u"mdb-Format"_s, Qt::CaseInsensitive)) {
        ++questions;
        return QMessageBox::Yes;
    }
    texts.append(message.text);
    const Progress* const progress = progressOnScreen();
    statusAtMessage = progress == nullptr ? QString() : progress->status();
    rowsAtMessage = progress == nullptr ? 0 : progress->maximum();
    return message.buttons.testFlag(QMessageBox::Cancel) ? overwrite : QMessageBox::Ok;
}

std::optional<QString> ConvertingPrompts::saveFile(QWidget*, const FileDialogRequest&) {
    if (otherNames.empty())
        return newFile.isEmpty() ? std::nullopt : std::optional(newFile);
    const QString name = otherNames.front();
    otherNames.pop_front();
    return name;
}

void writeOldDatabase(const QString& path, const OldDatabase& wanted) {
    dao::Database database = dao::DBEngine::Workspaces(0).CreateDatabase(path, QString());
    database.appendTable(oldTable(wanted));
    {
        const dao::WriteBurst burst(database);
        dao::Recordset rows = database.OpenRecordset(u"SELECT * FROM Vokabular"_s);
        for (const OldRow& row : wanted.rows) {
            rows.AddNew();
            for (auto field = row.begin(); field != row.end(); ++field)
                rows.setField(field.key(), field.value());
            rows.Update();
        }
    }
    database.Close();
}

QStringList tableRows(const QString& path, const QString& table) {
    const dao::Database database = dao::DBEngine::OpenDatabase(path);
    dao::Recordset rows = database.OpenRecordset("SELECT * FROM "_L1 + table);
    QStringList texts;
    for (; !rows.EOF_(); rows.MoveNext()) {
        QJsonArray fields;
        for (int i = 0; i < rows.fieldCount(); ++i)
            fields.append(toJson(rows.field(i)));
        texts.append(rowText(fields));
    }
    return texts;
}

QHash<qint64, QString> areasOfEntries(const QString& path) {
    const dao::Database database = dao::DBEngine::OpenDatabase(path);
    dao::Recordset list = database.OpenRecordset(u"SELECT * FROM Bereiche"_s);
    QHash<qint64, QString> names;
    for (; !list.EOF_(); list.MoveNext())
        names.insert(list.field(0).toInteger(), list.field(1).toText());
    dao::Recordset links = database.OpenRecordset(u"SELECT * FROM Bereiche_Zwischen"_s);
    QHash<qint64, QString> areas;
    for (; !links.EOF_(); links.MoveNext())
        areas[links.field(0).toInteger()] += names.value(links.field(1).toInteger()) + u'|';
    return areas;
}

} // namespace lingomat
