#pragma once

#include <QDate>
#include <QString>

#include <functional>

class QLineEdit;

namespace lingomat {

class Prompts;
class SpinButtons;
struct DateParts;
struct SharedState;

/// The three boxes of one date. Day and month hold two digits, the year four, so that year, month and day
/// in a row are the stored form of the date.
struct DateBoxes {
    QLineEdit* day = nullptr;
    QLineEdit* month = nullptr;
    QLineEdit* year = nullptr;
};

/// Keeps a from-date and a to-date within the dates of the database, and the from-date not above the
/// to-date. Everything is compared as text. Corrections beep, except while Initialisierung is set.
/// Without a database no operation does anything.
class clsDateEinsteller {
public:
    clsDateEinsteller(SharedState& state, Prompts& prompts, std::function<QDate()> today);

    QString MinDatum;             ///< lowest date, yyyymmdd
    QString MaxDatum;             ///< highest date, yyyymmdd
    bool Initialisierung = false; ///< the program is filling the boxes

    /// Finds the bounds: the earliest date of entry in RecordsetAuswahl, and today. A date that is Null ends
    /// the search; errors do so too, and quietly.
    void init();
    void initMin(const QString& date); ///< lowers MinDatum
    void SetInitialisierung(bool flag);
    [[nodiscard]] bool hasData() const { return !KeineDaten; }

    [[nodiscard]] QString DayMin() const;
    [[nodiscard]] QString MonthMin() const;
    [[nodiscard]] QString YearMin() const;
    [[nodiscard]] QString DayMax() const;
    [[nodiscard]] QString MonthMax() const;
    [[nodiscard]] QString YearMax() const;

    /// Sets the upper limit of the day: February has 29 days in every year.
    void MonthPlausi(const QLineEdit& month, SpinButtons& day) const;
    // Lower the from-box to the to-box where it is above; true if they are equal afterwards.
    bool JahrVonBisPlausi(QLineEdit& von, const QLineEdit& bis);
    bool MonatVonBisPlausi(QLineEdit& von, const QLineEdit& bis);
    bool TagVonBisPlausi(QLineEdit& von, const QLineEdit& bis);
    /// Limits by kind: "day", "month", "year" (1990 to 2050). Any other kind does nothing.
    void SetBuddyParams(SpinButtons& spin, const QString& kind) const;
    QString AddLeadingZero(QLineEdit& box) const; ///< two digits; an empty box becomes "0"
    void HighestDatePlausi(const DateBoxes& boxes);
    void LowestDatePlausi(const DateBoxes& boxes);
    /// The whole check after a change on one side, "von" or "bis". Nothing while Initialisierung is set.
    void Plausis(const QString& kind, const DateBoxes& von, const DateBoxes& bis);

private:
    [[nodiscard]] DateParts lowest() const;
    [[nodiscard]] DateParts highest() const;
    bool keepNotAbove(QLineEdit& von, const QLineEdit& bis);
    void beepFor(int corrections);

    SharedState& m_state;
    Prompts& m_prompts;
    std::function<QDate()> m_today;
    bool KeineDaten = false;
};

} // namespace lingomat
