#pragma once

#include "Prompts.h"

class QWidget;

namespace lingomat {

// What the main window has to say when it loads and when it opens files.

/// The error box: not a valid language database. The text stays in LastErrorText.
void tellInvalidFile(Prompts& prompts);
void tellOldFormat(Prompts& prompts, QWidget* parent, const QString& path);
void tellDatabaseEmpty(Prompts& prompts, QWidget* parent);
void tellSampleWillOpen(Prompts& prompts, QWidget* parent);
void tellScreenTooSmall(Prompts& prompts, QWidget* parent);
void welcome(Prompts& prompts, QWidget* parent);

/// The request that the Open command makes.
[[nodiscard]] FileDialogRequest openDatabaseRequest(const QString& currentPath);

/// The question before pending changes are lost, with the words of the command that asks.
[[nodiscard]] Message quitQuestion();
[[nodiscard]] Message proceedQuestion();

} // namespace lingomat
