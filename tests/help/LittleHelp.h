#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace lingomat {

/// A program folder with a help of three pages in it, which goes with the test.
class LittleHelp {
public:
    LittleHelp() {
        for (const char* language : {"en", "de"}) {
            const QString prefix = QStringLiteral("help/%1/").arg(QString::fromUtf8(language));
            write(prefix + QStringLiteral("contents.html"),
                  "<html><head><title>Contents</title></head><body><h1>Help</h1><ul>"
                  "<li><a href=\"trainer.html\">Trainer</a><ul>"
                  "<li><a href=\"trainer.html#loop\">Loop</a></li></ul></li>"
                  "<li><a href=\"list.html\">Vocab List</a></li>"
                  "</ul></body></html>");
            write(prefix + QStringLiteral("trainer.html"),
                  "<html><head><title>Trainer</title><meta name=\"keywords\" content=\"exam\"/></head><body>"
                  "<h1>Trainer</h1><p>It asks. See the <a href=\"list.html\">list</a> or "
                  "<a href=\"gone.html\">nothing</a>.</p><h2><a name=\"loop\">The loop</a></h2>"
                  "<p>Wrong answers come back, the caf\xC3\xA9 stays open.</p>"
                  "<p><img src=\"pictures/wide.png\"/></p></body></html>");
            write(prefix + QStringLiteral("list.html"),
                  "<html><head><title>Vocab List</title></head><body><h1>Vocab List</h1>"
                  "<p>Rows of the list; a trainer reads them. Stra\xC3\x9F"
                  "e.</p></body></html>");
        }
    }

    [[nodiscard]] QString programFolder() const { return m_folder.path(); }
    [[nodiscard]] QString pages() const { return m_folder.filePath(QStringLiteral("help/en")); }
    void remove(const QString& file) const { QFile::remove(m_folder.filePath(file)); }

    void write(const QString& name, const QByteArray& bytes) const {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("the test's help cannot be written");
    }

private:
    QTemporaryDir m_folder;
};

} // namespace lingomat
