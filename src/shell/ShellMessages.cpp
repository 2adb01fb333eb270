#include "ShellMessages.h"

#include "ErrorTrap.h"
#include "Globals.h"

#include <QFileInfo>

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

} // namespace

void tellInvalidFile(Prompts& prompts) {
    reportError(prompts, uiText(u"Die Datei ist keine gültige Sprachdatenbank."_s,
                                u"The file is not a valid language database."_s));
}

void tellOldFormat(Prompts& prompts, QWidget* parent, const QString& path) {
    prompts.exclamation(parent,
                        uiText(u"Die Datei '%1' hat ein älteres Format, das nicht geöffnet werden kann."_s,
                               u"The file '%1' has an older format that cannot be opened."_s)
                            .arg(path));
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
    return {.title = uiText(u"Datenbank Öffnen"_s, u"Open Database"_s),
            .filter =
                uiText(u"LMT-Dateien (*.lmt);;Alle Dateien (*)"_s, u"LMT-files (*.lmt);;all files (*)"_s),
            .directory = currentPath.isEmpty() ? QString() : QFileInfo(currentPath).absolutePath()};
}

Message quitQuestion() {
    return yesNoQuestion(uiText(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich beenden?"_s,
                                u"Not all changes have been saved! Do you really want to quit?"_s));
}

Message proceedQuestion() {
    return yesNoQuestion(uiText(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich fortsetzen?"_s,
                                u"Not all changes have been saved! Do you really want to proceed?"_s));
}

} // namespace lingomat
