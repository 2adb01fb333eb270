#include "ScoreFilter.h"

#include "ExpressionText.h"
#include "Globals.h"
#include "Prompts.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

using namespace Qt::StringLiterals;

namespace lingomat {

ScoreFilter::ScoreFilter(Prompts& prompts, QWidget* parent) : QGroupBox(parent), m_prompts(prompts) {
    setObjectName(u"picScore"_s);
    auto* grid = new QGridLayout(this);
    m_min = addBound(u"MinScore"_s, 0);
    m_max = addBound(u"MaxScore"_s, 1);
    grid->setRowStretch(2, 1);
    setFullRange(); // before anything listens: a text without its counterpart would be refused
    connect(m_min.box, &QLineEdit::textChanged, this, [this] { textChanged(m_min, u"MinText"_s); });
    connect(m_max.box, &QLineEdit::textChanged, this, [this] { textChanged(m_max, u"MaxText"_s); });
    // Tracking is on: dragging changes the value too.
    connect(m_min.slider, &QSlider::valueChanged, this, [this] { CheckScoreValues(u"MinSlider"_s); });
    connect(m_max.slider, &QSlider::valueChanged, this, [this] { CheckScoreValues(u"MaxSlider"_s); });
}

ScoreFilter::Bound ScoreFilter::addBound(const QString& name, int row) {
    Bound bound{new QLineEdit(this), new QSlider(Qt::Horizontal, this)};
    bound.box->setObjectName(name);
    bound.box->setMaximumWidth(bound.box->fontMetrics().horizontalAdvance(u"00000"_s));
    bound.slider->setObjectName(name + u"Slider"_s);
    bound.slider->setRange(LowestScore, HighestScore);
    bound.slider->setPageStep(1);
    bound.slider->setTickInterval(1);
    bound.slider->setTickPosition(QSlider::TicksBelow);
    auto* label = new QLabel(this);
    label->setObjectName(u"lbl"_s + name);
    label->setBuddy(bound.box);
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(label, row, 0);
    grid->addWidget(bound.box, row, 1);
    grid->addWidget(bound.slider, row, 2);
    return bound;
}

bool ScoreFilter::CheckScoreValues(const QString& kind) {
    const ScoreCheck check = checkScoreValues(kind, {.minText = m_min.box->text(),
                                                     .maxText = m_max.box->text(),
                                                     .minSlider = m_min.slider->value(),
                                                     .maxSlider = m_max.slider->value()});
    showValues(check.values);
    if (check.refused)
        m_prompts.beep();
    return check.accepted;
}

void ScoreFilter::setFullRange() {
    m_min.box->setText(MyItoS(LowestScore));
    m_max.box->setText(MyItoS(HighestScore));
    m_min.slider->setValue(LowestScore);
    m_max.slider->setValue(HighestScore);
}

QString ScoreFilter::minScore() const {
    return m_min.box->text();
}

QString ScoreFilter::maxScore() const {
    return m_max.box->text();
}

void ScoreFilter::setAccessibleNames() {
    m_min.box->setAccessibleName(uiText(u"Niedrigster Fehlerscore"_s, u"Lowest error score"_s));
    m_max.box->setAccessibleName(uiText(u"Höchster Fehlerscore"_s, u"Highest error score"_s));
    m_min.slider->setAccessibleName(m_min.box->accessibleName());
    m_max.slider->setAccessibleName(m_max.box->accessibleName());
}

void ScoreFilter::textChanged(const Bound& bound, const QString& kind) {
    if (isScore(bound.box->text())) {
        CheckScoreValues(kind);
    } else {
        m_prompts.exclamation(this, uiText(u"Der Wert muß zwischen 1 und 6 liegen!"_s,
                                           u"The value must lie between 1 and 6!"_s));
        bound.box->setText(MyItoS(bound.slider->value()));
    }
    Q_EMIT changed();
}

/// Each change may start a check of its own, which finds the values in order by then.
void ScoreFilter::showValues(const ScoreValues& values) {
    if (m_min.box->text() != values.minText)
        m_min.box->setText(values.minText);
    if (m_max.box->text() != values.maxText)
        m_max.box->setText(values.maxText);
    m_min.slider->setValue(values.minSlider);
    m_max.slider->setValue(values.maxSlider);
}

} // namespace lingomat
