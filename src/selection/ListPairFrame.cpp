#include "ListPairFrame.h"

#include "Globals.h"
#include "LstFkt.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

enum Column { LeftLists, Buttons, RightLists };
enum Row { Labels, Lists, FirstOption, SecondOption };

} // namespace

bool ListPair::isReferences() const {
    return QStringView(rule.kind) == u"Referenzen";
}

ListPairFrame::ListPairFrame(QWidget* parent) : QGroupBox(parent) {
    setObjectName(u"frmListboxes"_s);
    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(LeftLists, 1);
    grid->setColumnStretch(RightLists, 1);
    grid->setRowStretch(Lists, 1);

    m_leftLabel = addLabel(u"lblLinks"_s, LeftLists);
    std::transform(listPairRules.begin(), listPairRules.end(), m_pairs.begin(), [this](const auto& rule) {
        const QString name = u"lst"_s + QString::fromUtf16(rule.kind);
        return ListPair{rule, addList(name + u"Links"_s, LeftLists), nullptr};
    });

    auto* buttons = new QVBoxLayout;
    buttons->addStretch();
    buttons->addWidget(addButton(u"cmdAdd"_s, &ListPairFrame::addRequested));
    buttons->addWidget(addButton(u"cmdRemove"_s, &ListPairFrame::removeRequested));
    buttons->addSpacing(buttons->spacing());
    buttons->addWidget(addButton(u"cmdAddAll"_s, &ListPairFrame::addAllRequested));
    buttons->addWidget(addButton(u"cmdRemoveAll"_s, &ListPairFrame::removeAllRequested));
    buttons->addStretch();
    grid->addLayout(buttons, Lists, Buttons);

    m_rightLabel = addLabel(u"lblRechts"_s, RightLists);
    for (ListPair& pair : m_pairs) {
        pair.right = addList(u"lst"_s + pair.kind() + u"Rechts"_s, RightLists);
        connectDoubleClicks(pair);
    }
    m_option1 = addOption(u"chkRefOption1"_s, FirstOption);
    m_option2 = addOption(u"chkRefOption2"_s, SecondOption);
    hidePairs();
}

QListWidget* ListPairFrame::addList(const QString& name, int column) {
    auto* list = new QListWidget(this);
    list->setObjectName(name);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setMinimumSize(list->fontMetrics().averageCharWidth() * 8, list->fontMetrics().height() * 8);
    SetzeScrollbreite(*list);
    static_cast<QGridLayout*>(layout())->addWidget(list, Lists, column);
    return list;
}

QLabel* ListPairFrame::addLabel(const QString& name, int column) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    static_cast<QGridLayout*>(layout())->addWidget(label, Labels, column);
    return label;
}

QPushButton* ListPairFrame::addButton(const QString& name, void (ListPairFrame::*signal)()) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, signal] { Q_EMIT(this->*signal)(); });
    return button;
}

QCheckBox* ListPairFrame::addOption(const QString& name, int row) {
    auto* option = new QCheckBox(this);
    option->setObjectName(name);
    static_cast<QGridLayout*>(layout())->addWidget(option, row, LeftLists, 1, RightLists + 1);
    return option;
}

void ListPairFrame::connectDoubleClicks(const ListPair& pair) {
    connect(pair.left, &QListWidget::itemDoubleClicked, this, [this] { Q_EMIT addRequested(); });
    connect(pair.right, &QListWidget::itemDoubleClicked, this, [this] { Q_EMIT removeRequested(); });
}

const ListPair* ListPairFrame::pairOfKind(const QString& kind) const {
    const auto found = std::ranges::find(m_pairs, kind, &ListPair::kind);
    return found == m_pairs.end() ? nullptr : &*found;
}

const ListPair* ListPairFrame::pairOfValues(const QString& valueKind) const {
    const auto found = std::ranges::find(m_pairs, valueKind, &ListPair::valueKind);
    return found == m_pairs.end() ? nullptr : &*found;
}

const ListPair* ListPairFrame::pairOfTab(int tab) const {
    const auto found = std::ranges::find(m_pairs, tab, [](const ListPair& pair) { return pair.rule.tab; });
    return found == m_pairs.end() ? nullptr : &*found;
}

void ListPairFrame::hidePairs() {
    for (const ListPair& pair : m_pairs) {
        pair.left->hide();
        pair.right->hide();
    }
    m_option1->hide();
    m_option2->hide();
}

void ListPairFrame::showPair(const ListPair& pair) {
    m_leftLabel->setBuddy(pair.left);
    m_rightLabel->setBuddy(pair.right);
    pair.left->show();
    pair.right->show();
    m_option1->setVisible(pair.isReferences());
    m_option2->setVisible(pair.isReferences());
}

void ListPairFrame::setAccessibleNames(const ListPair& pair, const QString& caption) {
    pair.left->setAccessibleName(caption + uiText(u", verfügbar"_s, u", available"_s));
    pair.right->setAccessibleName(caption + uiText(u", ausgewählt"_s, u", chosen"_s));
}

} // namespace lingomat
