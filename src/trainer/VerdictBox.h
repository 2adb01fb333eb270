#pragma once

#include <QLabel>

namespace lingomat {

/// A coloured box that says whether an answer was right. A tick or a cross says it without colour. Of a text
/// that is too long for the box the beginning is seen.
class VerdictBox final : public QLabel {
    Q_OBJECT

public:
    enum class Verdict { Right, Wrong };

    VerdictBox(Verdict verdict, const QString& name, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int margin() const;
    void drawSign(QPainter& painter, const QRectF& place) const;

    Verdict m_verdict;
};

} // namespace lingomat
