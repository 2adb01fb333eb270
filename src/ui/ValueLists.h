#pragma once

#include "Prompts.h"

#include <QCollator>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

class QComboBox;

namespace lingomat {

/// The values behind the combo boxes that the list and the selection form share, one sorted list a kind:
/// "Wortart", "Bereich", "Quelle", "Grammatikalisch", "Funktionales", "Auswahl".
class ValueLists final : public QObject {
    Q_OBJECT

public:
    explicit ValueLists(Prompts& prompts, QObject* parent = nullptr);

    /// Adds a value unless it stands there. Blanks at its ends go; an empty text is none.
    /// Any other kind raises 19001.
    void AddToComboBoxes(const QString& text, const QString& kind);
    /// Empties the list of a box: "Wortart", "Bereich", "Quelle", "GrammatikalischBox", "FunktionalesBox".
    /// Any other name reports "Error in ClearComboBoxes!" and gives false.
    bool ClearComboBoxes(const QString& box);
    /// Empties the list of a kind, "Auswahl" among them. The text in a box stays, here and below.
    void clear(const QString& kind);
    /// Takes one value out, where it stands.
    void remove(const QString& text, const QString& kind);

    [[nodiscard]] const QStringList& values(const QString& kind) const;
    /// Makes the box show the values of the kind, now and whenever they change. Its text stays what it is.
    void attach(QComboBox& box, const QString& kind);

private:
    struct Values {
        QStringList sorted;
        QSet<QString> known;
        QList<QComboBox*> boxes;
    };

    [[nodiscard]] Values& of(const QString& kind);
    [[nodiscard]] bool isBefore(const QString& left, const QString& right) const;
    void forget(const QObject* box);

    Prompts& m_prompts;
    QCollator m_order;
    QHash<QString, Values> m_kinds;
};

} // namespace lingomat
