#include "TrainingBench.h"

#include "Globals.h"
#include "TrainingWalk.h"

using namespace Qt::StringLiterals;

namespace lingomat {

TrainingBench::TrainingBench(int entries, const QString& language)
    : context(language),
      list(context.forms),
      trainer(context.forms, list),
      grid(child<FlexGrid>(trainer, "VokabelnGrid")) {
    context.state.Lang1Name = u"German"_s;
    context.state.Lang2Name = u"English"_s;
    list.Form_Load();
    trainer.Form_Load();
    setEntries(entries);
}

void TrainingBench::setEntries(int count) {
    FlexGrid& rows = list.MSFlexGrid1();
    rows.setRows(1);
    for (int entry = 1; entry <= count; ++entry)
        rows.AddItem(u"\t%1\tWort %1\tword %1"_s.arg(entry));
    trainer.Command6_Click();
}

void TrainingBench::draw(const QList<int>& entries) {
    QList<double> draws;
    for (const int entry : entries)
        draws += (entry - 0.5) / trainer.AnzahlEintraege;
    context.random.setDraws(draws);
}

void TrainingBench::choose(const char* name) {
    action(name).trigger();
}

void TrainingBench::expectEnd() {
    context.prompts.expect({.text = uiText(u"Die Sequenz ist beendet."_s, u"End of sequence."_s)});
}

void TrainingBench::answerRight() {
    trainer.SchleifeStatus(trainer.Position) = LoopEntryDone;
    ++trainer.AnzahlRichtig;
}

QString TrainingBench::panel(int number) const {
    return child<QLabel>(trainer, u"StatusBar1_Panel%1"_s.arg(number)).text();
}

} // namespace lingomat
