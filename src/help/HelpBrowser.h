#pragma once

#include <QTextBrowser>

class QTextFragment;

namespace lingomat {

/// A colour for links that can be read on the palette's ground: the palette's own where the two differ
/// enough, a light or a dark blue otherwise.
[[nodiscard]] QColor readableLinkColour(const QPalette& palette);

/// Shows one page of the help. Pictures are never wider than the window, colours follow the palette.
class HelpBrowser final : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// Marks these words (see searchWords()) on the page that is shown, and scrolls to the first below the
    /// anchor that the page was opened at.
    void markWords(const QStringList& words);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyStyle();
    void arrangePage(const QUrl& source);
    void fitPictures(const QUrl& source);
    void fitPicture(const QTextFragment& fragment, const QUrl& source, qreal room);
};

} // namespace lingomat
