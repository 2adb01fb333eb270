#include "PackedList.h"

#include "ExpressionText.h"

namespace lingomat {

namespace {

constexpr QChar ListSeparator = u';';
constexpr QChar FileSeparator = u'@';

QString repacked(const QString& text, QChar from, QChar to) {
    return text.left(text.lastIndexOf(from) + 1).replace(from, to);
}

} // namespace

QString ArrayDBToListe(const QString& text) {
    return repacked(text, FileSeparator, ListSeparator);
}

QString ArrayListeToDB(const QString& text) {
    return repacked(text, ListSeparator, FileSeparator);
}

QString ArrayGetItes(const QString& text, int index, QChar separator) {
    qsizetype begin = 0;
    for (int number = 1; number <= index; ++number) {
        const qsizetype end = text.indexOf(separator, begin);
        if (end < 0) {
            return {};
        }
        if (number == index) {
            return extract(text.mid(begin, end - begin));
        }
        begin = end + 1;
    }
    return {};
}

QStringList splitPacked(const QString& text) {
    QStringList items = text.split(ListSeparator);
    items.removeLast();
    return items;
}

bool ListContains(const QString& text, const QStringList& list) {
    return list.contains(text, Qt::CaseSensitive);
}

} // namespace lingomat
