#include "ListColumns.h"

#include "Globals.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace lingomat {

int firstWidth(ColumnWidth width, int defaultWidth) {
    switch (width) {
    case ColumnWidth::Zero: return 0;
    case ColumnWidth::Third: return qRound(defaultWidth / 3.0);
    case ColumnWidth::Default: return defaultWidth;
    case ColumnWidth::Double: return 2 * defaultWidth;
    }
    return defaultWidth;
}

bool columnIsGuarded(int column, const ColumnOptions& options) {
    for (const ListColumnRule& rule : listColumnTable) {
        if (rule.number == column && rule.width == ColumnWidth::Zero)
            return true;
    }
    for (const ListColumnRule& rule : listColumnTable) {
        if (rule.option && !options.isShown(*rule.option))
            return column == rule.number || column == rule.number + 1;
    }
    return false;
}

int countRows(int rows, int heightOfRow1) {
    if (rows < 2)
        return 0;
    const bool onlyPlaceholder = rows == 2 && heightOfRow1 <= 0;
    return onlyPlaceholder ? 0 : rows - 1;
}

QString listTitle(int rows, int heightOfRow1) {
    const QString title = uiText(u"Vokabelliste"_s, u"Vocab List"_s);
    if (rows < 2)
        return title;
    return title + u" - "_s + QString::number(countRows(rows, heightOfRow1)) +
           uiText(u" Einträge"_s, u" entries"_s);
}

} // namespace lingomat
