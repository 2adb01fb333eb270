#include "HelpBrowser.h"

#include "HelpSearch.h"

#include <QEvent>
#include <QPixmap>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>

#include <cmath>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr qreal Margin = 14; ///< of a page, in pixels
constexpr qreal Indent = 26; ///< of a list, in pixels
constexpr qreal EnoughContrast = 4.5;

qreal linear(qreal channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance: 0 for black, 1 for white.
qreal luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// From 1, no contrast, to 21, black on white.
qreal contrast(const QColor& one, const QColor& other) {
    const qreal first = luminance(one) + 0.05;
    const qreal second = luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

} // namespace

QColor readableLinkColour(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Base);
    const QColor own = palette.color(QPalette::Link);
    if (contrast(own, ground) >= EnoughContrast)
        return own;
    return luminance(ground) < 0.2 ? QColor(0x8a, 0xb4, 0xf8) : QColor(0x0b, 0x3d, 0x91);
}

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    document()->setDocumentMargin(Margin);
    document()->setIndentWidth(Indent);
    document()->setUndoRedoEnabled(false);
    applyStyle();
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::arrangePage);
}

void HelpBrowser::applyStyle() {
    document()->setDefaultStyleSheet(
        u"a:link { color: %1; } h1 { font-size: x-large; } h2 { font-size: large; margin-top: 16px; } "
        u"table { margin-top: 6px; margin-bottom: 6px; border-collapse: collapse; } td, th { padding: 3px 8px; } th { text-align: left; }"_s
            .arg(readableLinkColour(palette()).name()));
}

void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::StyleChange)
        return;
    applyStyle();
    if (!source().isEmpty()) {
        const int place = verticalScrollBar()->value();
        reload();
        fitPictures(source());
        verticalScrollBar()->setValue(place);
    }
}

void HelpBrowser::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    fitPictures(source());
}

void HelpBrowser::arrangePage(const QUrl& source) {
    fitPictures(source);
    // The anchor was looked for while the pictures had another size.
    if (source.hasFragment())
        scrollToAnchor(source.fragment());
}

void HelpBrowser::fitPictures(const QUrl& source) {
    const qreal room = viewport()->width() - 2 * document()->documentMargin();
    if (room < 1)
        return;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!fragment.charFormat().isImageFormat())
                continue;
            fitPicture(fragment, source, room);
            break; // the fragments of this block are others now; each picture stands in one of its own
        }
    }
}

void HelpBrowser::fitPicture(const QTextFragment& fragment, const QUrl& source, qreal room) {
    QTextImageFormat format = fragment.charFormat().toImageFormat();
    const QUrl name(format.name());
    const QPixmap picture(source.resolved(name).toLocalFile());
    const qreal width = std::min<qreal>(picture.width(), room);
    if (picture.isNull() || qFuzzyCompare(format.width(), width))
        return;
    // Scaled here: the page would do it without smoothing.
    QPixmap scaled = picture.scaledToWidth(qRound(width * devicePixelRatioF()), Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(devicePixelRatioF());
    document()->addResource(QTextDocument::ImageResource, document()->baseUrl().resolved(name), scaled);

    format.setWidth(width);
    format.setHeight(picture.height() * width / picture.width());
    QTextCursor cursor(document());
    cursor.setPosition(fragment.position());
    cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
}

void HelpBrowser::markWords(const QStringList& words) {
    QList<ExtraSelection> marks;
    QTextCharFormat format;
    QColor ground = palette().color(QPalette::Highlight);
    ground.setAlphaF(0.35F);
    format.setBackground(ground);

    const int top = cursorForPosition(QPoint(2, 2)).position();
    QTextCursor first;
    for (const auto& [start, length] : findWords(toPlainText(), words)) {
        QTextCursor place(document());
        place.setPosition(static_cast<int>(start));
        place.setPosition(static_cast<int>(start + length), QTextCursor::KeepAnchor);
        if (first.isNull() && start >= top)
            first = place;
        marks.append({place, format});
    }
    setExtraSelections(marks);
    if (!first.isNull()) {
        first.clearSelection();
        setTextCursor(first);
        ensureCursorVisible();
    }
}

} // namespace lingomat
