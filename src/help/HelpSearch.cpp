#include "HelpSearch.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int TitleWeight = 100;
constexpr int KeywordWeight = 40;
constexpr int HeadingWeight = 20;
constexpr int MostTextHits = 10; ///< a long page is not the better for saying a word often

// Length of an excerpt, in characters before and behind the place found.
constexpr qsizetype Before = 40;
constexpr qsizetype Behind = 90;

/// A text for comparison, with the place in the original that each of its characters comes from.
struct Folded {
    QString text;
    QList<qsizetype> origin;
};

/// One character without case and accents; a sharp s is two.
QString foldedLetter(QChar letter) {
    if (letter == u'ß' || letter == u'ẞ')
        return u"ss"_s;
    return QString(letter).toCaseFolded().normalized(QString::NormalizationForm_KD);
}

Folded fold(const QString& text) {
    Folded folded;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QString letters = foldedLetter(text[i]);
        for (const QChar letter : letters) {
            if (letter.isMark())
                continue;
            folded.text += letter;
            folded.origin.append(i);
        }
    }
    folded.origin.append(text.size());
    return folded;
}

/// Places where a word begins with `word`.
QList<qsizetype> findWordStarts(const QString& text, const QString& word) {
    QList<qsizetype> places;
    for (qsizetype i = text.indexOf(word); i >= 0; i = text.indexOf(word, i + 1)) {
        if (i == 0 || !text[i - 1].isLetterOrNumber())
            places.append(i);
    }
    return places;
}

int count(const QString& text, const QString& word) {
    return static_cast<int>(findWordStarts(fold(text).text, word).size());
}

/// How much one word speaks for a page; 0: not at all.
int weightOf(const HelpPage& page, const QString& word) {
    int weight = 0;
    if (count(page.title, word) > 0)
        weight += TitleWeight;
    if (count(page.keywords, word) > 0)
        weight += KeywordWeight;
    int inText = 0;
    for (const HelpSection& section : page.sections) {
        if (count(section.heading, word) > 0)
            weight += HeadingWeight;
        inText += count(section.text, word);
    }
    return weight + std::min(inText, MostTextHits);
}

/// The weight of a page that holds every word; 0 for any other.
int weightOf(const HelpPage& page, const QStringList& words) {
    int sum = 0;
    for (const QString& word : words) {
        const int weight = weightOf(page, word);
        if (weight == 0)
            return 0;
        sum += weight;
    }
    return sum;
}

QString excerptAround(const QString& text, qsizetype place) {
    qsizetype from = std::max<qsizetype>(0, place - Before);
    qsizetype to = std::min(text.size(), place + Behind);
    while (from > 0 && !text[from - 1].isSpace())
        --from;
    while (to < text.size() && !text[to].isSpace())
        ++to;
    const QString start = from > 0 ? u"… "_s : QString();
    const QString end = to < text.size() ? u" …"_s : QString();
    return start + text.sliced(from, to - from).trimmed() + end;
}

/// The section with most of the words in it; among equals the first.
const HelpSection* bestSection(const HelpPage& page, const QStringList& words) {
    const HelpSection* best = nullptr;
    qsizetype most = 0;
    for (const HelpSection& section : page.sections) {
        const qsizetype found = std::ranges::count_if(words, [&section](const QString& word) {
            return count(section.heading, word) + count(section.text, word) > 0;
        });
        if (found > most) {
            most = found;
            best = &section;
        }
    }
    return best;
}

HelpHit hitFor(const HelpPage& page, const QStringList& words) {
    HelpHit hit{page.name, page.title, {}};
    const HelpSection* section = bestSection(page, words);
    if (!section) { // found by title and keywords alone
        const auto written =
            std::ranges::find_if(page.sections, [](const HelpSection& any) { return !any.text.isEmpty(); });
        hit.excerpt = written == page.sections.end() ? QString() : excerptAround(written->text, 0);
        return hit;
    }
    if (!section->anchor.isEmpty())
        hit.page += u'#' + section->anchor;
    const auto places = findWords(section->text, words);
    hit.excerpt = excerptAround(section->text, places.isEmpty() ? 0 : places.first().first);
    return hit;
}

} // namespace

QStringList searchWords(const QString& question) {
    QStringList words;
    QString word;
    const QString folded = fold(question).text + u' ';
    for (const QChar letter : folded) {
        if (letter.isLetterOrNumber()) {
            word += letter;
        } else if (!word.isEmpty()) {
            words.append(word);
            word.clear();
        }
    }
    words.removeDuplicates();
    return words;
}

QList<std::pair<qsizetype, qsizetype>> findWords(const QString& text, const QStringList& words) {
    QList<std::pair<qsizetype, qsizetype>> found;
    const Folded folded = fold(text);
    for (const QString& word : words) {
        const QList<qsizetype> places = findWordStarts(folded.text, word);
        for (const qsizetype place : places) {
            const qsizetype start = folded.origin[place];
            const qsizetype last = folded.origin[place + word.size() - 1];
            found.append({start, last + 1 - start});
        }
    }
    std::ranges::sort(found);
    return found;
}

QList<HelpHit> searchHelp(const QList<HelpPage>& pages, const QString& question) {
    const QStringList words = searchWords(question);
    if (words.isEmpty())
        return {};
    QList<std::pair<int, HelpHit>> weighed;
    for (const HelpPage& page : pages) {
        if (const int weight = weightOf(page, words))
            weighed.append({weight, hitFor(page, words)});
    }
    std::ranges::stable_sort(weighed, std::ranges::greater{}, [](const auto& pair) { return pair.first; });
    QList<HelpHit> hits;
    for (const auto& [weight, hit] : std::as_const(weighed))
        hits.append(hit);
    return hits;
}

} // namespace lingomat
