#include "clsDateEinsteller.h"

#include "DateRules.h"
#include "EngineError.h"
#include "Prompts.h"
#include "SharedState.h"
#include "SpinButtons.h"
#include "StoredDate.h"

#include <QLineEdit>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Above every date that a file holds: what MinDatum starts from.
constexpr int NoDateYet = 20501231;

DateParts parts(const DateBoxes& boxes) {
    return {.day = boxes.day->text(), .month = boxes.month->text(), .year = boxes.year->text()};
}

void put(QLineEdit& box, const QString& text) {
    if (box.text() != text)
        box.setText(text);
}

void put(const DateBoxes& boxes, const DateParts& date) {
    put(*boxes.year, date.year);
    put(*boxes.month, date.month);
    put(*boxes.day, date.day);
}

} // namespace

clsDateEinsteller::clsDateEinsteller(SharedState& state, Prompts& prompts, std::function<QDate()> today)
    : m_state(state), m_prompts(prompts), m_today(std::move(today)) {}

void clsDateEinsteller::init() {
    KeineDaten = !m_state.databaseIsOpen();
    if (KeineDaten)
        return;
    MinDatum = QString::number(NoDateYet);
    try {
        const QString everyEntry = u"ID LIKE '*'"_s;
        dao::Recordset& entries = m_state.DBHandler.RecordsetAuswahl;
        entries.FindFirst(everyEntry);
        while (!entries.EOF_() && !entries.NoMatch()) {
            initMin(entries.field(u"Eingabedatum"_s).toText());
            entries.FindNext(everyEntry);
        }
    } catch (const dao::Error&) {
        // A date that is Null among others: what was found by then counts.
    }
    const QString today = storedDate(m_today());
    if (MinDatum.toInt() == NoDateYet)
        MinDatum = today;
    MaxDatum = today;
}

void clsDateEinsteller::initMin(const QString& date) {
    if (!KeineDaten && date < MinDatum)
        MinDatum = date;
}

void clsDateEinsteller::SetInitialisierung(bool flag) {
    if (!KeineDaten)
        Initialisierung = flag;
}

QString clsDateEinsteller::DayMin() const {
    return lowest().day;
}

QString clsDateEinsteller::MonthMin() const {
    return lowest().month;
}

QString clsDateEinsteller::YearMin() const {
    return lowest().year;
}

QString clsDateEinsteller::DayMax() const {
    return highest().day;
}

QString clsDateEinsteller::MonthMax() const {
    return highest().month;
}

QString clsDateEinsteller::YearMax() const {
    return highest().year;
}

void clsDateEinsteller::MonthPlausi(const QLineEdit& month, SpinButtons& day) const {
    if (!KeineDaten)
        day.setHighest(highestDay(month.text()));
}

bool clsDateEinsteller::JahrVonBisPlausi(QLineEdit& von, const QLineEdit& bis) {
    return keepNotAbove(von, bis);
}

bool clsDateEinsteller::MonatVonBisPlausi(QLineEdit& von, const QLineEdit& bis) {
    return keepNotAbove(von, bis);
}

bool clsDateEinsteller::TagVonBisPlausi(QLineEdit& von, const QLineEdit& bis) {
    return keepNotAbove(von, bis);
}

void clsDateEinsteller::SetBuddyParams(SpinButtons& spin, const QString& kind) const {
    const auto limits = spinLimits(kind);
    if (!KeineDaten && limits)
        spin.setLimits(*limits);
}

QString clsDateEinsteller::AddLeadingZero(QLineEdit& box) const {
    if (!KeineDaten)
        put(box, withLeadingZero(box.text()));
    return box.text();
}

void clsDateEinsteller::HighestDatePlausi(const DateBoxes& boxes) {
    if (KeineDaten)
        return;
    DateParts date = parts(boxes);
    beepFor(lowerToHighest(date, highest()));
    put(boxes, date);
}

void clsDateEinsteller::LowestDatePlausi(const DateBoxes& boxes) {
    if (KeineDaten)
        return;
    DateParts date = parts(boxes);
    beepFor(raiseToLowest(date, lowest()));
    put(boxes, date);
}

void clsDateEinsteller::Plausis(const QString& kind, const DateBoxes& von, const DateBoxes& bis) {
    if (Initialisierung || KeineDaten)
        return;
    // The changes made here must not start the check again; they are silent for the same reason.
    Initialisierung = true;
    for (QLineEdit* box : {von.day, von.month, bis.day, bis.month})
        AddLeadingZero(*box);
    if (kind == "von"_L1 || kind == "bis"_L1) {
        const DateBoxes& changed = kind == "von"_L1 ? von : bis;
        LowestDatePlausi(changed);
        HighestDatePlausi(changed);
    }
    if (JahrVonBisPlausi(*von.year, *bis.year) && MonatVonBisPlausi(*von.month, *bis.month))
        TagVonBisPlausi(*von.day, *bis.day);
    Initialisierung = false;
}

DateParts clsDateEinsteller::lowest() const {
    return splitDate(MinDatum);
}

DateParts clsDateEinsteller::highest() const {
    return splitDate(MaxDatum);
}

bool clsDateEinsteller::keepNotAbove(QLineEdit& von, const QLineEdit& bis) {
    if (KeineDaten)
        return false;
    if (von.text() > bis.text()) {
        beepFor(1);
        put(von, bis.text());
    }
    return von.text() == bis.text();
}

void clsDateEinsteller::beepFor(int corrections) {
    for (int i = 0; i < corrections && !Initialisierung; ++i)
        m_prompts.beep();
}

} // namespace lingomat
