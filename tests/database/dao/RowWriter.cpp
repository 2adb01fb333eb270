// Changes rows of table `Wort` of a file until it is killed. Before each change it tells what it is about to
// do, and afterwards that it is done:
//
//     ? A text        add a row          ! A text
//     ? E old new     change a row       ! E old new
//     ? D text        delete a row       ! D text

#include "DBEngine.h"

#include <QString>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void tell(char sign, const QString& change) {
    const QByteArray line = sign + (u' ' + change + u'\n').toUtf8();
    // One write a line, past all buffers: what was told before the end has been told.
    if (write(STDOUT_FILENO, line.constData(), static_cast<std::size_t>(line.size())) != line.size())
        std::_Exit(2);
}

class RowWriter {
public:
    RowWriter(const QString& path, int round)
        : m_prefix(u"r%1."_s.arg(round)),
          m_random(static_cast<unsigned>(round)),
          m_database(dao::DBEngine::OpenDatabase(path)),
          m_rows(m_database.OpenRecordset(u"SELECT * FROM Wort"_s)) {}

    [[nodiscard]] const dao::Database& database() const { return m_database; }

    [[noreturn]] void run() {
        while (true)
            step();
    }

private:
    void step() {
        const auto dice = m_random() % 4;
        if (dice < 2 || m_rows.RecordCount() < 3)
            return add();
        m_rows.MoveFirst();
        m_rows.FindFirst(u"ID >= %1"_s.arg(m_rows.field(0).toInteger() + static_cast<int>(m_random() % 20)));
        dice == 2 ? change() : remove();
    }

    QString next() { return m_prefix + QString::number(++m_count); }

    void add() {
        const QString text = next();
        tell('?', u"A "_s + text);
        m_rows.AddNew();
        m_rows.setField(u"Main"_s, text);
        m_rows.Update();
        tell('!', u"A "_s + text);
    }

    void change() {
        const QString text = next();
        const QString told = u"E "_s + m_rows.field(u"Main"_s).toText() + u' ' + text;
        tell('?', told);
        m_rows.Edit();
        m_rows.setField(u"Main"_s, text);
        m_rows.Update();
        tell('!', told);
    }

    void remove() {
        const QString told = u"D "_s + m_rows.field(u"Main"_s).toText();
        tell('?', told);
        m_rows.Delete();
        tell('!', told);
    }

    QString m_prefix;
    std::mt19937 m_random;
    int m_count = 0;
    dao::Database m_database;
    dao::Recordset m_rows;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return 1;
    try {
        RowWriter writer(QString::fromLocal8Bit(argv[1]), std::atoi(argv[2]));
        std::optional<dao::WriteBurst> burst;
        if (argc > 3)
            burst.emplace(writer.database());
        writer.run();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
