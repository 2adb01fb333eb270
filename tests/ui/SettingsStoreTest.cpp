#include "SettingsStore.h"
#include "TestContext.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

const QString App = u"LMT"_s;

void write(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

QStringList keysOf(const SettingsStore& store, const QString& section) {
    QStringList keys;
    const auto all = store.GetAllSettings(App, section);
    for (const auto& [key, value] : all)
        keys.append(key);
    return keys;
}

/// Texts that a section, a key or a value may be.
const QStringList& nastyTexts() {
    static const QStringList texts{
        u""_s,
        u" "_s,
        u"  both ends  "_s,
        u"\ttab\t"_s,
        u"a/b"_s,
        u"/"_s,
        u"//a//"_s,
        u"a.b..c"_s,
        u"100 % %41 %u0041"_s,
        u"\"quoted\" 'too'"_s,
        u"a=b"_s,
        u"=b"_s,
        u"[a]"_s,
        u"a]"_s,
        u"; no remark"_s,
        u"# no remark"_s,
        u"a,b;c|d"_s,
        u"General"_s,
        u"general"_s,
        u"%General"_s,
        u"@Invalid()"_s,
        u"@ByteArray(x)"_s,
        u"äöüßÄÖÜ"_s,
        u"日本語 Ελληνικά кириллица"_s,
        u"🙂 family 👨‍👩‍👧"_s,
        u"line\nfeed\r\nreturn"_s,
        u"\u2028\u0085\uFEFF"_s,
        u"N"_s + QChar(0) + u'L',
        QString(QChar(0xD83D)),                 // half an emoji
        QString(QChar(0xDE42)) + QChar(0xD83D), // two wrong halves
        QString(QChar(0xFFFF)) + QChar(0xFFFE),
        QString(100'000, u'x'),
    };
    return texts;
}

} // namespace

TEST(SettingsStore, AMissingKeyGivesTheDefault) {
    const TestContext context;
    EXPECT_EQ(context.settings.GetSetting(App, u"Parameters"_s, u"RecentDB"_s), QString());
    EXPECT_EQ(context.settings.GetSetting(App, u"Parameters"_s, u"RecentDB"_s, u"!§$%&"_s), u"!§$%&"_s);
    EXPECT_TRUE(context.settings.GetAllSettings(App, u"Parameters"_s).isEmpty());
}

TEST(SettingsStore, AnEmptyValueIsNoMissingOne) {
    TestContext context;
    context.settings.SaveSetting(App, u"S"_s, u"k"_s, u""_s);
    EXPECT_EQ(context.settings.GetSetting(App, u"S"_s, u"k"_s, u"default"_s), u""_s);
}

TEST(SettingsStore, EveryValueSurvives) {
    TestContext context;
    QStringList texts = nastyTexts();
    texts << u"back\\slash\\"_s << u"\\"_s;
    for (int i = 0; i < texts.size(); ++i)
        context.settings.SaveSetting(App, u"S"_s, u"k%1"_s.arg(i), texts[i]);
    const SettingsStore other(context.path(u"settings"_s));
    for (int i = 0; i < texts.size(); ++i)
        EXPECT_EQ(other.GetSetting(App, u"S"_s, u"k%1"_s.arg(i), u"missing"_s), texts[i]);
}

TEST(SettingsStore, EveryKeyIsItsOwn) {
    TestContext context;
    QStringList texts = nastyTexts();
    texts << u"back\\slash\\"_s << u"\\"_s;
    for (int i = 0; i < texts.size(); ++i)
        context.settings.SaveSetting(App, u"S"_s, texts[i], QString::number(i));
    const SettingsStore other(context.path(u"settings"_s));
    for (int i = 0; i < texts.size(); ++i)
        EXPECT_EQ(other.GetSetting(App, u"S"_s, texts[i], u"missing"_s), QString::number(i))
            << texts[i].toStdString();

    const auto all = other.GetAllSettings(App, u"S"_s);
    EXPECT_EQ(all.size(), texts.size());
    for (const auto& [key, value] : all)
        EXPECT_EQ(key, texts.value(value.toInt()));
}

TEST(SettingsStore, EverySectionIsItsOwn) {
    TestContext context;
    const QStringList& texts = nastyTexts();
    for (int i = 0; i < texts.size(); ++i) {
        context.settings.SaveSetting(App, texts[i], u"k"_s, QString::number(i));
        context.settings.SaveSetting(App, u"Queries\\"_s + texts[i] + u"\\Score"_s, u"k"_s,
                                     QString::number(-i));
    }
    const SettingsStore other(context.path(u"settings"_s));
    for (int i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(other.GetSetting(App, texts[i], u"k"_s), QString::number(i)) << texts[i].toStdString();
        EXPECT_EQ(other.GetSetting(App, u"Queries\\"_s + texts[i] + u"\\Score"_s, u"k"_s),
                  QString::number(-i));
    }
}

TEST(SettingsStore, ApplicationsAreKeptApart) {
    TestContext context;
    const QStringList names{u"LMT"_s, u"lmt"_s, u"L/M"_s, u".."_s, u"Ä Ö"_s};
    for (const QString& name : names)
        context.settings.SaveSetting(name, u"S"_s, u"k"_s, name);
    for (const QString& name : names)
        EXPECT_EQ(context.settings.GetSetting(name, u"S"_s, u"k"_s), name);
}

TEST(SettingsStore, KeysComeInNaturalOrder) {
    TestContext context;
    for (const int i : {10, 1, 100, 2, 20, 3})
        context.settings.SaveSetting(App, u"Queries\\a.lmt"_s, u"I%1"_s.arg(i), u"Lesson %1"_s.arg(i));
    EXPECT_EQ(keysOf(context.settings, u"Queries\\a.lmt"_s),
              QStringList({u"I1"_s, u"I2"_s, u"I3"_s, u"I10"_s, u"I20"_s, u"I100"_s}));
}

TEST(SettingsStore, ASectionListsItsOwnKeysOnly) {
    TestContext context;
    context.settings.SaveSetting(App, u"A"_s, u"own"_s, u"1"_s);
    context.settings.SaveSetting(App, u"A\\B"_s, u"below"_s, u"1"_s);
    context.settings.SaveSetting(App, u"AB"_s, u"beside"_s, u"1"_s);
    EXPECT_EQ(keysOf(context.settings, u"A"_s), QStringList{u"own"_s});
    EXPECT_EQ(keysOf(context.settings, u"A\\B"_s), QStringList{u"below"_s});
}

TEST(SettingsStore, DeletingASectionTakesAllBelowItAndNothingElse) {
    TestContext context;
    const QStringList sections{u"Q"_s,     u"Q\\a"_s,  u"Q\\a\\Score"_s, u"Q\\a\\b\\c"_s,
                               u"Q\\a "_s, u"Q\\ab"_s, u"Q\\a!"_s,       u"Q\\b"_s,
                               u"QQ"_s,    u"a"_s,     u"Q\\A"_s,        u"Q\\a-b"_s};
    for (const QString& section : sections)
        context.settings.SaveSetting(App, section, u"k"_s, u"1"_s);
    context.settings.DeleteSetting(App, u"Q\\a"_s);
    const SettingsStore other(context.path(u"settings"_s));
    for (const QString& section : sections) {
        const bool deleted = section == u"Q\\a"_s || section.startsWith(u"Q\\a\\"_s);
        EXPECT_EQ(other.GetSetting(App, section, u"k"_s, u"gone"_s), deleted ? u"gone"_s : u"1"_s)
            << section.toStdString();
    }
}

TEST(SettingsStore, AKeyAndASectionOfOneNameAreTwoThings) {
    TestContext context;
    context.settings.SaveSetting(App, u"Queries\\a.lmt"_s, u"I1"_s, u"I1"_s); // a lesson named like its key
    context.settings.SaveSetting(App, u"Queries\\a.lmt\\I1\\Score"_s, u"Min"_s, u"2"_s);
    context.settings.DeleteSetting(App, u"Queries\\a.lmt"_s, u"I1"_s);
    EXPECT_EQ(context.settings.GetSetting(App, u"Queries\\a.lmt\\I1\\Score"_s, u"Min"_s), u"2"_s);

    context.settings.SaveSetting(App, u"Queries\\a.lmt"_s, u"I1"_s, u"I1"_s);
    context.settings.DeleteSetting(App, u"Queries\\a.lmt\\I1"_s);
    EXPECT_EQ(context.settings.GetSetting(App, u"Queries\\a.lmt"_s, u"I1"_s), u"I1"_s);
    EXPECT_EQ(context.settings.GetSetting(App, u"Queries\\a.lmt\\I1\\Score"_s, u"Min"_s, u"gone"_s),
              u"gone"_s);
}

TEST(SettingsStore, DeletingWhatDoesNotExistIsNoError) {
    TestContext context;
    EXPECT_NO_THROW(context.settings.DeleteSetting(App, u"Exceptions"_s));
    EXPECT_NO_THROW(context.settings.DeleteSetting(App, u"Exceptions"_s, u"Exc_1"_s));
}

TEST(SettingsStore, AValueIsOnTheDiskWhenSavingReturns) {
    TestContext context;
    context.settings.SaveSetting(App, u"Parameters"_s, u"RecentDB"_s, u"/a.lmt"_s);
    EXPECT_EQ(read(context.path(u"settings/LMT.ini"_s)), QByteArray("[Parameters]\nRecentDB=/a.lmt\n"));
}

TEST(SettingsStore, TheUsersOwnLiesBelowTheConfigurationFolder) {
    SettingsStore store;
    store.SaveSetting(App, u"S"_s, u"own"_s, u"1"_s);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    EXPECT_EQ(folder, qEnvironmentVariable("XDG_CONFIG_HOME"));
    EXPECT_TRUE(QFile::exists(folder + u"/LMT/LMT.ini"_s));
    EXPECT_EQ(SettingsStore().GetSetting(App, u"S"_s, u"own"_s), u"1"_s);
}

TEST(SettingsStore, TwoStoresOnOneFolderSeeEachOthersValues) {
    TestContext context;
    SettingsStore other(context.path(u"settings"_s));
    context.settings.SaveSetting(App, u"S"_s, u"a"_s, u"first"_s);
    EXPECT_EQ(other.GetSetting(App, u"S"_s, u"a"_s), u"first"_s);
    other.SaveSetting(App, u"S"_s, u"b"_s, u"second"_s);
    context.settings.SaveSetting(App, u"S"_s, u"c"_s, u"the third"_s);
    EXPECT_EQ(keysOf(other, u"S"_s), QStringList({u"a"_s, u"b"_s, u"c"_s}));
}

TEST(SettingsStore, AFolderThatCannotBeMadeIsReported) {
    TestContext context;
    write(context.path(u"file"_s), "in the way");
    for (const QString& name : {u"En"_s, u"De"_s}) {
        const InterfaceLanguage language(name);
        SettingsStore store(context.path(u"file/below"_s));
        try {
            store.SaveSetting(App, u"S"_s, u"k"_s, u"v"_s);
            ADD_FAILURE() << "saved into nowhere";
        } catch (const std::runtime_error& error) {
            const QString text = QString::fromUtf8(error.what());
            EXPECT_TRUE(text.startsWith(name == u"En"_s
                                            ? u"The settings could not be saved: "_s
                                            : u"Die Einstellungen konnten nicht gespeichert werden: "_s))
                << error.what();
            EXPECT_TRUE(text.contains(u"LMT.ini"_s)) << error.what();
        }
        EXPECT_EQ(store.GetSetting(App, u"S"_s, u"k"_s, u"missing"_s), u"missing"_s)
            << "what failed has not happened";
    }
}

TEST(SettingsStore, AFileThatIsNoneIsReportedAndStays) {
    TestContext context;
    ASSERT_TRUE(QDir().mkpath(context.path(u"settings/LMT.ini"_s)));
    EXPECT_EQ(context.settings.GetSetting(App, u"S"_s, u"k"_s, u"default"_s), u"default"_s);
    EXPECT_THROW(context.settings.SaveSetting(App, u"S"_s, u"k"_s, u"v"_s), std::runtime_error);
    EXPECT_TRUE(QFileInfo(context.path(u"settings/LMT.ini"_s)).isDir());
}

TEST(SettingsStore, ADamagedFileIsReadAsFarAsItGoes) {
    TestContext context;
    QDir().mkpath(context.path(u"settings"_s));
    const QByteArray damaged = QByteArray("[S]\nk=v\n\x80\x81\x00\xFF garbage\n[T]\nx=y\n", 29);
    write(context.path(u"settings/LMT.ini"_s), damaged);
    EXPECT_EQ(context.settings.GetSetting(App, u"S"_s, u"k"_s), u"v"_s);
    EXPECT_EQ(context.settings.GetSetting(App, u"T"_s, u"x"_s), u"y"_s);
    EXPECT_EQ(read(context.path(u"settings/LMT.ini"_s)), damaged) << "reading changes nothing";
}

TEST(SettingsStore, ADamagedFileIsKeptAsideBeforeItIsWrittenOver) {
    TestContext context;
    const QString path = context.path(u"settings/LMT.ini"_s);
    QDir().mkpath(context.path(u"settings"_s));
    write(path, "[S]\nk=v\ngarbage\n");
    context.settings.SaveSetting(App, u"S"_s, u"new"_s, u"1"_s);
    EXPECT_EQ(read(path), QByteArray("[S]\nk=v\nnew=1\n"));
    EXPECT_EQ(read(path + u".damaged"_s), QByteArray("[S]\nk=v\ngarbage\n"));

    context.settings.SaveSetting(App, u"S"_s, u"new"_s, u"2"_s);
    EXPECT_FALSE(QFile::exists(path + u".damaged2"_s)) << "a sound file needs no copy";

    write(path, "other garbage, longer");
    context.settings.SaveSetting(App, u"S"_s, u"new"_s, u"3"_s);
    EXPECT_EQ(read(path + u".damaged"_s), QByteArray("[S]\nk=v\ngarbage\n"));
    EXPECT_EQ(read(path + u".damaged2"_s), QByteArray("other garbage, longer"));
}

TEST(SettingsStore, RandomBytesNeverCrashIt) {
    TestContext context;
    const QString path = context.path(u"settings/LMT.ini"_s);
    QDir().mkpath(context.path(u"settings"_s));
    quint32 state = 1;
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes;
        for (int i = 0; i < round; ++i) {
            state = state * 1664525u + 1013904223u;
            bytes += "[]=%u\n\\;aA0\0\xC3\xA4\xFF"[(state >> 16) % 16];
        }
        write(path, bytes);
        const SettingsStore store(context.path(u"settings"_s));
        static_cast<void>(store.GetSetting(App, u"a"_s, u"A"_s));
        static_cast<void>(store.GetAllSettings(App, u""_s));
    }
}

