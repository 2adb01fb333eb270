#include "DateFilter.h"

#include "DateBox.h"
#include "DateRules.h"
#include "Globals.h"
#include "SpinButtons.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// A box with its arrows close beside it.
SpinButtons* addSpinBox(QHBoxLayout& row, QLineEdit* box, int number) {
    auto* spin = new SpinButtons(u"UpDown%1"_s.arg(number), *box, box->parentWidget());
    auto* pair = new QHBoxLayout;
    pair->setSpacing(0);
    pair->addWidget(box);
    pair->addWidget(spin);
    row.addLayout(pair);
    return spin;
}

QString storedForm(const DateBoxes& boxes) {
    return DateParts{boxes.day->text(), boxes.month->text(), boxes.year->text()}.stored();
}

} // namespace

DateFilter::DateFilter(const QString& name, const QString& stem, int firstSpin, clsDateEinsteller& setter,
                       QWidget* parent)
    : QGroupBox(parent), m_setter(setter) {
    setObjectName(name);
    auto* grid = new QGridLayout(this);
    m_von = addSide(u"von"_s, u"lbl"_s + stem + u"Von"_s, u"txt"_s + stem + u"Von"_s, firstSpin, 0);
    m_bis = addSide(u"bis"_s, u"lbl"_s + stem + u"Bis"_s, u"txt"_s + stem + u"Bis"_s, firstSpin + 3, 1);
    grid->setColumnStretch(2, 1);
    for (const Side* side : {&m_von, &m_bis}) {
        for (QLineEdit* box : {side->boxes.day, side->boxes.month, side->boxes.year})
            connect(box, &QLineEdit::textChanged, this, [this, side] { boxChanged(*side); });
    }
}

DateFilter::Side DateFilter::addSide(const QString& kind, const QString& labelName, const QString& stem,
                                     int firstSpin, int row) {
    Side side;
    side.kind = kind;
    side.boxes = {.day = new DateBox(stem + u"Tag"_s, 2, this),
                  .month = new DateBox(stem + u"Monat"_s, 2, this),
                  .year = new DateBox(stem + u"Jahr"_s, 4, this)};
    auto* label = new QLabel(this);
    label->setObjectName(labelName);
    label->setBuddy(side.boxes.day);
    auto* boxes = new QHBoxLayout;
    side.daySpin = addSpinBox(*boxes, side.boxes.day, firstSpin);
    side.monthSpin = addSpinBox(*boxes, side.boxes.month, firstSpin + 1);
    side.yearSpin = addSpinBox(*boxes, side.boxes.year, firstSpin + 2);
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(label, row, 0);
    grid->addLayout(boxes, row, 1);
    return side;
}

void DateFilter::setFullRange() {
    if (!m_setter.hasData())
        return;
    for (const Side* side : {&m_von, &m_bis}) {
        m_setter.SetBuddyParams(*side->daySpin, u"day"_s);
        m_setter.SetBuddyParams(*side->monthSpin, u"month"_s);
        m_setter.SetBuddyParams(*side->yearSpin, u"year"_s);
    }
    m_setter.SetInitialisierung(true);
    m_von.boxes.day->setText(m_setter.DayMin());
    m_von.boxes.month->setText(m_setter.MonthMin());
    m_von.boxes.year->setText(m_setter.YearMin());
    m_bis.boxes.day->setText(m_setter.DayMax());
    m_bis.boxes.month->setText(m_setter.MonthMax());
    m_bis.boxes.year->setText(m_setter.YearMax());
    m_setter.SetInitialisierung(false);
    limitDay(m_von);
    limitDay(m_bis);
}

QString DateFilter::von() const {
    return storedForm(m_von.boxes);
}

QString DateFilter::bis() const {
    return storedForm(m_bis.boxes);
}

std::array<QLineEdit*, 6> DateFilter::boxes() const {
    return {m_von.boxes.day, m_von.boxes.month, m_von.boxes.year,
            m_bis.boxes.day, m_bis.boxes.month, m_bis.boxes.year};
}

void DateFilter::setAccessibleNames() {
    for (const Side* side : {&m_von, &m_bis}) {
        const QString range = title() + (side == &m_von ? uiText(u", von: "_s, u", from: "_s)
                                                        : uiText(u", bis: "_s, u", to: "_s));
        side->boxes.day->setAccessibleName(range + uiText(u"Tag"_s, u"day"_s));
        side->boxes.month->setAccessibleName(range + uiText(u"Monat"_s, u"month"_s));
        side->boxes.year->setAccessibleName(range + uiText(u"Jahr"_s, u"year"_s));
        side->daySpin->setBuddyName(side->boxes.day->accessibleName());
        side->monthSpin->setBuddyName(side->boxes.month->accessibleName());
        side->yearSpin->setBuddyName(side->boxes.year->accessibleName());
    }
}

void DateFilter::boxChanged(const Side& side) {
    if (!m_setter.Initialisierung)
        m_setter.Plausis(side.kind, m_von.boxes, m_bis.boxes);
    // A from-month may just have given way to the to-month.
    limitDay(m_von);
    limitDay(m_bis);
    Q_EMIT changed();
}

void DateFilter::limitDay(const Side& side) {
    m_setter.MonthPlausi(*side.boxes.month, *side.daySpin);
}

} // namespace lingomat
