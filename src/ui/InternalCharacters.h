#pragma once

#include <QString>

class QWidget;

namespace lingomat {

class Prompts;

/// Refuses a text with a character that is reserved for packing ('@' or ';'): says so and gives the place
/// (from 1) of the first one. 0: the text has none. The message is German in both languages.
qsizetype CheckForInternalCharacters(Prompts& prompts, QWidget* parent, const QString& text);

} // namespace lingomat
