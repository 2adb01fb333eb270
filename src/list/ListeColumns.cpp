#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Liste.h"
#include "SharedState.h"

#include <QAction>

namespace lingomat {

void Liste::setFirstWidths() {
    for (const ListColumnRule& rule : listColumnTable)
        m_grid->setColWidth(rule.number, firstWidth(rule.width, m_grid->DefaultColWidth()));
}

void Liste::SetHeaders() {
    m_grid->setTextMatrix(0, ColSprache1, m_context.state.Lang1Name);
    m_grid->setTextMatrix(0, ColSprache2, m_context.state.Lang2Name);
    for (const ListColumnRule& rule : listColumnTable) {
        if (rule.option)
            m_grid->setTextMatrix(0, rule.number, columnTitle(*rule.option));
    }
    nameSortMenus();
}

void Liste::SaveColWidths() {
    for (int column = ColSprache1; column <= ColScore; ++column)
        SpaltenBreiten[static_cast<size_t>(column - ColSprache1)] =
            dao::toInteger16(m_grid->ColWidth(column));
}

void Liste::HideColsAccordingToOptions() {
    for (const ListColumnRule& rule : listColumnTable) {
        if (!rule.option)
            continue;
        const bool shown = m_context.columns.isShown(*rule.option);
        m_grid->setColWidth(rule.number,
                            shown ? SpaltenBreiten[static_cast<size_t>(rule.number - ColSprache1)] : 0);
        m_columnEntries[static_cast<size_t>(*rule.option)]->setChecked(shown);
    }
}

bool Liste::ColIsHidden(int column) const {
    return columnIsGuarded(column, m_context.columns);
}

void Liste::SetColResize() {
    m_grid->setAllowUserResizing(!ColIsHidden(m_grid->MouseCol()));
}

void Liste::mnAnsicht_Click(ListColumn column) {
    commitOverlay(); // the cell under it may move away
    ColumnOptions& options = m_context.columns;
    options.setShown(column, !options.isShown(column));
    HideColsAccordingToOptions();
    trapped(m_context.prompts, [this, &options] { options.save(m_context.settings); });
    ConditionToUI();
}

} // namespace lingomat
