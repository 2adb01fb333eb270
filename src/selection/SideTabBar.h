#pragma once

#include <QTabBar>

namespace lingomat {

/// Tabs one below the other at the left of a page, their captions level, so that all of them can be read.
/// The keys Up and Down move like Left and Right.
class SideTabBar final : public QTabBar {
    Q_OBJECT

public:
    explicit SideTabBar(const QString& name, QWidget* parent = nullptr);

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace lingomat
