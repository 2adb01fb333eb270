// Other programs on the same file; long runs of reading; bursts of changes.

#include "EngineTest.h"
#include "OpenedHandle.h"

using namespace Qt::StringLiterals;

namespace dao {

class Lock : public EngineTest {
protected:
    Lock() {
        addWords({u"a"_s, u"b"_s});
        database.Close();
        reopen();
    }
    void reopen() {
        database = DBEngine::OpenDatabase(file());
        m_handle.waitNoLongerThan(0);
    }

    OpenedHandle m_handle;
};

TEST_F(Lock, TheEngineWaitsTwoSecondsForAnotherProgram) {
    database.Close();
    database = DBEngine::OpenDatabase(file());
    EXPECT_EQ(m_handle.waitsFor(), 2000);
}

TEST_F(Lock, AChangeDuringAnotherProgramsChangeIsRefusedAndCanBeRepeated) {
    RawFile other(file());
    other.run(u"BEGIN IMMEDIATE; UPDATE Wort SET Main = 'B' WHERE ID = 2"_s);
    Recordset recordset = words();
    EXPECT_EQ(main(recordset), u"a") << "reading goes on";
    recordset.Edit();
    recordset.setField(u"Main"_s, u"A"_s);
    EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3260);
    EXPECT_TRUE(descriptionOf([&] { recordset.Update(); }).contains(u"in use by another program"_s));
    EXPECT_EQ(errorOf([&] { database.appendProperty(u"Wort"_s, {u"x"_s, DataType::Long, 1}); }), 3260);
    TableDef table = linkTable();
    table.Name = u"Neu"_s;
    EXPECT_EQ(errorOf([&] { database.appendTable(table); }), 3260);
    other.run(u"COMMIT"_s);
    recordset.Update();
    EXPECT_EQ(stored(), u"A B");
    database.appendTable(table);
    EXPECT_TRUE(database.Table(u"Wort"_s).Properties.isEmpty()) << "what was refused is not remembered";
}

TEST_F(Lock, AFileThatAnotherProgramHoldsCannotBeOpened) {
    RawFile other(file());
    database.Close();
    other.run(u"BEGIN EXCLUSIVE"_s);
    const QByteArray before = bytes(u"test.lmt"_s);
    EXPECT_EQ(errorOf([&] { (void)DBEngine::OpenDatabase(file()); }), 3051); // after two seconds
    EXPECT_EQ(bytes(u"test.lmt"_s), before);
    other.run(u"COMMIT"_s);
    EXPECT_EQ(errorOf([&] { (void)DBEngine::OpenDatabase(file()); }), std::nullopt);
}

TEST_F(Lock, ReadingAFileThatAnotherProgramHoldsIsRefused) {
    RawFile other(file());
    Recordset recordset = words();
    other.run(u"BEGIN EXCLUSIVE"_s);
    recordset.MoveNext();
    EXPECT_EQ(errorOf([&] { (void)main(recordset); }), 3260);
    EXPECT_EQ(errorOf([&] { recordset.FindFirst(u"ID = 1"_s); }), 3260);
    EXPECT_EQ(errorOf([&] { (void)words(); }), 3260);
    other.run(u"COMMIT"_s);
    EXPECT_EQ(main(recordset), u"b");
}

TEST_F(Lock, SteadyReadingSeesOneState) {
    Recordset recordset = words();
    {
        const SteadyReading steady(database);
        EXPECT_EQ(main(recordset), u"a");
        RawFile other(file());
        EXPECT_FALSE(other.tryRun(u"PRAGMA busy_timeout = 0; BEGIN EXCLUSIVE"_s))
            << "others cannot write meanwhile";
        {
            const SteadyReading nested(database);
            EXPECT_EQ(main(recordset), u"a");
        }
        EXPECT_FALSE(other.tryRun(u"BEGIN EXCLUSIVE"_s)) << "the outer one still holds";
    }
    RawFile(file()).run(u"UPDATE Wort SET Main = 'A' WHERE ID = 1"_s);
    recordset.Requery();
    EXPECT_EQ(main(recordset), u"A");
}

