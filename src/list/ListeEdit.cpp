#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "ListEditing.h"
#include "Liste.h"

namespace lingomat {

void Liste::SetMehrfachParameter() {
    trapped(m_context.prompts, [this] {
        MehrfachStart = dao::toInteger16(m_grid->Row());
        MehrfachEnde = takesSeveralRows(m_grid->Col()) ? dao::toInteger16(m_grid->RowSel()) : MehrfachStart;
    });
}

std::optional<QString> Liste::overlayText() const {
    return {};
}

void Liste::commitOverlay() {}

} // namespace lingomat
