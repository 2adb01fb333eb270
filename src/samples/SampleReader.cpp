#include "SampleReader.h"

#include "PackedList.h"
#include "SampleTable.h"

#include <QDate>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int KeySize = 60;
constexpr int LowestScore = 1;
constexpr int HighestScore = 6;

enum EntryColumn : qsizetype {
    Key,
    Wortart,
    First,
    Second = First + 4,
    Areas = Second + 4,
    Grammatical,
    Functional,
    Source,
    SamplePhraseColumn,
    AdditionalInfo,
    Entered,
    Changed,
    Score,
};

const QStringList& entryHeader() {
    static const QStringList names{
        u"key"_s,        u"part of speech"_s, u"L1 prefix"_s,     u"L1 main"_s,
        u"L1 suffix"_s,  u"L1 comment"_s,     u"L2 prefix"_s,     u"L2 main"_s,
        u"L2 suffix"_s,  u"L2 comment"_s,     u"areas"_s,         u"grammatical"_s,
        u"functional"_s, u"source"_s,         u"sample phrase"_s, u"additional info"_s,
        u"entered"_s,    u"changed"_s,        u"score"_s,
    };
    return names;
}

const QStringList& synonymHeader() {
    static const QStringList names{u"key"_s,  u"language"_s, u"prefix"_s,
                                   u"main"_s, u"suffix"_s,   u"comment"_s};
    return names;
}

const QStringList& referenceHeader() {
    static const QStringList names{u"from"_s, u"to"_s, u"type"_s};
    return names;
}

ExpressionParts expression(const SampleRow& row, qsizetype column) {
    return {row.text(column, ExpressionPartSize), row.requiredText(column + 1, ExpressionPartSize),
            row.text(column + 2, ExpressionPartSize), row.text(column + 3, ExpressionPartSize)};
}

/// The items go into criteria as they stand and travel packed: neither wildcards nor separators inside.
QString packedList(const SampleRow& row, qsizetype column, int itemSize) {
    QString packed = row.text(column, std::numeric_limits<qsizetype>::max());
    if (!packed.isEmpty() && !packed.endsWith(u';'))
        row.fail(u"'%1' does not end in ';'"_s.arg(packed));
    static const QRegularExpression reserved(u"[@'*?#\\[]"_s);
    QSet<QString> seen;
    for (const QString& item : splitPacked(packed)) {
        if (item.isEmpty() || item != extract(item) || item.contains(reserved))
            row.fail(u"'%1' is no item of a list"_s.arg(item));
        if (item.size() > itemSize)
            row.fail(u"'%1' is longer than %2 characters"_s.arg(item, QString::number(itemSize)));
        if (seen.contains(item.toCaseFolded()))
            row.fail(u"'%1' stands twice in a list"_s.arg(item));
        seen.insert(item.toCaseFolded());
    }
    return packed;
}

QString date(const SampleRow& row, qsizetype column) {
    QString text = row.text(column, DateSize);
    if (!QDate::fromString(text, u"yyyyMMdd"_s).isValid())
        row.fail(u"'%1' is no date"_s.arg(text));
    return text;
}

QString newKey(const SampleRow& row, QSet<QString>& keys) {
    static const QRegularExpression form(u"^[a-z0-9]+(-[a-z0-9]+)*$"_s);
    QString key = row.requiredText(Key, KeySize);
    if (!form.match(key).hasMatch())
        row.fail(u"'%1' is no key"_s.arg(key));
    if (keys.contains(key))
        row.fail(u"the key '%1' stands here a second time"_s.arg(key));
    keys.insert(key);
    return key;
}

QString knownKey(const SampleRow& row, qsizetype column, const QSet<QString>& keys) {
    QString key = row.requiredText(column, KeySize);
    if (!keys.contains(key))
        row.fail(u"no entry has the key '%1'"_s.arg(key));
    return key;
}

SampleEntry readEntry(const SampleRow& row, QSet<QString>& keys) {
    SampleEntry entry;
    entry.key = newKey(row, keys);
    entry.wortart = row.requiredText(Wortart, WortartSize);
    entry.first = expression(row, First);
    entry.second = expression(row, Second);
    entry.areas = packedList(row, Areas, BereichSize);
    entry.grammatical = packedList(row, Grammatical, AttributSize);
    entry.functional = packedList(row, Functional, AttributSize);
    entry.source = row.text(Source, QuelleSize);
    entry.samplePhrase = row.text(SamplePhraseColumn, BeispielsatzSize);
    entry.additionalInfo = row.text(AdditionalInfo, ZusatzinfoSize);
    entry.entered = date(row, Entered);
    entry.changed = date(row, Changed);
    if (entry.changed < entry.entered)
        row.fail(u"changed before it was entered"_s);
    entry.score = row.number(Score, LowestScore, HighestScore);
    return entry;
}

SampleSynonym readSynonym(const SampleRow& row, const QSet<QString>& keys) {
    return {knownKey(row, 0, keys), row.number(1, 1, 2), expression(row, 2)};
}

SampleReference readReference(const SampleRow& row, const QSet<QString>& keys) {
    SampleReference reference{knownKey(row, 0, keys), knownKey(row, 1, keys),
                              row.requiredText(2, ReferenceTypeSize)};
    if (reference.from == reference.to)
        row.fail(u"'%1' refers to itself"_s.arg(reference.from));
    return reference;
}

/// References count without regard to their direction.
void checkNotYetThere(const SampleRow& row, const SampleReference& reference, QSet<QString>& seen) {
    const auto [lower, upper] = std::minmax(reference.from, reference.to);
    const QString identity = lower + u'\t' + upper + u'\t' + reference.type;
    if (seen.contains(identity))
        row.fail(u"the reference stands here a second time"_s);
    seen.insert(identity);
}

} // namespace

SampleData readSampleData(const QString& folder, const QString& pair) {
    const auto path = [&](QStringView kind) { return u"%1/%2-%3.tsv"_s.arg(folder, kind, pair); };
    SampleData data;
    QSet<QString> keys;
    for (const SampleRow& row : readSampleTable(path(u"phrases"), 2)) {
        data.phrases.append(
            {row.requiredText(0, ExpressionPartSize), row.requiredText(1, ExpressionPartSize)});
        keys.insert(phraseKey(data.phrases.size()));
    }
    for (const SampleRow& row : readSampleTable(path(u"entries"), entryHeader()))
        data.entries.append(readEntry(row, keys));
    for (const SampleRow& row : readSampleTable(path(u"synonyms"), synonymHeader()))
        data.synonyms.append(readSynonym(row, keys));
    QSet<QString> seen;
    for (const SampleRow& row : readSampleTable(path(u"references"), referenceHeader())) {
        data.references.append(readReference(row, keys));
        checkNotYetThere(row, data.references.last(), seen);
    }
    return data;
}

} // namespace lingomat
