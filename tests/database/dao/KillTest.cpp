// A program that is killed in the middle of its changes loses none that it was told was done.

#include "EngineTest.h"

#include <QFile>
#include <QProcess>
#include <QSet>

#include <random>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

using Texts = QSet<QString>;

void apply(const QString& change, Texts& texts) {
    const QStringList words = change.split(u' ');
    if (words[0] == u"A"_s) {
        texts.insert(words.value(1));
        return;
    }
    EXPECT_TRUE(texts.remove(words.value(1))) << change.toStdString();
    if (words[0] == u"E"_s)
        texts.insert(words.value(2));
}

} // namespace

class Kill : public EngineTest, public ::testing::WithParamInterface<bool> {
protected:
    /// Runs the writer, kills it after some lines, and hands back all that it told.
    QStringList killedWriter(int round, int lines) {
        QProcess writer;
        QStringList arguments{file(), QString::number(round)};
        if (GetParam())
            arguments.append(u"burst"_s);
        writer.start(QStringLiteral(ROW_WRITER), arguments);
        QByteArray told;
        while (told.count('\n') < lines && writer.waitForReadyRead())
            told += writer.readAllStandardOutput();
        EXPECT_GE(told.count('\n'), lines) << writer.readAllStandardError().toStdString();
        writer.kill();
        writer.waitForFinished();
        told += writer.readAllStandardOutput();
        EXPECT_EQ(writer.exitStatus(), QProcess::CrashExit);
        QStringList result = QString::fromUtf8(told).split(u'\n');
        result.removeLast(); // what stands behind the last line break
        return result;
    }

    [[nodiscard]] Texts storedTexts() const {
        Recordset recordset = words();
        Texts texts;
        for (; !recordset.EOF_(); recordset.MoveNext())
            texts.insert(main(recordset));
        EXPECT_EQ(texts.size(), recordset.RecordCount());
        return texts;
    }
};

TEST_P(Kill, LosesNothingThatWasReportedDone) {
    constexpr int Rounds = 40;
    std::mt19937 random(GetParam() ? 2U : 1U);
    database.Close();
    Texts expected;
    for (int round = 1; round <= Rounds; ++round) {
        SCOPED_TRACE(round);
        const QStringList told = killedWriter(round, static_cast<int>(1 + random() % 60));
        QString pending;
        for (const QString& line : told) {
            const QString change = line.mid(2);
            if (line.startsWith(u'!')) {
                apply(change, expected);
                pending.clear();
            } else {
                pending = change;
            }
        }
        database = DBEngine::OpenDatabase(file());
        const Texts found = storedTexts();
        Texts withPending = expected;
        if (!pending.isEmpty())
            apply(pending, withPending);
        ASSERT_TRUE(found == expected || found == withPending);
        expected = found;
        database.Close();
        ASSERT_EQ(RawFile(file()).cell(u"PRAGMA integrity_check"_s), u"ok");
        // A journal that nothing was written through yet may wait for the next change.
        QFile::remove(path(u"test.lmt-journal"_s));
        ASSERT_EQ(files(), QStringList{u"test.lmt"_s});
    }
    EXPECT_GT(expected.size(), Rounds);
}

INSTANTIATE_TEST_SUITE_P(ChangesOneByOneAndInABurst, Kill, ::testing::Bool());

} // namespace dao
