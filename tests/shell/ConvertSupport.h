#pragma once

#include "JetFiles.h"
#include "Prompts.h"
#include "TestProgram.h"

#include <QHash>
#include <QStringList>

#include <deque>

namespace lingomat {

/// Prompts that want every file converted, and take down what is said.
class ConvertingPrompts final : public Prompts {
public:
    QMessageBox::StandardButton message(QWidget* parent, const Message& message) override;
    int exec(QDialog&) override { return QDialog::Rejected; }
    std::optional<QString> openFile(QWidget*, const FileDialogRequest&) override { return fileToOpen; }
    std::optional<QString> saveFile(QWidget*, const FileDialogRequest& request) override;
    void beep() override {}

    /// How often something that contains the text was said.
    [[nodiscard]] qsizetype told(const QString& text) const { return texts.filter(text).size(); }

    QString fileToOpen;
    QString newFile;
    std::deque<QString> otherNames; ///< given before `newFile`
    QMessageBox::StandardButton overwrite = QMessageBox::Yes;
    QStringList texts; ///< of all messages but the question of the conversion
    int questions = 0;
    QString statusAtMessage; ///< of the progress window, when the last message came
    int rowsAtMessage = 0;   ///< maximum of its bar then
};

/// A row of table `Vokabular` of an older version: its fields by name. What is not told is Null.
using OldRow = QHash<QString, dao::Value>;

/// Writes a file of an older version into the program's own store. With version 0 it has no property of that
/// name; `languages` is the whole property, and Null stands for none.
struct OldDatabase {
    int version = 2;
    dao::Value languages = QStringLiteral("Lang1=Deutsch@Lang2=Englisch");
    QString prefix1 = QStringLiteral("Lang1");
    QString prefix2 = QStringLiteral("Lang2");
    QList<OldRow> rows{};
    QStringList missingFields{};
    QStringList extraFields{};
};
void writeOldDatabase(const QString& path, const OldDatabase& wanted);

/// All rows of a table of a file, as lines of text, in the order of the file's keys.
[[nodiscard]] QStringList tableRows(const QString& path, const QString& table);
/// Names of the areas of every entry, by its key, separated by "|".
[[nodiscard]] QHash<qint64, QString> areasOfEntries(const QString& path);

} // namespace lingomat
