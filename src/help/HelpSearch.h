#pragma once

#include "HelpBook.h"

namespace lingomat {

/// A page that the search found.
struct HelpHit {
    QString page;    ///< with the anchor of the section that the excerpt is from
    QString title;   ///< of the page
    QString excerpt; ///< some words around the first place found
};

/// The words of a question as the search compares them: without case, accents and punctuation.
[[nodiscard]] QStringList searchWords(const QString& question);

/// The pages that hold every word of the question, as a whole word or as the beginning of one; the likeliest
/// first: a title weighs more than a keyword, a keyword more than a heading, a heading more than the text.
/// Pages of equal weight stay in their order. A question without a word finds nothing.
[[nodiscard]] QList<HelpHit> searchHelp(const QList<HelpPage>& pages, const QString& question);

/// Where the words of the question stand in a text, as start and length in the text's own characters.
[[nodiscard]] QList<std::pair<qsizetype, qsizetype>> findWords(const QString& text, const QStringList& words);

} // namespace lingomat
