#include "ConvertMessages.h"

#include "Globals.h"
#include "ShellMessages.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QString lossText(const dao::RowLoss& loss) {
    const QString table = loss.Table == u"MSysObjects"_s
                              ? uiText(u"Verzeichnis der Tabellen"_s, u"list of tables"_s)
                              : loss.Table;
    if (loss.Rows == 0)
        return table + uiText(u": Anzahl unbekannt"_s, u": number not known"_s);
    const QString number = QString::number(loss.Rows);
    return table + u": "_s +
           (loss.IsUncertain ? uiText(u"%1 oder mehr"_s, u"%1 or more"_s).arg(number) : number);
}

} // namespace

Message convertQuestion(const QString& path) {
    return {.icon = QMessageBox::Warning,
            .title = uiText(u"Konvertieren"_s, u"Convert"_s),
            .text =
                uiText(u"Die Datei '%1' ist im alten mdb-Format. Um mit Ihrer Datenbank arbeiten zu können, "
                       u"muß sie ins aktuelle lmt-Format konvertiert werden. Soll die Konvertierung "
                       u"vorgenommen werden?"_s,
                       u"The file '%1' is in the old mdb-format. In order to work with the database is has "
                       u"to be converted into the new lmt-format. Shall the conversion be started?"_s)
                    .arg(path),
            .buttons = QMessageBox::Yes | QMessageBox::No,
            .defaultButton = QMessageBox::Yes};
}

QString proposedName(const QString& oldPath) {
    constexpr qsizetype extension = 4;
    const bool hasMore = QFileInfo(oldPath).fileName().size() > extension;
    const QString base = hasMore ? oldPath.chopped(extension) : oldPath;
    const QString name = base + u".lmt"_s;
    return name != oldPath ? name : base + uiText(u"_konvertiert.lmt"_s, u"_converted.lmt"_s);
}

FileDialogRequest convertedNameRequest(const QString& oldPath) {
    FileDialogRequest request = openDatabaseRequest(oldPath); // the filters are the same
    request.title = uiText(u"Name für die konvertierte Datenbank"_s, u"Name for Converted Database"_s);
    request.directory = proposedName(oldPath);
    return request;
}

void tellNoLanguages(Prompts& prompts, QWidget* parent) {
    prompts.critical(
        parent,
        uiText(
            u"Die Datenbank enthält keine Information über die enthaltenen Sprachen. Aus diesem Grund können "
            u"auch für die konvertierte Datenbank keine Spracheninformationen eingetragen werden!"_s,
            u"The database has no information about the contained languages. For this reason no language "
            u"information can be stored in the converted database!"_s));
}

void tellSourceIsTarget(Prompts& prompts, QWidget* parent, const QString& path) {
    prompts.exclamation(
        parent, uiText(u"Die Datei '%1' wird gerade konvertiert und kann nicht überschrieben werden. Bitte "
                       u"wählen Sie einen anderen Namen."_s,
                       u"The file '%1' is the one being converted and cannot be overwritten. Please choose "
                       u"another name."_s)
                    .arg(path));
}

void tellLaterVersion(Prompts& prompts, QWidget* parent, const QString& path) {
    prompts.exclamation(
        parent,
        uiText(u"Die Datei '%1' stammt von einer neueren Version des Programms und kann nicht geöffnet "
               u"werden."_s,
               u"The file '%1' was made by a later version of the program and cannot be opened."_s)
            .arg(path));
}

void tellLosses(Prompts& prompts, QWidget* parent, const QString& path, const QList<dao::RowLoss>& losses) {
    QStringList lines;
    for (const dao::RowLoss& loss : losses)
        lines.append(lossText(loss));
    prompts.exclamation(
        parent,
        uiText(
            u"Die Datei '%1' ist beschädigt. Diese Zeilen ihrer Tabellen können nicht gelesen werden und "
            u"werden in der konvertierten Datenbank fehlen:"_s,
            u"The file '%1' is damaged. These rows of its tables cannot be read and will be missing in the "
            u"converted database:"_s)
                .arg(path) +
            u"\n\n"_s + lines.join(u'\n'));
}

void tellLostAreas(Prompts& prompts, QWidget* parent, int entries) {
    prompts.exclamation(
        parent,
        uiText(u"Bei %1 weiteren Einträgen konnten die Bereiche nicht vollständig gespeichert werden."_s,
               u"The areas of %1 more entries could not be stored completely."_s)
            .arg(entries));
}

void tellLostEntries(Prompts& prompts, QWidget* parent, qint64 entries) {
    prompts.exclamation(parent, uiText(u"%1 Einträge ohne Schlüssel wurden nicht übernommen."_s,
                                       u"%1 entries without a key were not carried over."_s)
                                    .arg(entries));
}

} // namespace lingomat
