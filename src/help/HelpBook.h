#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace lingomat {

/// What stands between two headings of a page.
struct HelpSection {
    QString anchor;  ///< where a link can point at; may be empty
    QString heading; ///< empty for what comes before the first heading
    QString text;    ///< without markup, white space simplified
};

struct HelpPage {
    QString name; ///< file name: "trainer.html"
    QString title;
    QString keywords; ///< words that the search finds the page by besides its text
    QList<HelpSection> sections;
    QStringList links;    ///< targets as they stand: "selection.html#score"
    QStringList pictures; ///< sources as they stand: "pictures/trainer.png"
};

/// One line of the table of contents, with the lines below it.
struct HelpEntry {
    QString title;
    QString page; ///< "trainer.html" or "trainer.html#loop"
    QList<HelpEntry> children;
};

/// The pages of the help in one language: a folder of files in XHTML. The page `contents.html` holds the
/// table of contents as nested lists of links; pages that it does not name do not belong to the help.
class HelpBook {
public:
    explicit HelpBook(QString folder);

    [[nodiscard]] static QString contentsPage() { return QStringLiteral("contents.html"); }
    /// Whether there is a help at all.
    [[nodiscard]] bool exists() const;
    /// Whether the page (an anchor behind it is passed over) is there and readable.
    [[nodiscard]] bool hasPage(const QString& page) const;
    /// Full path of a page's file, without anchor.
    [[nodiscard]] QString pathOf(const QString& page) const;

    /// Reads the table of contents; empty where it cannot be read.
    [[nodiscard]] QList<HelpEntry> contents() const;
    /// Reads one page; nothing where the file cannot be read or is not well-formed.
    [[nodiscard]] std::optional<HelpPage> page(const QString& name) const;
    /// Reads all pages that the contents name, in their order, each once. What cannot be read is left out.
    [[nodiscard]] QList<HelpPage> pages() const;

private:
    QString m_folder;
};

/// A page or a target of a link without the anchor: "trainer.html#loop" gives "trainer.html".
[[nodiscard]] QString withoutAnchor(const QString& page);
/// The part behind the "#"; empty where there is none.
[[nodiscard]] QString anchorOf(const QString& page);

} // namespace lingomat
