#include "Resources.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <memory>

using namespace Qt::StringLiterals;

// Q_INIT_RESOURCE declares a function and so does not work inside a namespace.
static void registerResources() {
    Q_INIT_RESOURCE(resources);
}

namespace lingomat {

namespace {

/// The colour of the text that stands beside an icon in that state.
QColor textColor(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled: return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected: return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active: break;
    }
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

/// Draws a one-coloured drawing in the colour of the palette of the moment: the drawing gives only the
/// opacity of each point. The colour is looked up at each call; a change of palette needs no other care.
class PaletteIconEngine final : public QIconEngine {
public:
    explicit PaletteIconEngine(std::shared_ptr<QSvgRenderer> drawing) : m_drawing(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal scale = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        m_drawing->render(&painter, squareIn(size));
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), textColor(mode));
        return picture;
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
        QPixmap picture = pixmap(size, mode, state);
        picture.setDevicePixelRatio(scale);
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new PaletteIconEngine(*this); }

private:
    static QRectF squareIn(const QSize& size) {
        const qreal edge = qMin(size.width(), size.height());
        return {(size.width() - edge) / 2, (size.height() - edge) / 2, edge, edge};
    }

    std::shared_ptr<QSvgRenderer> m_drawing;
};

} // namespace

void initResources() {
    registerResources();
}

QIcon icon(QLatin1StringView name) {
    initResources();
    auto drawing = std::make_shared<QSvgRenderer>(u":/icons/%1.svg"_s.arg(name));
    Q_ASSERT_X(drawing->isValid(), "icon", name.data());
    if (!drawing->isValid())
        return {};
    return QIcon(new PaletteIconEngine(std::move(drawing)));
}

QIcon applicationIcon() {
    initResources();
    return QIcon(u":/lingomat.svg"_s);
}

} // namespace lingomat
