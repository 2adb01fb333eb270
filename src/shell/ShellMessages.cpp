#include "ShellMessages.h"

#include "ErrorTrap.h"
#include "Globals.h"
#include "Trainer.h"

#include <QFileInfo>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

Message yesNoQuestion(const QString& text) {
    return {.icon = QMessageBox::Question,
            .title = {},
            .text = text,
            .buttons = QMessageBox::Yes | QMessageBox::No,
            .defaultButton = QMessageBox::No};
}

/// What the order of the Trainer means for the printout. The third text is half translated either way.
QString printOrderText(const Trainer& trainer) {
    if (trainer.Reihenfolge_sequentiell)
        return uiText(u"Für den Vokabeltrainer ist die Option 'Sequentiell' eingestellt. Die Vokabeln "
                      u"werden in der selben Reihenfolge wie in der Vokabelliste ausgedruckt."_s,
                      u"For the Trainer the option 'sequential' is set. The vocabulary will be printed out "
                      u"in the same order as currently in the Vocab List."_s);
    if (trainer.Reihenfolge_shuffle)
        return uiText(u"Für den Vokabeltrainer ist die Option 'Mischen' eingestellt. Die Vokabeln werden "
                      u"vor dem Ausdrucken gemischt."_s,
                      u"For the Trainer the option 'Shuffle' is set. The vocabulary will be shuffled before "
                      u"printed out."_s);
    return uiText(u"Für den Vokabeltrainer ist die Option 'Random' eingestellt. The vocabulary will be "
                  u"shuffled before printed out."_s,
                  u"For the Trainer the option 'Random' is set. Die Vokabeln werden vor dem Ausdrucken "
                  u"gemischt."_s);
}

FileDialogRequest databaseRequest(const QString& title, const QString& currentPath) {
    return {.title = title,
            .filter =
                uiText(u"LMT-Dateien (*.lmt);;Alle Dateien (*)"_s, u"LMT-files (*.lmt);;all files (*)"_s),
            .directory = currentPath.isEmpty() ? QString() : QFileInfo(currentPath).absolutePath()};
}

} // namespace

void tellInvalidFile(Prompts& prompts) {
    reportError(prompts, uiText(u"Die Datei ist keine gültige Sprachdatenbank."_s,
                                u"The file is not a valid language database."_s));
}

void tellDatabaseEmpty(Prompts& prompts, QWidget* parent) {
    prompts.message(parent,
                    {.title = {}, .text = uiText(u"Die Datenbank ist leer!"_s, u"The database is empty!"_s)});
}

void tellSampleWillOpen(Prompts& prompts, QWidget* parent) {
    prompts.message(parent,
                    {.title = {},
                     .text = uiText(u"Es wird nun die Beispieldatenbank geöffnet.\n"
                                    u"Diese Sprachdatenbank enthält deutsche und spanische Vokabeln."_s,
                                    u"The sample database will be opened now.\n"
                                    u"This language database consists of German and English vocabulary."_s)});
}

void tellLanguagesMissing(Prompts& prompts, QWidget* parent) {
    prompts.exclamation(parent,
                        uiText(u"Ohne Angabe der Sprachen kann die Datenbank nicht angelegt werden!"_s,
                               u"The database can not be created, if there are no languages specified!"_s));
}

void tellFileNotDeleted(Prompts& prompts, QWidget* parent, const QString& path) {
    LastErrorText =
        uiText(u"Die Datei '%1' kann nicht gelöscht werden."_s, u"The file '%1' cannot be deleted."_s)
            .arg(path);
    prompts.message(parent, {.title = {}, .text = LastErrorText});
}

void tellScreenTooSmall(Prompts& prompts, QWidget* parent) {
    prompts.exclamation(
        parent, uiText(u"Die Bildschirmauflösung ist zu gering! Stellen Sie eine Bildschirmauflösung von "
                       u"mindestens 800x600 Pixel ein."_s,
                       u"The screen resolution is too low! Set the resolution of your screen to 800x600 "
                       u"pixels or higher."_s));
}

