#include "ColumnOptions.h"
#include "Globals.h"
#include "TestContext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

ListColumn column(int i) {
    return static_cast<ListColumn>(i);
}

} // namespace

TEST(ColumnOptions, EveryColumnIsShownUntilTheSettingsSayOtherwise) {
    TestContext context;
    context.columns.setShown(ListColumn::Bereich, false);
    context.columns.load(context.settings);
    for (int i = 0; i < ListColumnCount; ++i)
        EXPECT_TRUE(context.columns.isShown(column(i))) << i;
}

TEST(ColumnOptions, OnlyZeroHidesAColumn) {
    TestContext context;
    const auto shownWith = [&context](const QString& value) {
        context.settings.SaveSetting(AppName(), u"List"_s, u"Quelle"_s, value);
        context.columns.load(context.settings);
        return context.columns.isShown(ListColumn::Quelle);
    };
    EXPECT_FALSE(shownWith(u"0"_s));
    EXPECT_TRUE(shownWith(u"1"_s));
    EXPECT_TRUE(shownWith(u""_s));
    EXPECT_TRUE(shownWith(u"00"_s));
}

TEST(ColumnOptions, EachColumnHasItsOwnKey) {
    TestContext context;
    const QStringList keys{
        u"Wortart"_s,    u"Grammatikalisch"_s, u"Funktional"_s,   u"Bereich"_s,         u"Beispielsatz"_s,
        u"Zusatzinfo"_s, u"Quelle"_s,          u"Eingabedatum"_s, u"Aenderungsdatum"_s, u"Score"_s};
    for (int i = 0; i < ListColumnCount; ++i) {
        ColumnOptions options;
        options.setShown(column(i), false);
        options.save(context.settings);
        for (int k = 0; k < ListColumnCount; ++k)
            EXPECT_EQ(context.settings.GetSetting(AppName(), u"List"_s, keys[k]), k == i ? u"0"_s : u"1"_s);

        ColumnOptions loaded;
        loaded.load(context.settings);
        for (int k = 0; k < ListColumnCount; ++k)
            EXPECT_EQ(loaded.isShown(column(k)), k != i);
    }
}

TEST(ColumnOptions, TitlesFollowTheInterfaceLanguage) {
    {
        const InterfaceLanguage english(u"En"_s);
        EXPECT_EQ(columnTitle(ListColumn::Wortart), u"Part of Speech"_s);
        EXPECT_EQ(columnTitle(ListColumn::Score), u"Error Score"_s);
    }
    const InterfaceLanguage german(u"De"_s);
    EXPECT_EQ(columnTitle(ListColumn::Wortart), u"Wortart"_s);
    EXPECT_EQ(columnTitle(ListColumn::Score), u"Score"_s);
    EXPECT_EQ(columnTitle(ListColumn::Aenderungsdatum), u"Änderungsdatum"_s);
}

} // namespace lingomat
