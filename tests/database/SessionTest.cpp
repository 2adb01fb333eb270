#include "SessionTest.h"

#include "FastFolder.h"

using namespace Qt::StringLiterals;

namespace lingomat {

dao::Database createDatabase(const QString& path, const QString& language1, const QString& language2) {
    LanguageFields languages;
    languages.Lang1Name = language1;
    languages.Lang2Name = language2;
    CDBCreator creator({
        [](const QString& name) { ADD_FAILURE() << "exists: " << name.toStdString(); },
        [](const QString& description) { ADD_FAILURE() << description.toStdString(); },
        [] { ADD_FAILURE() << "internal error"; },
    });
    return creator.CreateNewDatabase(path, true, languages);
}

SessionTest::SessionTest()
    : m_folder(dao::fastFolder()),
      handler([this](const QString& description) { reports.append(description); }) {
    handler.Database = createDatabase(file(), u"Deutsch"_s, u"Englisch"_s);
    EXPECT_TRUE(handler.OpenAllRecordsets());
}

void SessionTest::reopenAfter(const QString& sql) {
    handler.Database.Close();
    dao::RawFile(file()).run(sql);
    handler.Database = dao::DBEngine::OpenDatabase(file());
}

int SessionTest::addEntry(const QString& text) {
    dao::Recordset& rows = handler.RecordsetVokabular;
    rows.AddNew();
    rows.setField(u"Lang1_Main"_s, text);
    rows.Update();
    rows.setBookmark(rows.LastModified());
    return static_cast<int>(rows.field(u"ID"_s).toInteger());
}

void SessionTest::addRow(dao::Recordset& recordset, int firstField, const QList<dao::Value>& values) {
    recordset.AddNew();
    for (const dao::Value& value : values)
        recordset.setField(firstField++, value);
    recordset.Update();
}

} // namespace lingomat
