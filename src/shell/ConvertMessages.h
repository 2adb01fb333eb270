#pragma once

#include "Database.h"
#include "Prompts.h"

#include <QList>

namespace lingomat {

// What is asked and told when a file is converted.

/// Shall the conversion be started?
[[nodiscard]] Message convertQuestion(const QString& path);
/// The file dialog for the new file, with a name set that follows from the old one's.
[[nodiscard]] FileDialogRequest convertedNameRequest(const QString& oldPath);

/// The name that is proposed for a converted file: the old path with ".lmt" for its last four characters.
/// Where that is the old file's own name, one with an addition.
[[nodiscard]] QString proposedName(const QString& oldPath);

void tellNoLanguages(Prompts& prompts, QWidget* parent);
void tellSourceIsTarget(Prompts& prompts, QWidget* parent, const QString& path);
void tellLaterVersion(Prompts& prompts, QWidget* parent, const QString& path);
/// Rows of a damaged file that will be missing.
void tellLosses(Prompts& prompts, QWidget* parent, const QString& path, const QList<dao::RowLoss>& losses);
/// Entries, besides the one that was told as an error, whose areas could not be stored.
void tellLostAreas(Prompts& prompts, QWidget* parent, int entries);
/// Entries without a key, which nothing finds.
void tellLostEntries(Prompts& prompts, QWidget* parent, qint64 entries);

} // namespace lingomat
