#include "ExceptionSettings.h"

#include "EqualCharacters.h"
#include "ExpressionText.h"
#include "Globals.h"
#include "Prompts.h"
#include "SettingsStore.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QString knownOrRefused(const std::optional<QString>& character, const QString& operation, Prompts& prompts) {
    if (character) {
        return *character;
    }
    Message refusal;
    refusal.text = uiText(u"FEHLER in "_s, u"ERROR in "_s) + operation;
    prompts.message(nullptr, refusal);
    return u" "_s;
}

QString section() {
    return u"Exceptions"_s;
}

QString keyOf(int number) {
    return u"Exc_"_s + MyItoS(number);
}

} // namespace

void GetExceptions(EqualCharacters& exceptions, const SettingsStore& settings) {
    exceptions.readExceptions([&settings](int number) {
        return settings.GetSetting(AppName(), section(), keyOf(number), EqualCharacters::missingValue());
    });
}

void readExceptions(EqualCharacters& exceptions, const SettingsStore& settings) {
    exceptions.clear();
    GetExceptions(exceptions, settings);
}

std::vector<EqualCharacters> storedPairs(const SettingsStore& settings) {
    std::vector<EqualCharacters> pairs;
    for (int number = 1; number <= EqualCharacters::MaximumCount; ++number) {
        EqualCharacters one;
        one.readExceptions([&](int place) {
            return place > 1 ? EqualCharacters::missingValue()
                             : settings.GetSetting(AppName(), section(), keyOf(number),
                                                   EqualCharacters::missingValue());
        });
        if (one.ExceptionCount() == 0)
            break;
        pairs.push_back(one);
    }
    return pairs;
}

void saveExceptions(const QStringList& pairs, SettingsStore& settings) {
    SettingsStore::Batch batch(settings);
    settings.DeleteSetting(AppName(), section());
    int number = 0;
    for (const QString& pair : pairs)
        settings.SaveSetting(AppName(), section(), keyOf(++number), pair);
    batch.commit();
}

QString ReturnIteExceptionL(const EqualCharacters& exceptions, int index, Prompts& prompts) {
    return knownOrRefused(exceptions.left(index), u"ReturnIteExceptionL"_s, prompts);
}

QString ReturnIteExceptionR(const EqualCharacters& exceptions, int index, Prompts& prompts) {
    return knownOrRefused(exceptions.right(index), u"ReturnIteExceptionR"_s, prompts);
}

} // namespace lingomat
