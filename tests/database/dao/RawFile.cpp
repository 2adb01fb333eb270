#include "RawFile.h"

#include "Sqlite.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace dao {

void RawFile::Closer::operator()(sqlite3* handle) const {
    sqlite3_close_v2(handle);
}

RawFile::RawFile(const QString& path) {
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(path.toUtf8().constData(), &raw, SQLITE_OPEN_READWRITE, nullptr);
    m_handle.reset(raw);
    EXPECT_EQ(code, SQLITE_OK) << path.toStdString();
    registerTextRules(raw);
}

bool RawFile::tryRun(const QString& sql) {
    return sqlite3_exec(m_handle.get(), sql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

void RawFile::run(const QString& sql) {
    EXPECT_TRUE(tryRun(sql)) << sql.toStdString() << ": " << sqlite3_errmsg(m_handle.get());
}

std::vector<QStringList> RawFile::rows(const QString& sql) {
    std::vector<QStringList> result;
    Statement statement(m_handle.get(), sql.toUtf8());
    while (statement.step()) {
        QStringList row;
        for (int i = 0; i < statement.columnCount(); ++i)
            row.append(statement.value(i).toText(u"NULL"_s));
        result.push_back(row);
    }
    return result;
}

QStringList RawFile::lines(const QString& sql) {
    QStringList result;
    for (const QStringList& row : rows(sql))
        result.append(row.join(u" | "_s));
    return result;
}

QString RawFile::cell(const QString& sql) {
    const auto all = rows(sql);
    return all.empty() ? u"nothing"_s : all.front().front();
}

} // namespace dao
