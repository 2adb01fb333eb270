#pragma once

#include "clsDateEinsteller.h"

#include <QGroupBox>

#include <array>

class QLabel;

namespace lingomat {

/// The page of one range of dates: six boxes, six pairs of arrows, kept in order by a date setter.
class DateFilter final : public QGroupBox {
    Q_OBJECT

public:
    /// `stem` is the middle of the boxes' names: "Eingabe" for txtEingabeVonTag. The arrows are UpDownN,
    /// counted from `firstSpin`.
    DateFilter(const QString& name, const QString& stem, int firstSpin, clsDateEinsteller& setter,
               QWidget* parent = nullptr);

    /// The range of the whole database. Without a database the boxes stay as they are.
    void setFullRange();
    [[nodiscard]] QString von() const; ///< yyyymmdd
    [[nodiscard]] QString bis() const;
    /// The six boxes: day, month, year from, then to.
    [[nodiscard]] std::array<QLineEdit*, 6> boxes() const;
    void setAccessibleNames();

Q_SIGNALS:
    void changed();

private:
    struct Side {
        QString kind; ///< "von", "bis"
        DateBoxes boxes;
        SpinButtons* daySpin = nullptr;
        SpinButtons* monthSpin = nullptr;
        SpinButtons* yearSpin = nullptr;
    };

    Side addSide(const QString& kind, const QString& labelName, const QString& stem, int firstSpin, int row);
    void boxChanged(const Side& side);
    void limitDay(const Side& side);

    clsDateEinsteller& m_setter;
    Side m_von;
    Side m_bis;
};

} // namespace lingomat
