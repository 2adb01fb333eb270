#include "frmVokabelEingabe.h"

#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "FontHelp.h"
#include "FormTexts.h"
#include "Globals.h"
#include "Liste.h"
#include "LstFkt.h"
#include "SharedState.h"
#include "WindowPlacement.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int ListKeyColumn = 1;

constexpr FormText editSynonyms[] = {
    {"cmdSynonyme", u"Synonyme bearbeiten", u"Edit Synonyms", u"Zeigt die Synonyme an",
     u"Shows the Synonyms"},
};
constexpr FormText hideSynonyms[] = {
    {"cmdSynonyme", u"Synonyme ausblenden", u"Hide synonyms", u"Blendet die Synonyme aus",
     u"Hides the synonyms"},
};

void setItem(QListWidget& list, int index, const QString& text) {
    if (index < list.count())
        list.item(index)->setText(text);
    else
        list.addItem(text);
}

} // namespace

void frmVokabelEingabe::edit(const ExpressionParts& parts, const QString& typed, const QRect& cell) {
    trapped(m_context.prompts, [&] {
        initializeForm();
        m_fields[0]->setText(parts.prefix);
        m_fields[1]->setText(parts.main + typed);
        m_fields[2]->setText(parts.suffix);
        m_fields[3]->setText(parts.comment);
        const QWidget& caller = parentWidget() ? *parentWidget() : *this;
        move(placeAtCell(cell, frameGeometry().size(), usableScreen(caller)));
        m_context.prompts.exec(*this);
    });
}

void frmVokabelEingabe::initializeForm() {
    for (QLineEdit* field : m_fields)
        field->clear();
    clearLists();
    SynonymeSichtbar = false;
    openLowerHalf(false);
}

void frmVokabelEingabe::cmdSynonyme_Click() {
    SynonymeSichtbar = !SynonymeSichtbar;
    openLowerHalf(SynonymeSichtbar);
    if (SynonymeSichtbar && !InitSynonymeList())
        m_synonymsButton->click(); // closes it again
}

void frmVokabelEingabe::openLowerHalf(bool open) {
    if (open)
        applyTexts(*this, hideSynonyms);
    else
        applyTexts(*this, editSynonyms);
    m_synonymsLabel->setVisible(open);
    m_lowerHalf->setVisible(open);
    layout()->activate();
    resize(width(), open ? VolleHoehe : minimumSizeHint().height());
    if (open && isVisible())
        move(keptInside(frameGeometry(), usableScreen(*this)));
}

bool frmVokabelEingabe::InitSynonymeList() {
    const FlexGrid& grid = m_cell.grid;
    bool loaded = false;
    trapped(m_context.prompts, [&] {
        SpracheNr = grid.Col() == Liste::ColSprache1 ? u"1"_s : u"2"_s;
        const auto readID = [&] { VokabelID = grid.TextMatrix(grid.Row(), ListKeyColumn); };
        readID();
        if (VokabelID == u"*"_s) {
            if (!m_context.prompts.yesNo(
                    this,
                    uiText(u"Synonyme können erst dann bearbeitet werden, wenn der Vokabeleintrag in "
                           "die Datenbank zurückgeschrieben wurde. Sollen die Daten der aktuellen Zeile "
                           "sowie eventuelle weitere gemachte Änderungen jetzt gesichert werden?"_s,
                           u"Synonyms can only be edited, after the vocab entry has been saved to the "
                           "database. Shall the data of the current line as well as all other changes "
                           "be saved now?"_s)))
                return;
            m_cell.Command2_Click();
            readID();
            if (VokabelID == u"*"_s)
                return; // the save failed and has said so
        }
        loadSynonyms();
        loaded = true;
    });
    return loaded;
}

void frmVokabelEingabe::loadSynonyms() {
    clearLists();
    dao::Recordset& synonyms = m_context.state.DBHandler.RecordsetSynonyme;
    const QString criterion = u"VID="_s + VokabelID + u" AND Sprache="_s + SpracheNr;
    synonyms.FindFirst(criterion);
    while (!synonyms.EOF_() && !synonyms.NoMatch()) {
        const auto part = [&synonyms](const QString& field) {
            return synonyms.field(field).toText(QString());
        };
        lstID->addItem(part(u"ID"_s));
        setPartsAt(lstSynonyme->count(),
                   {part(u"Prefix"_s), part(u"Main"_s), part(u"Suffix"_s), part(u"Kommentar"_s)});
        synonyms.FindNext(criterion);
    }
    ConditionToUI();
}

void frmVokabelEingabe::clearLists() {
    lstSynonyme->clear();
    lstID->clear();
    for (QListWidget* list : m_partLists)
        list->clear();
    ConditionToUI();
}

ExpressionParts frmVokabelEingabe::partsAt(int index) const {
    const auto part = [&](size_t list) { return m_partLists[list]->item(index)->text(); };
    return {part(0), part(1), part(2), part(3)};
}

