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

} // namespace

void GetExceptions(EqualCharacters& exceptions, const SettingsStore& settings) {
    exceptions.readExceptions([&settings](int number) {
        const QString key = u"Exc_"_s + MyItoS(number);
        return settings.GetSetting(AppName(), u"Exceptions"_s, key, EqualCharacters::missingValue());
    });
}

QString ReturnIteExceptionL(const EqualCharacters& exceptions, int index, Prompts& prompts) {
    return knownOrRefused(exceptions.left(index), u"ReturnIteExceptionL"_s, prompts);
}

QString ReturnIteExceptionR(const EqualCharacters& exceptions, int index, Prompts& prompts) {
    return knownOrRefused(exceptions.right(index), u"ReturnIteExceptionR"_s, prompts);
}

} // namespace lingomat
