#include "Form2.h"

#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "ListPairFrame.h"
#include "LstFkt.h"
#include "RelationenFunktionen.h"
#include "SelectionFilters.h"
#include "SharedState.h"
#include "ValueLists.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

namespace lingomat {

/// What a pair offers in all.
QStringList Form2::master(const ListPair& pair) const {
    return pair.isReferences() ? referenceTypes(m_context.state) : m_context.values.values(pair.valueKind());
}

void Form2::InitialisiereSelectionboxes() {
    trapped(m_context.prompts, [this] {
        for (const ListPair& pair : m_lists->pairs()) {
            LeereListen(*pair.left, *pair.right);
            KopiereListe(master(pair), *pair.left);
        }
        SetScrollbarsToAllSelectionBoxes();
    });
}

void Form2::SetScrollbarsToAllSelectionBoxes() {
    for (const ListPair& pair : m_lists->pairs()) {
        SetzeScrollbreite(*pair.left);
        SetzeScrollbreite(*pair.right);
    }
}

void Form2::NeuerAuswahlwert(const QString& text, const QString& kind) {
    const QString value = extract(text);
    const ListPair* pair = m_lists->pairOfValues(kind);
    if (value.isEmpty() || !pair)
        return;
    // A value that the list has stands twice until the list is filled again.
    pair->left->addItem(value);
    SetzeScrollbreite(*pair->left);
}

void Form2::cmdAdd_Click() {
    if (const ListPair* pair = currentPair())
        VerschiebeEintrag(*pair->left, *pair->right);
}

void Form2::cmdRemove_Click() {
    if (const ListPair* pair = currentPair())
        VerschiebeEintrag(*pair->right, *pair->left);
}

void Form2::cmdAddAll_Click() {
    if (const ListPair* pair = currentPair())
        refill(*pair, *pair->right);
}

void Form2::cmdRemoveAll_Click() {
    if (const ListPair* pair = currentPair())
        refill(*pair, *pair->left);
}

/// Puts everything that the pair offers into one of its lists.
void Form2::refill(const ListPair& pair, QListWidget& target) {
    trapped(m_context.prompts, [&] {
        LeereListen(*pair.left, *pair.right);
        KopiereListe(master(pair), target);
    });
}

bool Form2::AllSelected(const QListWidget& left, const QListWidget& right) {
    return allSelected(left.count(), right.count());
}

} // namespace lingomat