void welcome(Prompts& prompts, QWidget* parent) {
    prompts.message(
        parent, {.title = uiText(u"Willkommen!"_s, u"Welcome!"_s),
                 .text = uiText(
                     u"Willkommen bei Lingomat!\n\n"
                     u"Das Programm hat die Beispieldatenbank geöffnet.\n\n"
                     u"Die Beispieldatenbank enthält deutsche und spanische Vokabeln.\n\n"
                     u"Sie können diese Datenbank dazu verwenden, sich mit dem Programm vertraut zu "
                     u"machen,\n\n"
                     u"oder Sie können eine eigene Datenbank anlegen bzw. eine bereits bestehende laden."_s,
                     u"Welcome to Lingomat!\n\n"
                     u"The program has opened the sample database.\n\n"
                     u"The sample database consists of German and English vocabulary.\n\n"
                     u"You can use this database in order to get familiar with the features of "
                     u"Lingomat,\n\n"
                     u"or you can create your own database or open an already existing one."_s)});
}

FileDialogRequest openDatabaseRequest(const QString& currentPath) {
    return databaseRequest(uiText(u"Datenbank Öffnen"_s, u"Open Database"_s), currentPath);
}

FileDialogRequest newDatabaseRequest(const QString& currentPath) {
    return databaseRequest(uiText(u"Neue Datenbank"_s, u"New Database"_s), currentPath);
}

Message quitQuestion() {
    return yesNoQuestion(uiText(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich beenden?"_s,
                                u"Not all changes have been saved! Do you really want to quit?"_s));
}

Message proceedQuestion() {
    return yesNoQuestion(uiText(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich fortsetzen?"_s,
                                u"Not all changes have been saved! Do you really want to proceed?"_s));
}

Message overwriteQuestion(const QString& path) {
    return {.icon = QMessageBox::Question,
            .title = {},
            .text =
                uiText(u"Datei "_s, u"File "_s) + path +
                uiText(u" existiert bereits. Datei überschreiben?"_s, u" already exists. Overwrite file?"_s),
            .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
            .defaultButton = QMessageBox::Yes};
}

Message printQuestion(const Trainer& trainer) {
    const QString advice =
        uiText(u"Wenn Sie die Vokabeln in einer anderen Reihenfolge drucken wollen, ändern Sie die "
               u"Reihenfolgenoption bzw. sortieren Sie die Vokabeln in der Vokabelliste."_s,
               u"If you want to print out the vocabulary in a different order, change the order option or "
               u"sort the vocabulary in the Vocab List."_s);
    const QString question =
        uiText(u"Sollen die Vokabeln in der aktuell eingestellten Reihenfolge ausgedruckt werden?"_s,
               u"Shall the vocabulary be printed out in the current order?"_s);
    return {.title = uiText(u"Vokabelreihenfolge OK?"_s, u"Order of vocabulary OK?"_s),
            .text = printOrderText(trainer) + "\n\n"_L1 + advice + "\n\n"_L1 + question,
            .buttons = QMessageBox::Yes | QMessageBox::No,
            .defaultButton = QMessageBox::Yes};
}

CDBCreator::Notifier creatorNotifier(Prompts& prompts) {
    return {.fileExists =
                [&prompts](const QString& path) {
                    prompts.message(nullptr, {.title = {},
                                              .text = uiText(u"Die Datei '%1' exisitert bereits."_s,
                                                             u"The file '%1' already exists."_s)
                                                          .arg(path)});
                },
            .reportError = [&prompts](const QString& description) { reportError(prompts, description); },
            .internalError =
                [&prompts] {
                    prompts.critical(nullptr, uiText(u"Es ist ein interner Fehler aufgetreten!"_s,
                                                     u"An internal error occured!"_s));
                    std::quick_exit(EXIT_FAILURE);
                },
            .storeError = [](const QString& description) { LastErrorText = description; }};
}

} // namespace lingomat
