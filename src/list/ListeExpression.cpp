// The expressions of the list, which are edited in a dialog of their own.

#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "FlexGrid.h"
#include "Liste.h"

namespace lingomat {

namespace {

ExpressionParts extracted(const ExpressionParts& parts) {
    return {extract(parts.prefix), extract(parts.main), extract(parts.suffix), extract(parts.comment)};
}

} // namespace

/// Where the parts of the current column's language begin.
int Liste::firstPartColumn() const {
    return m_grid->Col() == ColSprache1 ? ColPrefix1 : ColPrefix2;
}

ExpressionParts Liste::initialisiereAusdruckDialog() const {
    const int first = firstPartColumn();
    const auto part = [this, first](int offset) { return m_grid->TextMatrix(m_grid->Row(), first + offset); };
    return {part(0), part(1), part(2), part(3)};
}

void Liste::MoveAusdruckDialog(const ExpressionParts& parts, const QString& typed) {
    m_grid->showCell();
    const QPoint corner = m_grid->mapToGlobal(QPoint(m_grid->CellLeft(), m_grid->CellTop()));
    Q_EMIT expressionEditorRequested(parts, typed,
                                     QRect(corner, QSize(m_grid->CellWidth(), m_grid->CellHeight())));
}

void Liste::AusdruckDialogOK(const ExpressionParts& entered) {
    trapped(m_context.prompts, [this, &entered] {
        const ExpressionParts parts = extracted(entered);
        const QString whole = generiereAusdruck(parts);
        // The same words may have been split in another way.
        if (whole != m_grid->Text() || parts != extracted(initialisiereAusdruckDialog()))
            ZeileGeaendert();
        const int row = m_grid->Row();
        const int first = firstPartColumn();
        m_grid->setTextMatrix(row, m_grid->Col(), whole);
        m_grid->setTextMatrix(row, first, parts.prefix);
        m_grid->setTextMatrix(row, first + 1, parts.main);
        m_grid->setTextMatrix(row, first + 2, parts.suffix);
        m_grid->setTextMatrix(row, first + 3, parts.comment);
    });
}

} // namespace lingomat
