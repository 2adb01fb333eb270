#include "Trainer.h"

#include "FittingFont.h"
#include "FlexGrid.h"
#include "SynonymButtons.h"
#include "VerdictBox.h"

#include <QEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// The expressions are set twice as large as the language names above them.
constexpr qreal ExpressionScale = 2.0;
constexpr int CaptionMargin = 3; // pixels above and below a language name
/// Neither of the two expressions can be dragged to less of the room that they share.
constexpr qreal SmallestShare = 0.2;
/// Width of the step button in widths of its icon.
constexpr int StepWidth = 4;

QFont gridFont(qreal points) {
    QFont font(u"Arial"_s);
    font.setPointSizeF(points);
    return font;
}

} // namespace

void Trainer::buildVokabelnGrid() {
    m_grid->setRows(GridRowCount);
    m_grid->setCols(1);
    m_grid->setFixedRows(0);
    m_grid->setFixedCols(0);
    m_grid->setAllowUserResizing(false);
    m_grid->setAllowUserResizingRows(true);
    m_grid->setWordWrap(true);
    m_grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grid->setCol(0);
    for (const GridRow row : {TopLanguageRow, OtherLanguageRow}) {
        m_grid->setRow(row);
        m_grid->setCellBackgroundRole(QPalette::Button);
        m_grid->setCellAlignment(1);
    }
    for (const GridRow row : {QuestionRow, SolutionRow}) {
        m_grid->setRow(row);
        m_grid->setCellBackgroundRole(QPalette::Base);
        m_grid->setCellAlignment(4);
    }
    fitToFont();
    m_grid->viewport()->installEventFilter(this);
}

void Trainer::fitToFont() {
    const int icon = fontMetrics().height();
    for (QPushButton* button :
         {m_first.button, m_back.button, m_step.button, m_forward.button, m_last.button, m_restart})
        button->setIconSize({icon, icon});
    m_step.button->setMinimumWidth(StepWidth * icon);
    m_progressBar->setMaximumHeight(icon);
    fitVokabelnGrid();
}

void Trainer::fitVokabelnGrid() {
    QFont caption = gridFont(font().pointSizeF());
    caption.setItalic(true);
    m_captionHeight = QFontMetrics(caption).height() + 2 * CaptionMargin;
    m_questionHeight = static_cast<int>(std::lround(sharedHeight() * m_questionShare));

    const int row = m_grid->Row();
    for (const GridRow language : {TopLanguageRow, OtherLanguageRow}) {
        m_grid->setRow(language);
        m_grid->setCellFont(caption);
        m_grid->setRowHeight(language, m_captionHeight);
    }
    m_grid->setRow(row);
    m_grid->setRowHeight(QuestionRow, m_questionHeight);
    m_grid->setRowHeight(SolutionRow, sharedHeight() - m_questionHeight);
    m_grid->setColWidth(0, m_grid->viewport()->width());
    fitExpression(QuestionRow);
    fitExpression(SolutionRow);
    placeOverGrid();
}

QRect Trainer::expressionLine(GridRow row) const {
    const int top =
        row == QuestionRow ? m_captionHeight : 2 * m_captionHeight + m_grid->RowHeight(QuestionRow);
    return {0, top, m_grid->viewport()->width(), m_grid->RowHeight(row)};
}

void Trainer::placeOverGrid() {
    const auto placeArrows = [this](QWidget* arrows, GridRow row) {
        const QRect line = expressionLine(row);
        const QSize size = arrows->sizeHint().boundedTo({line.width(), line.height()});
        arrows->setGeometry(line.right() - size.width(), line.top() + (line.height() - size.height()) / 2,
                            size.width(), size.height());
    };
    placeArrows(m_questionSynonyms, QuestionRow);
    placeArrows(m_solutionSynonyms, SolutionRow);

    // The verdict stands at the lower edge of the solution, which it leaves readable.
    const QRect line = expressionLine(SolutionRow);
    const QSize search = m_search->sizeHint();
    const int top = line.bottom() - search.height();
    m_search->setGeometry({line.right() - search.width(), top, search.width(), search.height()});
    const int room = m_search->x() - line.left() - 2;
    for (QWidget* const box : {static_cast<QWidget*>(m_right), static_cast<QWidget*>(m_wrong)})
        box->setGeometry(line.left(), top, std::min(room, box->sizeHint().width()), search.height());
}

int Trainer::sharedHeight() const {
    return std::max(0, m_grid->viewport()->height() - 2 * m_captionHeight);
}

void Trainer::fitExpression(GridRow row) {
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_grid) + 1;
    // The text stands in the middle: what lies over one side of it takes room from both.
    const int arrows = 2 * m_questionSynonyms->sizeHint().width();
    const bool isJudged = !m_right->isHidden() || !m_wrong->isHidden();
    const int verdict = row == SolutionRow && isJudged ? 2 * m_search->sizeHint().height() : 0;
    const QSize room(m_grid->ColWidth(0) - 2 * margin - 1 - arrows, m_grid->RowHeight(row) - 1 - verdict);
    QFont largest = gridFont(font().pointSizeF() * ExpressionScale);
    largest.setBold(true);
    const int before = m_grid->Row();
    m_grid->setRow(row);
    m_grid->setCellFont(fittingFont(largest, font().pointSizeF(), m_grid->Text(), room));
    m_grid->setRow(before);
}

void Trainer::setExpression(GridRow row, const QString& text) {
    m_grid->setTextMatrix(row, 0, text);
    fitExpression(row);
}

/// Moves the boundary between question and solution as far as the user has dragged the row that ends at it,
/// or the name of the language that stands between the two.
void Trainer::followDraggedBorder() {
    const int dragged = m_grid->RowHeight(QuestionRow) - m_questionHeight +
                        m_grid->RowHeight(OtherLanguageRow) - m_captionHeight;
    const qreal share = static_cast<qreal>(m_questionHeight + dragged) / std::max(1, sharedHeight());
    if (dragged != 0)
        m_questionShare = std::clamp(share, SmallestShare, 1 - SmallestShare);
    fitVokabelnGrid();
}

void Trainer::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitToFont();
}

bool Trainer::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_grid->viewport())
        return QMainWindow::eventFilter(watched, event);
    if (event->type() == QEvent::Resize)
        fitVokabelnGrid();
    else if (event->type() == QEvent::MouseButtonRelease)
        followDraggedBorder();
    return QMainWindow::eventFilter(watched, event);
}

} // namespace lingomat
