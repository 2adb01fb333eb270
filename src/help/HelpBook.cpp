#include "HelpBook.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

bool isHeading(QStringView element) {
    return element.size() == 2 && element[0] == u'h' && element[1].isDigit();
}

/// What parts words although no blank stands there.
bool isBlock(QStringView element) {
    static constexpr QLatin1StringView blocks[] = {"p"_L1,  "li"_L1, "td"_L1, "th"_L1, "tr"_L1,   "br"_L1,
                                                   "dt"_L1, "dd"_L1, "ul"_L1, "ol"_L1, "table"_L1};
    return isHeading(element) || std::any_of(std::begin(blocks), std::end(blocks),
                                             [element](QLatin1StringView block) { return element == block; });
}

/// Takes a page apart while it is read.
class PageReader {
public:
    explicit PageReader(HelpPage& page) : m_page(page) { m_page.sections.append(HelpSection{}); }

    bool read(QXmlStreamReader& xml) {
        while (!xml.atEnd()) {
            switch (xml.readNext()) {
            case QXmlStreamReader::StartElement: start(xml); break;
            case QXmlStreamReader::EndElement: end(xml.name()); break;
            case QXmlStreamReader::Characters: take(xml.text()); break;
            default: break;
            }
        }
        for (HelpSection& section : m_page.sections) {
            section.heading = section.heading.simplified();
            section.text = section.text.simplified();
        }
        m_page.title = m_page.title.simplified();
        return !xml.hasError();
    }

private:
    void start(const QXmlStreamReader& xml) {
        const QStringView element = xml.name();
        const QXmlStreamAttributes attributes = xml.attributes();
        if (element == "title"_L1)
            m_target = &m_page.title;
        else if (element == "body"_L1)
            m_target = &m_page.sections.last().text;
        else if (isHeading(element))
            startSection();
        else if (isBlock(element))
            take(u" ");

        if (element == "meta"_L1 && attributes.value("name"_L1) == "keywords"_L1)
            m_page.keywords = attributes.value("content"_L1).toString();
        if (element == "a"_L1 && attributes.hasAttribute("name"_L1))
            m_page.sections.last().anchor = attributes.value("name"_L1).toString();
        if (element == "a"_L1 && attributes.hasAttribute("href"_L1))
            m_page.links.append(attributes.value("href"_L1).toString());
        if (element == "img"_L1)
            m_page.pictures.append(attributes.value("src"_L1).toString());
    }

    void end(QStringView element) {
        if (element == "title"_L1)
            m_target = nullptr;
        else if (isHeading(element))
            m_target = &m_page.sections.last().text;
        else if (isBlock(element))
            take(u" ");
    }

    void startSection() {
        m_page.sections.append(HelpSection{});
        m_target = &m_page.sections.last().heading;
    }

    void take(QStringView text) {
        if (m_target)
            m_target->append(text);
    }

    HelpPage& m_page;
    QString* m_target = nullptr;
};

/// One list of the contents and those inside it. Stands behind the start of the list.
QList<HelpEntry> readEntries(QXmlStreamReader& xml) {
    QList<HelpEntry> entries;
    while (xml.readNextStartElement()) { // each li
        HelpEntry entry;
        while (xml.readNextStartElement()) {
            if (xml.name() == "a"_L1) {
                entry.page = xml.attributes().value("href"_L1).toString();
                entry.title = xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
            } else if (xml.name() == "ul"_L1) {
                entry.children = readEntries(xml);
            } else {
                xml.skipCurrentElement();
            }
        }
        entries.append(entry);
    }
    return entries;
}

void collectPages(const QList<HelpEntry>& entries, QStringList& names) {
    for (const HelpEntry& entry : entries) {
        const QString name = withoutAnchor(entry.page);
        if (!names.contains(name))
            names.append(name);
        collectPages(entry.children, names);
    }
}

} // namespace

QString withoutAnchor(const QString& page) {
    return page.section(u'#', 0, 0);
}

QString anchorOf(const QString& page) {
    return page.section(u'#', 1);
}

HelpBook::HelpBook(QString folder) : m_folder(std::move(folder)) {}

bool HelpBook::exists() const {
    return hasPage(contentsPage());
}

bool HelpBook::hasPage(const QString& page) const {
    const QFileInfo file(pathOf(page));
    return file.isFile() && file.isReadable();
}

QString HelpBook::pathOf(const QString& page) const {
    return m_folder + u'/' + withoutAnchor(page);
}

QList<HelpEntry> HelpBook::contents() const {
    QFile file(pathOf(contentsPage()));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "ul"_L1)
            return readEntries(xml);
    }
    return {};
}

std::optional<HelpPage> HelpBook::page(const QString& name) const {
    QFile file(pathOf(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    HelpPage page;
    page.name = withoutAnchor(name);
    if (!PageReader(page).read(xml))
        return {};
    return page;
}

QList<HelpPage> HelpBook::pages() const {
    QStringList names;
    collectPages(contents(), names);
    QList<HelpPage> all;
    for (const QString& name : std::as_const(names)) {
        if (const std::optional<HelpPage> read = page(name))
            all.append(*read);
    }
    return all;
}

} // namespace lingomat