TEST_F(Lock, AChangeEndsSteadyReadingAndIsDurableAtOnce) {
    Recordset recordset = words();
    const SteadyReading steady(database);
    const SteadyReading nested(database);
    EXPECT_EQ(main(recordset), u"a");
    recordset.Edit();
    recordset.setField(u"Main"_s, u"A"_s);
    recordset.Update();
    EXPECT_EQ(stored(), u"A b");
    recordset.AddNew();
    recordset.setField(u"Main"_s, u"c"_s);
    recordset.Update();
    EXPECT_EQ(stored(), u"A b c");
    recordset.Delete();
    EXPECT_EQ(stored(), u"b c");
    RawFile(file()).run(u"UPDATE Wort SET Main = 'B' WHERE ID = 2"_s);
    EXPECT_EQ(stored(), u"B c") << "others can write again";
}

TEST_F(Lock, SteadyReadingBeginsAnewAfterOneThatAChangeEnded) {
    {
        const SteadyReading steady(database);
        addWords({u"c"_s});
    }
    const SteadyReading steady(database);
    EXPECT_EQ(words().RecordCount(), 3);
    EXPECT_FALSE(RawFile(file()).tryRun(u"PRAGMA busy_timeout = 0; BEGIN EXCLUSIVE"_s));
}

TEST_F(Lock, AFileMayBeClosedDuringSteadyReading) {
    {
        const SteadyReading steady(database);
        EXPECT_EQ(words().RecordCount(), 2);
        database.Close();
    }
    RawFile(file()).run(u"UPDATE Wort SET Main = 'A' WHERE ID = 1"_s);
    reopen();
    EXPECT_EQ(stored(), u"A b");
}

TEST_F(Lock, ARefusedChangeDuringSteadyReadingLosesNothing) {
    RawFile other(file());
    Recordset recordset = words();
    const SteadyReading steady(database);
    EXPECT_EQ(main(recordset), u"a");
    other.run(u"BEGIN IMMEDIATE"_s);
    recordset.Edit();
    recordset.setField(u"Main"_s, u"A"_s);
    EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3260);
    other.run(u"COMMIT"_s);
    recordset.Update();
    EXPECT_EQ(stored(), u"A b");
}

TEST_F(Lock, ChangesOfABurstAreSeenByOthersAtOnceAndLeaveOneFile) {
    Recordset recordset = words();
    {
        const WriteBurst burst(database);
        const WriteBurst nested(database);
        recordset.Edit();
        recordset.setField(u"Main"_s, u"A"_s);
        recordset.Update();
        EXPECT_EQ(stored(), u"A b");
        recordset.MoveNext();
        recordset.Delete();
        addWords({u"c"_s});
        EXPECT_EQ(stored(), u"A c");
        const SteadyReading steady(database);
        EXPECT_EQ(words().RecordCount(), 2);
    }
    EXPECT_EQ(files(), QStringList{u"test.lmt"_s}) << "the log is gone with the burst";
    EXPECT_EQ(RawFile(file()).cell(u"PRAGMA journal_mode"_s), u"delete");
    EXPECT_EQ(stored(), u"A c");
}

TEST_F(Lock, ABurstBesideAnotherReaderWritesAllTheSame) {
    RawFile other(file());
    other.run(u"BEGIN; SELECT count(*) FROM Wort"_s);
    {
        const WriteBurst burst(database);
        Recordset recordset = words();
        recordset.Edit();
        recordset.setField(u"Main"_s, u"A"_s);
        EXPECT_EQ(errorOf([&] { recordset.Update(); }), 3260) << "another program is reading";
        other.run(u"COMMIT"_s);
        recordset.Update();
    }
    EXPECT_EQ(stored(), u"A b");
}

TEST_F(Lock, AFileMayBeClosedDuringABurst) {
    {
        const WriteBurst burst(database);
        addWords({u"c"_s});
        database.Close();
    }
    EXPECT_EQ(files(), QStringList{u"test.lmt"_s});
    EXPECT_EQ(stored(), u"a b c");
}

} // namespace dao
