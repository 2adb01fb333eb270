#pragma once

#include "CDBCreator.h"
#include "Prompts.h"

class QWidget;

namespace lingomat {

class Trainer;

// What the main window has to say when it loads and when it opens files.

/// The error box: not a valid language database. The text stays in LastErrorText.
void tellInvalidFile(Prompts& prompts);
void tellDatabaseEmpty(Prompts& prompts, QWidget* parent);
void tellSampleWillOpen(Prompts& prompts, QWidget* parent);
void tellLanguagesMissing(Prompts& prompts, QWidget* parent);
/// What stood where a new database is to be cannot be deleted. The text stays in LastErrorText.
void tellFileNotDeleted(Prompts& prompts, QWidget* parent, const QString& path);
void tellScreenTooSmall(Prompts& prompts, QWidget* parent);
void welcome(Prompts& prompts, QWidget* parent);

/// The requests that the commands Open and New make.
[[nodiscard]] FileDialogRequest openDatabaseRequest(const QString& currentPath);
[[nodiscard]] FileDialogRequest newDatabaseRequest(const QString& currentPath);

/// The question before pending changes are lost, with the words of the command that asks.
[[nodiscard]] Message quitQuestion();
[[nodiscard]] Message proceedQuestion();
/// Whether a file that exists gives way to a new one.
[[nodiscard]] Message overwriteQuestion(const QString& path);

/// Whether the order of the Trainer is the one to print in.
[[nodiscard]] Message printQuestion(const Trainer& trainer);

/// What the creator of databases has to say.
[[nodiscard]] CDBCreator::Notifier creatorNotifier(Prompts& prompts);

} // namespace lingomat