void frmVokabelEingabe::setPartsAt(int index, const ExpressionParts& parts) {
    setItem(*m_partLists[0], index, parts.prefix);
    setItem(*m_partLists[1], index, parts.main);
    setItem(*m_partLists[2], index, parts.suffix);
    setItem(*m_partLists[3], index, parts.comment);
    setItem(*lstSynonyme, index, generiereAusdruck(parts));
}

std::optional<qint16> frmVokabelEingabe::keyAt(int index) const {
    const QListWidgetItem* item = lstID->item(index);
    if (!item || item->text().isEmpty())
        return {};
    return dao::toInteger16(dao::Value(item->text()).toInteger());
}

void frmVokabelEingabe::ConditionToUI() {
    const bool selected = ListIndex(*lstSynonyme) >= 0;
    m_delete->setEnabled(selected);
    m_change->setEnabled(selected);
    SetzeScrollbreite(*lstSynonyme);
}

bool frmVokabelEingabe::askForSynonym(const ExpressionParts& start) {
    m_synonymForm.fill(start);
    keepInFrontOf(m_synonymForm, *this);
    const QRect own = frameGeometry();
    const QSize size = m_synonymForm.sizeHint();
    const QPoint centre = own.center() - QPoint(size.width() / 2, size.height() / 2);
    m_synonymForm.move(keptInside({centre, size}, usableScreen(*this)));
    m_context.prompts.exec(m_synonymForm);
    return m_synonymForm.Bestaetigt;
}

void frmVokabelEingabe::reportFailure() {
    m_context.prompts.critical(this, uiText(u"Fehler bei Bearbeitung der Synonyme!"_s,
                                            u"Error occured while processing synonyms!"_s));
}

bool frmVokabelEingabe::store(qint16 key, const ExpressionParts& parts) {
    return m_context.state.DBHandler.StoreSynonyme(key, VokabelID, SpracheNr, parts.prefix, parts.main,
                                                   parts.suffix, parts.comment,
                                                   [this](const QString& newKey) { lstID->addItem(newKey); });
}

void frmVokabelEingabe::cmdAdd_Click() {
    trapped(m_context.prompts, [this] {
        if (!askForSynonym({}))
            return;
        const int index = lstSynonyme->count();
        setPartsAt(index, m_synonymForm.parts());
        while (lstID->count() < index)
            lstID->addItem(QString()); // of rows that could not be stored
        if (!store(CDBHandler::NewSynonym, m_synonymForm.parts()))
            reportFailure();
    });
    ConditionToUI();
}

void frmVokabelEingabe::cmdChange_Click() {
    trapped(m_context.prompts, [this] {
        const int index = ListIndex(*lstSynonyme);
        if (index < 0 || !askForSynonym(partsAt(index)))
            return;
        setPartsAt(index, m_synonymForm.parts());
        if (!withKeyAt(index, [this](qint16 key) { return store(key, m_synonymForm.parts()); }))
            reportFailure();
    });
    ConditionToUI();
}

void frmVokabelEingabe::cmdDelete_Click() {
    trapped(m_context.prompts, [this] {
        const int index = ListIndex(*lstSynonyme);
        if (index < 0)
            return;
        CDBHandler& session = m_context.state.DBHandler;
        if (!withKeyAt(index, [&session](qint16 key) { return session.DeleteSynonym(key); }))
            reportFailure();
        delete lstID->takeItem(index);
        for (QListWidget* list : m_partLists)
            delete list->takeItem(index);
        delete lstSynonyme->takeItem(index);
        lstSynonyme->clearSelection(); // the view has chosen a neighbour by itself
    });
    ConditionToUI();
}

bool frmVokabelEingabe::withKeyAt(int index, const std::function<bool(qint16)>& step) {
    bool done = false;
    trapped(m_context.prompts, [&] {
        const auto key = keyAt(index);
        done = key && step(*key);
    });
    return done;
}

void frmVokabelEingabe::cmdOK_Click() {
    trapped(m_context.prompts, [this] {
        m_cell.AusdruckDialogOK(
            {m_fields[0]->text(), m_fields[1]->text(), m_fields[2]->text(), m_fields[3]->text()});
        cmdCancel_Click();
    });
}

void frmVokabelEingabe::cmdCancel_Click() {
    close();
}

void frmVokabelEingabe::cmdFont_Click() {
    m_pad.showFor(*this);
}

bool frmVokabelEingabe::KeyPress(int key) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: cmdOK_Click(); return true;
    case Qt::Key_Escape: cmdCancel_Click(); return true;
    default: return false;
    }
}

bool frmVokabelEingabe::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && KeyPress(static_cast<QKeyEvent*>(event)->key()))
        return true;
    return QDialog::eventFilter(watched, event);
}

void frmVokabelEingabe::setVisible(bool visible) {
    QDialog::setVisible(visible);
    if (!visible)
        return;
    // Only now: a dialog that comes up gives its first field the focus as the Tab key does, all selected.
    m_fields[1]->setFocus();
    m_fields[1]->end(false); // behind what was typed in the list
}

} // namespace lingomat
