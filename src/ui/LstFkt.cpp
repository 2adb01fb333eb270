#include "LstFkt.h"

#include <QListWidget>

namespace lingomat {

int ListIndex(const QListWidget& list) {
    const auto selected = list.selectedItems();
    return selected.isEmpty() ? -1 : list.row(selected.first());
}

QStringList listItems(const QListWidget& list) {
    QStringList items;
    items.reserve(list.count());
    for (int row = 0; row < list.count(); ++row)
        items.append(list.item(row)->text());
    return items;
}

void SetzeScrollbreite(QListWidget& list) {
    // The view measures its items by itself, but not while it elides them or takes all to be of one size.
    list.setTextElideMode(Qt::ElideNone);
    list.setUniformItemSizes(false);
    list.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void LeereListe(QListWidget& list) {
    list.clear();
    SetzeScrollbreite(list);
}

void LeereListen(QListWidget& a, QListWidget& b) {
    LeereListe(a);
    LeereListe(b);
}

void KopiereListe(const QStringList& source, QListWidget& target) {
    target.addItems(source);
}

void VerschiebeEintrag(QListWidget& source, QListWidget& target) {
    const int index = ListIndex(source);
    if (index < 0)
        return;
    const QString text = source.item(index)->text();
    target.addItem(text);
    WaehleEintrag(text, target);
    delete source.takeItem(index);
    // The view selects a neighbour by itself; the next click on a button would move that one along.
    source.clearSelection();
    SetzeScrollbreite(source);
    SetzeScrollbreite(target);
}

void WaehleEintrag(const QString& text, QListWidget& list) {
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->text() == text) {
            list.setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
            return;
        }
    }
}

} // namespace lingomat
