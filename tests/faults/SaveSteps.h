#pragma once

#include <QString>

namespace lingomat {

/// What one round of the list saver does to a list of so many rows: it deletes the first ones, changes those
/// that follow, and adds some.
struct SaveSteps {
    int deleted;
    int changed;
    int added;
};

[[nodiscard]] inline SaveSteps saveSteps(int round, int rows) {
    return {rows > 70 ? 4 : 0, 45 + round % 7, 6 + round % 3};
}

/// The main part and the source of the i-th changed row, counted from 0.
[[nodiscard]] inline QString changedText(int round, int i) {
    return QStringLiteral("c%1.%2").arg(round).arg(i);
}

/// The same of the i-th added row.
[[nodiscard]] inline QString addedText(int round, int i) {
    return QStringLiteral("n%1.%2").arg(round).arg(i);
}

} // namespace lingomat
