#include "Form2.h"

#include "CSelection.h"
#include "ErrorTrap.h"
#include "Globals.h"
#include "LessonRules.h"
#include "SharedState.h"
#include "ValueLists.h"
#include "frmSelectAuswahl.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QString question(const QString& beginning, const QString& lesson, const QString& end) {
    return beginning + u'\'' + lesson + u'\'' + end;
}

} // namespace

void Form2::buildLessons() {
    m_lessons = std::make_unique<CSelection>(
        m_context, LessonControls{.cmbName = *m_cmbName,
                                  .pairs = m_lists->pairs(),
                                  .offered = [this](const ListPair& pair) { return master(pair); },
                                  .score = *m_score,
                                  .languages = {m_lang1.all(), m_lang2.all()},
                                  .dates = {m_entryFilter, m_changeFilter},
                                  .dateSetters = {&m_entryDates, &m_changeDates},
                                  .Zusatzinfo = *m_zusatzinfo,
                                  .Beispielsatz = *m_beispielsatz});
    showLessonCommands(false, false);
}

void Form2::connectLessons() {
    connect(m_cmbName, &QComboBox::editTextChanged, this, &Form2::cmbName_Change);
    connect(m_cmbName, &QComboBox::activated, this, &Form2::cmbName_Click);
    m_cmbName->installEventFilter(this);
    // Comes before the change that it tells of.
    connect(m_cmbName->lineEdit(), &QLineEdit::textEdited, this, [this] { m_nameTyped = true; });
    connect(m_cmdSpeichern, &QPushButton::clicked, this, &Form2::cmdSpeichern_Click);
    connect(m_cmdLoeschen, &QPushButton::clicked, this, &Form2::cmdLoeschen_Click);
    connect(m_mnAuswahlSpeichern, &QAction::triggered, this, &Form2::cmdSpeichern_Click);
    connect(m_mnAuswahlDelete, &QAction::triggered, this, &Form2::cmdLoeschen_Click);
    for (const QString& name : {u"mnAuswahlNeu"_s, u"mnAuswahlOpen"_s})
        connect(findChild<QAction*>(name), &QAction::triggered, this, &Form2::askForLesson);
}

void Form2::InitialisiereAuswahlBox() {
    m_cmbName->clearEditText();
    m_context.values.clear(u"Auswahl"_s);
    m_lessons->AddAllAuswahlToCtrl(
        [this](const QString& name) { m_context.values.AddToComboBoxes(name, u"Auswahl"_s); });
}

void Form2::cmbName_Change() {
    if (m_cmbName->currentText().size() > LessonNameSize)
        return; // is cut at once, which is a change of its own
    m_nameChosen = !std::exchange(m_nameTyped, false);
    recallLesson();
}

/// Choosing an item also changes the text, which has recalled the lesson then.
void Form2::cmbName_Click() {
    if (!std::exchange(m_nameChosen, false))
        recallLesson();
}

void Form2::recallLesson() {
    trapped(m_context.prompts, [this] {
        const bool named = m_context.state.databaseIsOpen() && !m_lessons->lessonName().isEmpty();
        const bool known = named && m_lessons->SetAllFromRegistryToForm2();
        showLessonCommands(named, known);
    });
}

void Form2::showLessonCommands(bool save, bool remove) {
    m_cmdSpeichern->setEnabled(save);
    m_mnAuswahlSpeichern->setEnabled(save);
    m_cmdLoeschen->setEnabled(remove);
    m_mnAuswahlDelete->setEnabled(remove);
}

void Form2::cmdSpeichern_Click() {
    const QString name = m_lessons->lessonName();
    const QString text = uiText(
        question(u"Soll die aktuelle Einstellung wirklich unter "_s, name,
                 u" als Lektion gespeichert werden?"_s),
        question(u"Shall the current settings really be saved as a lesson with name "_s, name, u"?"_s));
    trapped(m_context.prompts, [&] {
        if (!m_context.prompts.yesNo(this, text))
            return;
        m_lessons->StoreFromForm2ToRegistry();
        m_context.values.AddToComboBoxes(name, u"Auswahl"_s);
        showLessonCommands(true, true);
    });
}

void Form2::cmdLoeschen_Click() {
    const QString name = m_lessons->lessonName();
    const QString text = uiText(question(u"Soll die Lektion "_s, name, u" wirklich gelöscht werden?"_s),
                                question(u"Shall the lesson "_s, name, u" really be deleted?"_s));
    trapped(m_context.prompts, [&] {
        if (m_context.prompts.yesNo(this, text))
            m_lessons->DeleteRegistryEntry(name);
    });
}

/// For a new lesson and for one that there is: the name tells which.
void Form2::askForLesson() {
    trapped(m_context.prompts, [this] {
        frmSelectAuswahl dialog(m_context.prompts, m_context.values.values(u"Auswahl"_s), this);
        if (m_context.prompts.exec(dialog) != QDialog::Accepted)
            return;
        if (m_cmbName->currentText() == dialog.name())
            recallLesson();
        else
            m_cmbName->setEditText(dialog.name());
        m_nameChosen = false; // that was no choice in the box
    });
}

} // namespace lingomat