TEST(SettingsBatch, WritesOnceAtItsCommit) {
    TestContext context;
    const QString path = context.path(u"settings/LMT.ini"_s);
    {
        SettingsStore::Batch batch(context.settings);
        context.settings.SaveSetting(App, u"S"_s, u"a"_s, u"1"_s);
        context.settings.SaveSetting(App, u"S"_s, u"b"_s, u"2"_s);
        context.settings.DeleteSetting(App, u"S"_s, u"a"_s);
        EXPECT_FALSE(QFile::exists(path));
        EXPECT_EQ(context.settings.GetSetting(App, u"S"_s, u"b"_s), u"2"_s)
            << "the store itself sees its changes";
        EXPECT_EQ(context.settings.GetSetting(App, u"S"_s, u"a"_s, u"gone"_s), u"gone"_s);
        batch.commit();
        EXPECT_EQ(read(path), QByteArray("[S]\nb=2\n"));
    }
    context.settings.SaveSetting(App, u"S"_s, u"c"_s, u"3"_s);
    EXPECT_EQ(read(path), QByteArray("[S]\nb=2\nc=3\n"));
}

TEST(SettingsBatch, WithoutACommitNothingHasHappened) {
    TestContext context;
    context.settings.SaveSetting(App, u"S"_s, u"a"_s, u"1"_s);
    {
        const SettingsStore::Batch batch(context.settings);
        context.settings.SaveSetting(App, u"S"_s, u"a"_s, u"2"_s);
        context.settings.DeleteSetting(App, u"S"_s);
    }
    EXPECT_EQ(context.settings.GetSetting(App, u"S"_s, u"a"_s), u"1"_s);
    EXPECT_EQ(SettingsStore(context.path(u"settings"_s)).GetSetting(App, u"S"_s, u"a"_s), u"1"_s);
}

TEST(SettingsBatch, TheOutermostOneWrites) {
    TestContext context;
    SettingsStore::Batch outer(context.settings);
    {
        SettingsStore::Batch inner(context.settings);
        context.settings.SaveSetting(App, u"S"_s, u"a"_s, u"1"_s);
        inner.commit();
    }
    EXPECT_FALSE(QFile::exists(context.path(u"settings/LMT.ini"_s)));
    outer.commit();
    EXPECT_TRUE(QFile::exists(context.path(u"settings/LMT.ini"_s)));
}

TEST(SettingsBatch, ACommitThatFailsIsReported) {
    TestContext context;
    write(context.path(u"file"_s), "in the way");
    SettingsStore store(context.path(u"file/below"_s));
    {
        SettingsStore::Batch batch(store);
        store.SaveSetting(App, u"S"_s, u"a"_s, u"1"_s);
        EXPECT_THROW(batch.commit(), std::runtime_error);
    }
    EXPECT_EQ(store.GetSetting(App, u"S"_s, u"a"_s, u"missing"_s), u"missing"_s);
}

} // namespace lingomat
