#include "ColumnOptions.h"

#include "Globals.h"
#include "SettingsStore.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

struct Column {
    const char16_t* key;
    const char16_t* german;
    const char16_t* english;
};

/// In the order of ListColumn.
constexpr std::array<Column, ListColumnCount> columns{{
    {u"Wortart", u"Wortart", u"Part of Speech"},
    {u"Grammatikalisch", u"Grammatikalische Attribute", u"Grammar Attributes"},
    {u"Funktional", u"Funktionale Attribute", u"Functional Attributes"},
    {u"Bereich", u"Bereich", u"Area"},
    {u"Beispielsatz", u"Beispielsatz", u"Sample Phrase"},
    {u"Zusatzinfo", u"Zusatzinfo", u"Additional Info"},
    {u"Quelle", u"Quelle", u"Source"},
    {u"Eingabedatum", u"Eingabedatum", u"Creationdate"},
    {u"Aenderungsdatum", u"Änderungsdatum", u"Changedate"},
    {u"Score", u"Score", u"Error Score"},
}};

const Column& entry(ListColumn column) {
    return columns.at(static_cast<size_t>(column));
}

QString section() {
    return u"List"_s;
}

} // namespace

QString settingsKey(ListColumn column) {
    return QString::fromUtf16(entry(column).key);
}

QString columnTitle(ListColumn column) {
    return uiText(QString::fromUtf16(entry(column).german), QString::fromUtf16(entry(column).english));
}

void ColumnOptions::load(const SettingsStore& settings) {
    for (int i = 0; i < ListColumnCount; ++i) {
        const auto column = static_cast<ListColumn>(i);
        setShown(column, settings.GetSetting(AppName(), section(), settingsKey(column), u"1"_s) != u"0"_s);
    }
}

void ColumnOptions::save(SettingsStore& settings) const {
    SettingsStore::Batch batch(settings);
    for (int i = 0; i < ListColumnCount; ++i) {
        const auto column = static_cast<ListColumn>(i);
        settings.SaveSetting(AppName(), section(), settingsKey(column), isShown(column) ? u"1"_s : u"0"_s);
    }
    batch.commit();
}

} // namespace lingomat
