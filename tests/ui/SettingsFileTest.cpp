#include "SettingsFile.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

TEST(SettingsFile, ReadsAsTold) {
    SettingsFile file;
    file.sections[u"Parameters"_s][u"RecentDB"_s] = u"/home/ä/Example.lmt"_s;
    file.sections[u"Queries\\Example.lmt\\Lesson 1\\Score"_s][u"Min"_s] = u"1"_s;
    EXPECT_EQ(file.toText(), QByteArray("[Parameters]\n"
                                        "RecentDB=/home/ä/Example.lmt\n"
                                        "[Queries\\Example.lmt\\Lesson 1\\Score]\n"
                                        "Min=1\n"));
}

TEST(SettingsFile, BlanksAtTheEndsAreWrittenSoThatNoEditorDropsThem) {
    SettingsFile file;
    file.sections[u" S "_s][u" k "_s] = u" a b "_s;
    EXPECT_EQ(file.toText(), QByteArray("[%20S%20]\n%20k%20=%20a b%20\n"));
}

TEST(SettingsFile, LinesThatCannotBeReadCostNoOthers) {
    const QByteArray bad[] = {
        QByteArray("no equals sign"), QByteArray("key=%"),         QByteArray("key=%2"),
        QByteArray("key=%zz"),        QByteArray("key=%u12"),      QByteArray("\xFF\xFE\x80=1"),
        QByteArray("a\0b=1", 5),      QByteArray("[open section"), QByteArray("%%=1"),
    };
    for (const QByteArray& line : bad) {
        bool damaged = false;
        const SettingsFile file = SettingsFile::parse("[A]\nx=1\n" + line + "\n[B]\ny=2\n", &damaged);
        EXPECT_TRUE(damaged) << line.toStdString();
        EXPECT_EQ(file.sections.value(u"A"_s).value(u"x"_s), u"1"_s) << line.toStdString();
        EXPECT_EQ(file.sections.value(u"B"_s).value(u"y"_s), u"2"_s) << line.toStdString();
        EXPECT_EQ(file.sections.value(u"A"_s).size(), 1) << line.toStdString();
    }
}

TEST(SettingsFile, ValuesBelowABrokenHeadingAreNotGuessed) {
    bool damaged = false;
    const SettingsFile file = SettingsFile::parse("[A]\nx=1\n[B\ny=2\n", &damaged);
    EXPECT_TRUE(damaged);
    EXPECT_EQ(file.sections.size(), 1);
    EXPECT_EQ(file.sections.value(u"A"_s).size(), 1);
}

TEST(SettingsFile, WhatAnEditorDoesIsNoDamage) {
    bool damaged = true;
    const SettingsFile file = SettingsFile::parse("; a remark\r\n\r\n[A]\r\nx=1\r\n\r\ny=2", &damaged);
    EXPECT_FALSE(damaged);
    EXPECT_EQ(file.sections.value(u"A"_s).value(u"x"_s), u"1"_s);
    EXPECT_EQ(file.sections.value(u"A"_s).value(u"y"_s), u"2"_s);
}

TEST(SettingsFile, AnEmptyFileIsNotDamaged) {
    bool damaged = true;
    EXPECT_TRUE(SettingsFile::parse({}, &damaged).sections.isEmpty());
    EXPECT_FALSE(damaged);
}

} // namespace lingomat
