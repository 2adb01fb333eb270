#include "EngineTest.h"

#include "FastFolder.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace dao {

EngineTest::EngineTest()
    : m_folder(fastFolder()), database(DBEngine::Workspaces(0).CreateDatabase(file(), u";LANGID=0x0409"_s)) {
    database.appendTable(wortTable());
    database.appendTable(linkTable());
}

QByteArray EngineTest::bytes(const QString& name) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

void EngineTest::write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    file.write(content);
}

QStringList EngineTest::files() const {
    return QDir(m_folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void EngineTest::addWords(const QStringList& texts) {
    Recordset recordset = words();
    for (const QString& text : texts) {
        recordset.AddNew();
        recordset.setField(u"Main"_s, text);
        recordset.Update();
    }
}

void EngineTest::addLink(int entry, int item) {
    Recordset recordset = links();
    recordset.AddNew();
    recordset.setField(0, entry);
    recordset.setField(1, item);
    recordset.Update();
}

QString EngineTest::stored() const {
    return RawFile(file()).lines(u"SELECT Main FROM Wort ORDER BY ID"_s).join(u' ');
}

TableDef EngineTest::wortTable() {
    return {u"Wort"_s,
            {
                {u"ID"_s, DataType::Long, 4, dbAutoIncrField, {}, false},
                {u"Main"_s, DataType::Text, 10, 0, {}, true},
                {u"Typ"_s, DataType::Text, 5, 0, u"neu"_s, false},
                {u"Score"_s, DataType::Integer, 2, 0, 6, false},
                {u"VID"_s, DataType::Long, 4, 0, QString(), false},
            },
            {{u"ID"_s, u"ID"_s, true, true}},
            {}};
}

TableDef EngineTest::linkTable() {
    return {u"Link"_s,
            {
                {u"IDV"_s, DataType::Long, 4, 0, {}, false},
                {u"ID"_s, DataType::Long, 4, 0, {}, false},
            },
            {{u"IDV"_s, u"IDV"_s, true, false}},
            {}};
}

QString main(const Recordset& recordset) {
    return recordset.field(u"Main"_s).toText(u"NULL"_s);
}

QString walk(Recordset& recordset) {
    QStringList result;
    if (recordset.RecordCount() > 0)
        recordset.MoveFirst();
    for (; !recordset.EOF_(); recordset.MoveNext())
        result.append(main(recordset));
    return result.join(u' ');
}

QString findAll(Recordset& recordset, const QString& criterion) {
    QStringList result;
    for (recordset.FindFirst(criterion); !recordset.NoMatch(); recordset.FindNext(criterion))
        result.append(main(recordset));
    return result.join(u' ');
}

} // namespace dao
