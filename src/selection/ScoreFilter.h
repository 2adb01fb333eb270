#pragma once

#include "ScoreRules.h"

#include <QGroupBox>

#include <array>

class QLineEdit;
class QSlider;

namespace lingomat {

class Prompts;

/// The page of the score: a lower and an upper bound, each a text box with a slider.
class ScoreFilter final : public QGroupBox {
    Q_OBJECT

public:
    ScoreFilter(Prompts& prompts, QWidget* parent = nullptr);

    bool CheckScoreValues(const QString& kind);
    /// Text "1" to "6", sliders at their ends.
    void setFullRange();
    [[nodiscard]] QString minScore() const;
    [[nodiscard]] QString maxScore() const;
    [[nodiscard]] std::array<QLineEdit*, 2> boxes() const { return {m_min.box, m_max.box}; }
    void setAccessibleNames();

Q_SIGNALS:
    void changed(); ///< one of the texts

private:
    struct Bound {
        QLineEdit* box = nullptr;
        QSlider* slider = nullptr;
    };

    Bound addBound(const QString& name, int row);
    void textChanged(const Bound& bound, const QString& kind);
    void showValues(const ScoreValues& values);

    Prompts& m_prompts;
    Bound m_min;
    Bound m_max;
};

} // namespace lingomat
