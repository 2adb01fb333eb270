#pragma once

#include <QString>
#include <QStringList>

class QListWidget;

namespace lingomat {

// What the pairs of list boxes have in common.

/// Number of the selected item, from 0; -1 without one. The item with the keyboard focus does not count.
[[nodiscard]] int ListIndex(const QListWidget& list);
[[nodiscard]] QStringList listItems(const QListWidget& list);

/// Sees to it that the widest item can be scrolled into view.
void SetzeScrollbreite(QListWidget& list);
void LeereListe(QListWidget& list);
void LeereListen(QListWidget& a, QListWidget& b);
/// Adds every item of the source to the target, in order.
void KopiereListe(const QStringList& source, QListWidget& target);
/// Moves the selected item; nothing without one. In the target the first item of that text is selected
/// afterwards, in the source none.
void VerschiebeEintrag(QListWidget& source, QListWidget& target);
/// Selects the first item that equals the text; nothing changes without one.
void WaehleEintrag(const QString& text, QListWidget& list);

} // namespace lingomat
