#pragma once

#include "ExpressionText.h"

#include <QList>
#include <QString>

namespace lingomat {

// The content of one sample database, before it is one. Texts fit the fields that they go to.

struct SamplePhrase {
    QString first;
    QString second;
};

struct SampleEntry {
    QString key; ///< names the entry in synonyms and references
    QString wortart;
    ExpressionParts first;
    ExpressionParts second;
    QString areas; ///< packed, as are the attributes: each item followed by ";"
    QString grammatical;
    QString functional;
    QString source;
    QString samplePhrase;
    QString additionalInfo;
    QString entered; ///< "yyyymmdd", as is the other date
    QString changed;
    int score = 6; ///< 1 to 6
};

struct SampleSynonym {
    QString key;
    int language = 1; ///< 1 or 2
    ExpressionParts parts;
};

struct SampleReference {
    QString from;
    QString to;
    QString type;
};

struct SampleData {
    QList<SamplePhrase> phrases; ///< the first rows of the database; number n has the key "phrase-n"
    QList<SampleEntry> entries;
    QList<SampleSynonym> synonyms;
    QList<SampleReference> references;
};

/// Key of a phrase, by its number from 1.
[[nodiscard]] inline QString phraseKey(qsizetype number) {
    return QStringLiteral("phrase-%1").arg(number);
}

} // namespace lingomat
