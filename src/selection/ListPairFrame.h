#pragma once

#include <QGroupBox>
#include <QString>

#include <array>

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace lingomat {

/// What is known of a pair of lists beforehand.
struct ListPairRule {
    const char16_t* kind;      ///< also the middle of the lists' names: lstQuelleLinks
    const char16_t* valueKind; ///< its kind among the value lists; "Referenzen" has none there
    int tab;                   ///< number of its tab, from 0
};

inline constexpr std::array<ListPairRule, 6> listPairRules{{
    {u"Quelle", u"Quelle", 0},
    {u"Bereich", u"Bereich", 1},
    {u"Wortart", u"Wortart", 2},
    {u"Grammatikalisch", u"Grammatikalisch", 4},
    {u"Funktional", u"Funktionales", 5},
    {u"Referenzen", u"Referenzen", 7},
}};

/// The left list holds what can be chosen, the right one what was chosen.
struct ListPair {
    ListPairRule rule{};
    QListWidget* left = nullptr;
    QListWidget* right = nullptr;
    [[nodiscard]] QString kind() const { return QString::fromUtf16(rule.kind); }
    [[nodiscard]] QString valueKind() const { return QString::fromUtf16(rule.valueKind); }
    [[nodiscard]] bool isReferences() const;
};

/// The frame that the pairs of lists share; one pair shows at a time, with the buttons between its lists.
class ListPairFrame final : public QGroupBox {
    Q_OBJECT

public:
    explicit ListPairFrame(QWidget* parent = nullptr);

    [[nodiscard]] const std::array<ListPair, listPairRules.size()>& pairs() const { return m_pairs; }
    // The pair of that kind, kind of values, or tab; nullptr for any other.
    [[nodiscard]] const ListPair* pairOfKind(const QString& kind) const;
    [[nodiscard]] const ListPair* pairOfValues(const QString& valueKind) const;
    [[nodiscard]] const ListPair* pairOfTab(int tab) const;

    void hidePairs();
    void showPair(const ListPair& pair);
    /// Names the lists for screen readers, each after the caption of its tab.
    void setAccessibleNames(const ListPair& pair, const QString& caption);

Q_SIGNALS:
    void addRequested();    ///< also by a double click in a left list
    void removeRequested(); ///< also by a double click in a right list
    void addAllRequested();
    void removeAllRequested();

private:
    QListWidget* addList(const QString& name, int column);
    QLabel* addLabel(const QString& name, int column);
    QPushButton* addButton(const QString& name, void (ListPairFrame::*signal)());
    QCheckBox* addOption(const QString& name, int row);
    void connectDoubleClicks(const ListPair& pair);

    std::array<ListPair, listPairRules.size()> m_pairs;
    QLabel* m_leftLabel;
    QLabel* m_rightLabel;
    QCheckBox* m_option1;
    QCheckBox* m_option2;
};

} // namespace lingomat
