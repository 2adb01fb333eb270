#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Liste.h"
#include "SharedState.h"

namespace lingomat {

void Liste::SetzeMarke() {
    trapped(m_context.prompts, [this] {
        if (m_grid->Rows() < 2)
            return;
        const int row = m_grid->Row();
        mark().take(MarkierteZeile);
        if (row != 0)
            mark().put(row);
        MarkierteZeile = row;
        m_sorted = m_sorted && row == 0;
        ConditionToUI();
    });
}

void Liste::ResetMarke() {
    trapped(m_context.prompts, [this] {
        mark().take(MarkierteZeile);
        m_grid->setRow(0);
        MarkierteZeile = 0;
        ConditionToUI();
    });
}

/// Made when it is needed first: where the picture lies is known by then.
RowMark& Liste::mark() {
    if (!m_mark)
        m_mark.emplace(*m_grid, m_context.state.MarkePath);
    return *m_mark;
}

} // namespace lingomat
