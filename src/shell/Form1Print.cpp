#include "Form1.h"

#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Liste.h"
#include "PrintOrder.h"
#include "Progress.h"
#include "SharedState.h"
#include "ShellMessages.h"
#include "Trainer.h"
#include "WordListPrinter.h"

#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace lingomat {

void Form1::Datei_Drucken_Click() {
    if (m_commandRunning)
        return;
    runCommand([this] {
        QWidget* asker = m_forms.liste.isActiveWindow() ? static_cast<QWidget*>(&m_forms.liste) : this;
        if (m_context.prompts.message(asker, printQuestion(m_forms.trainer)) != QMessageBox::Yes)
            return;
        std::optional<PaintedPrinter::Pages> pages = choosePrinter(asker);
        if (!pages)
            return;
        if (m_forms.trainer.Reihenfolge_shuffle)
            m_forms.trainer.Command6_Click();
        PaintedPrinter printer(std::move(*pages));
        printList(printer);
        printer.EndDoc();
    });
}

std::optional<PaintedPrinter::Pages> Form1::choosePrinter(QWidget* asker) {
    const QString document = QFileInfo(m_context.state.CurrentDBPath).completeBaseName();
    try {
        return m_surroundings.choosePrinter(asker, document);
    } catch (...) {
        // A dialog that fails is a dialog that was cancelled.
        return {};
    }
}

void Form1::printList(Printer& printer) {
    Progress& progress = m_context.progress;
    const auto hideProgress = qScopeGuard([&progress] { progress.hide(); });
    const Trainer& trainer = m_forms.trainer;
    const FlexGrid& grid = m_forms.liste.MSFlexGrid1();
    const std::vector<int> rows =
        printOrder(m_forms.liste.countRows(), trainer.Reihenfolge_sequentiell, trainer.Sequenz);

    progress.setWindowTitle(uiText(u"Vokabeln werden gedruckt"_s, u"Printing vocabulary ..."_s));
    progress.setStatus({});
    progress.setMinimum(0);
    progress.setMaximum(qMax(1, static_cast<int>(rows.size())));
    progress.setValue(0);
    progress.showNow();

    const SharedState& state = m_context.state;
    const bool language1Left = trainer.Lang1Zuerst;
    const int left = language1Left ? Liste::ColSprache1 : Liste::ColSprache2;
    const int right = language1Left ? Liste::ColSprache2 : Liste::ColSprache1;
    WordListPrinter pages(printer, {.page = uiText(u"Seite"_s, u"page"_s),
                                    .path = state.CurrentDBPath,
                                    .left = language1Left ? state.Lang1Name : state.Lang2Name,
                                    .right = language1Left ? state.Lang2Name : state.Lang1Name});
    for (const int row : rows) {
        pages.addRow(grid.TextMatrix(row, left), grid.TextMatrix(row, right));
        progress.setValue(progress.value() + 1);
    }
}

} // namespace lingomat
