// A program that is killed at any moment of a save loses no row that had been written by then.

#include "RawFile.h"
#include "SaveSteps.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <random>
#include <thread>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

constexpr int Rounds = 130;
constexpr int FirstRows = 80;

/// Main part and source of each entry, in the order of their keys.
using Rows = QStringList;

QString row(const QString& text) {
    return text + u" | "_s + text;
}

/// What the file holds after so many steps of a save.
Rows after(Rows rows, int round, int done) {
    const SaveSteps steps = saveSteps(round, static_cast<int>(rows.size()));
    const int deleted = std::min(done, steps.deleted);
    rows.remove(0, deleted);
    const int changed = std::clamp(done - steps.deleted, 0, steps.changed);
    for (int i = 0; i < changed; ++i)
        rows[i] = row(changedText(round, i));
    const int added = std::clamp(done - steps.deleted - steps.changed, 0, steps.added);
    for (int i = 0; i < added; ++i)
        rows.append(row(addedText(round, steps.added - 1 - i))); // from the last row up
    return rows;
}

class SaveKill : public testing::Test {
protected:
    SaveKill() {
        QList<TestEntry> entries;
        for (int i = 0; i < FirstRows; ++i)
            entries.append({u"first"_s, {}, {}, u"first"_s, {u"old"_s}});
        writeDatabase(file(), {.entries = entries});
        m_saver.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_saver.start(QStringLiteral(LIST_SAVER), {file(), m_folder.filePath(u"settings"_s)});
    }
    ~SaveKill() override {
        m_saver.closeWriteChannel();
        m_saver.waitForFinished();
    }

    [[nodiscard]] QString file() const { return m_folder.filePath(u"save.lmt"_s); }

    /// Runs one save, kills it after so many lines and a moment, and hands back how far it told to be.
    /// A save that came to its end tells `all`.
    int killedSave(int round, int lines, int moment, int all) {
        m_saver.write(QByteArray::number(round) + '\n');
        const pid_t saver = static_cast<pid_t>(nextLine().mid(4).toInt());
        EXPECT_GT(saver, 0);
        QByteArray line;
        int told = 0;
        for (int i = 0; i < lines && line != "end" && line != "over"; ++i)
            told = progress(line = nextLine(), told, all);
        for (int i = 0; i < moment; ++i)
            std::this_thread::yield();
        if (line != "over")
            kill(saver, SIGKILL);
        while (line != "over")
            told = progress(line = nextLine(), told, all);
        return told;
    }

    [[nodiscard]] Rows stored() const {
        // As the program does, with its check of the file.
        EXPECT_NO_THROW((void)readColumn(file(), u"Vokabular"_s, u"ID"_s));
        dao::RawFile raw(file());
        EXPECT_EQ(raw.lines(u"PRAGMA integrity_check"_s), QStringList{u"ok"_s});
        return raw.lines(u"SELECT Lang1_Main, Quelle FROM Vokabular ORDER BY ID"_s);
    }

private:
    QByteArray nextLine() {
        while (!m_saver.canReadLine())
            if (!m_saver.waitForReadyRead())
                throw std::runtime_error("the saver has gone");
        return m_saver.readLine().trimmed();
    }
    static int progress(const QByteArray& line, int before, int all) {
        if (line == "end")
            return all;
        return line == "over" ? before : line.toInt();
    }

    QTemporaryDir m_folder;
    QProcess m_saver;
};

TEST_F(SaveKill, LosesNoRowThatWasWritten) {
    std::mt19937 random(4);
    const auto draw = [&random](int below) {
        return static_cast<int>(random() % static_cast<unsigned>(below));
    };
    Rows rows = stored();
    ASSERT_EQ(rows.size(), FirstRows);
    int ends = 0;
    int deaths = 0;
    for (int round = 1; round <= Rounds; ++round) {
        SCOPED_TRACE(round);
        const SaveSteps steps = saveSteps(round, static_cast<int>(rows.size()));
        const int all = steps.deleted + steps.changed + steps.added;
        const int told = killedSave(round, draw(all + 1), draw(30), all + 1);
        const bool finished = told == all + 1;
        ++(finished ? ends : deaths);
        // A number is told before its step; that of a new row is the number of steps before it.
        const int numbered = steps.deleted + steps.changed;
        const int done = finished ? all : told > numbered ? told : std::max(0, told - 1);
        const Rows found = stored();
        const int unknown = told == numbered ? 2 : 1; // steps that may be over without having been told
        bool isOneOfThem = false;
        for (int possible = done; possible <= std::min(done + unknown, all); ++possible)
            isOneOfThem = isOneOfThem || found == after(rows, round, possible);
        ASSERT_TRUE(isOneOfThem) << "after " << done << " steps:\n" << found.join(u'\n').toStdString();
        rows = found;
        QFile::remove(file() + u"-journal"_s); // one that nothing was written through yet may wait
        ASSERT_EQ(QDir(QFileInfo(file()).path()).entryList({u"save.lmt*"_s}), QStringList{u"save.lmt"_s});
    }
    EXPECT_GE(deaths, 100);
    EXPECT_FALSE(rows.filter(u"n"_s).isEmpty()) << "some saves have come to the new rows";
}

} // namespace
} // namespace lingomat
