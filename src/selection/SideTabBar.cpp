#include "SideTabBar.h"

#include <QKeyEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

namespace lingomat {

namespace {

/// Space between a caption and the edges of its tab, in average characters.
constexpr int SideMargin = 2;

/// Width of the bar that marks the selected tab, in pixels: dark styles tell it too faintly.
constexpr int MarkWidth = 4;

} // namespace

SideTabBar::SideTabBar(const QString& name, QWidget* parent) : QTabBar(parent) {
    setObjectName(name);
    setShape(QTabBar::RoundedWest);
    setElideMode(Qt::ElideNone);
    setExpanding(false);
    setUsesScrollButtons(true);
    setDrawBase(false);
}

QSize SideTabBar::tabSizeHint(int index) const {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(tabText(index)) + 2 * SideMargin * metrics.averageCharWidth(),
            metrics.height() * 9 / 5};
}

QSize SideTabBar::minimumTabSizeHint(int index) const {
    return tabSizeHint(index);
}

void SideTabBar::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) {
        QTabBar::keyPressEvent(event);
        return;
    }
    const int next = currentIndex() + (key == Qt::Key_Up ? -1 : 1);
    if (next >= 0 && next < count())
        setCurrentIndex(next);
}

void SideTabBar::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    const int margin = SideMargin * fontMetrics().averageCharWidth();
    const auto paintTab = [&](int index) {
        QStyleOptionTab option;
        initStyleOption(&option, index);
        painter.drawControl(QStyle::CE_TabBarTabShape, option);
        if (index == currentIndex()) {
            const QRect mark(option.rect.topLeft() + QPoint(1, 3),
                             QSize(MarkWidth, option.rect.height() - 6));
            painter.fillRect(mark, palette().highlight());
        }
        const QRect caption = option.rect.adjusted(margin, 0, -margin / 2, 0);
        painter.drawItemText(caption, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                             tabText(index), QPalette::WindowText);
        if (option.state.testFlag(QStyle::State_HasFocus)) {
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.rect = option.rect.adjusted(3, 3, -3, -3);
            painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
        }
    };
    for (int index = 0; index < count(); ++index) {
        if (index != currentIndex())
            paintTab(index);
    }
    if (currentIndex() >= 0)
        paintTab(currentIndex()); // over the edges of its neighbours
}

} // namespace lingomat
