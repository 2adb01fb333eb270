#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace lingomat {

class EqualCharacters;
class Prompts;
class SettingsStore;

/// Reads the pairs of equal characters from the settings: section "Exceptions", keys "Exc_1" to "Exc_10".
void GetExceptions(EqualCharacters& exceptions, const SettingsStore& settings);
/// Forgets the pairs in memory and reads those of the settings. Ten stored pairs are none then.
void readExceptions(EqualCharacters& exceptions, const SettingsStore& settings);
/// The pairs of the settings up to the first gap, each by itself: also the ten that are none together.
[[nodiscard]] std::vector<EqualCharacters> storedPairs(const SettingsStore& settings);
/// Replaces section "Exceptions" by these pairs, numbered from 1: each the two characters, or nothing, which
/// ends the list when it is read. A failure throws as SettingsStore does, and the section stays what it was.
void saveExceptions(const QStringList& pairs, SettingsStore& settings);

/// Left character of the pair with that number. A number that has no pair is told to the user and gives a
/// blank.
QString ReturnIteExceptionL(const EqualCharacters& exceptions, int index, Prompts& prompts);
/// Right character, likewise.
QString ReturnIteExceptionR(const EqualCharacters& exceptions, int index, Prompts& prompts);

} // namespace lingomat
