#include "GreyOut.h"
#include "ProgramFolder.h"
#include "QtPrinters.h"
#include "ScreenCheck.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

TEST(GreyOut, StateDecidesWhatCanBeUsed) {
    struct Row {
        SessionState state;
        EnabledCommands enabled;
    };
    constexpr EnabledCommands nothing;
    constexpr EnabledCommands onlyList{
        .view = true, .selection = false, .list = true, .trainer = false, .print = false};
    constexpr EnabledCommands onlySelection{
        .view = true, .selection = true, .list = false, .trainer = false, .print = false};
    constexpr EnabledCommands all{
        .view = true, .selection = true, .list = true, .trainer = true, .print = true};
    const Row table[] = {
        {{false, false, false}, nothing},      {{false, false, true}, nothing},
        {{false, true, false}, nothing},       {{false, true, true}, nothing},
        {{true, true, false}, onlyList},       {{true, true, true}, onlyList},
        {{true, false, false}, onlySelection}, {{true, false, true}, all},
    };
    for (const Row& row : table) {
        EXPECT_EQ(enabledCommands(row.state), row.enabled)
            << "open " << row.state.databaseIsOpen << ", empty " << row.state.databaseIsEmpty
            << ", selection " << row.state.selectionValid;
    }
}

TEST(ScreenCheck, EitherSideCanBeTooSmall) {
    constexpr QSize form(800, 600);
    EXPECT_FALSE(screenTooSmall({800, 600}, form));
    EXPECT_FALSE(screenTooSmall({1024, 768}, form));
    EXPECT_TRUE(screenTooSmall({799, 600}, form));
    EXPECT_TRUE(screenTooSmall({800, 599}, form));
    EXPECT_TRUE(screenTooSmall({640, 480}, form));
    EXPECT_TRUE(screenTooSmall({}, form));
}

TEST(ProgramFolder, FilesBesideTheExecutableCountFirst) {
    const QTemporaryDir prefix;
    const QString bin = prefix.filePath(u"bin"_s);
    ASSERT_TRUE(QDir().mkpath(bin));
    EXPECT_EQ(findProgramFolder(bin), prefix.filePath(u"share/lingomat"_s));

    QFile sample(bin + "/Example.lmt"_L1);
    ASSERT_TRUE(sample.open(QIODevice::WriteOnly));
    EXPECT_EQ(findProgramFolder(bin), bin);
}

TEST(ProgramFolder, NamesFilesWithThePlatformsSeparator) {
    EXPECT_EQ(programFile(u"/opt/lingomat"_s, u"marke.gif"_s),
              "/opt/lingomat"_L1 + QString(QDir::separator()) + "marke.gif"_L1);
}

} // namespace
} // namespace lingomat
