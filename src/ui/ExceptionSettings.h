#pragma once

#include <QString>

namespace lingomat {

class EqualCharacters;
class Prompts;
class SettingsStore;

/// Reads the pairs of equal characters from the settings: section "Exceptions", keys "Exc_1" to "Exc_10".
void GetExceptions(EqualCharacters& exceptions, const SettingsStore& settings);

/// Left character of the pair with that number. A number that has no pair is told to the user and gives a
/// blank.
QString ReturnIteExceptionL(const EqualCharacters& exceptions, int index, Prompts& prompts);
/// Right character, likewise.
QString ReturnIteExceptionR(const EqualCharacters& exceptions, int index, Prompts& prompts);

} // namespace lingomat
