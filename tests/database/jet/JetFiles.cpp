#include "JetFiles.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QStringList filesIn(const QString& folder) {
    return QDir(jetFile(folder)).entryList({u"*.mdb"_s, u"*.lmt"_s}, QDir::Files, QDir::Name);
}

} // namespace

QString jetFile(const QString& name) {
    return QStringLiteral(JET_FILES) + u'/' + name;
}

QStringList soundJetFiles() {
    return filesIn(u"."_s);
}

QStringList damagedJetFiles() {
    return filesIn(u"damaged"_s).replaceInStrings(QRegularExpression(u"^"_s), u"damaged/"_s);
}

QByteArray jetBytes(const QString& name) {
    QFile file(jetFile(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + name.toStdString());
    return file.readAll();
}

JetContents jetContents(const QString& name) {
    const QJsonObject told = QJsonDocument::fromJson(jetBytes(name + u".json"_s)).object();
    JetContents contents{
        .version = told[u"version"].toInt(), .properties = told[u"properties"].toObject(), .tables = {}};
    const QJsonObject tables = told[u"tables"].toObject();
    for (auto table = tables.begin(); table != tables.end(); ++table) {
        JetTable& each = contents.tables[table.key()];
        each.columns = table.value()[u"columns"].toArray();
        const QJsonArray rows = table.value()[u"rows"].toArray();
        for (const auto& row : rows)
            each.rows.append(row.toArray());
    }
    return contents;
}

QString rowText(const QJsonArray& row) {
    return QString::fromUtf8(QJsonDocument(row).toJson(QJsonDocument::Compact));
}

QStringList rowTexts(const QList<QJsonArray>& rows) {
    QStringList texts;
    for (const QJsonArray& row : rows)
        texts.append(rowText(row));
    texts.sort();
    return texts;
}

} // namespace lingomat
