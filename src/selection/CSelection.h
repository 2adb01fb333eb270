#pragma once

#include "ListPairFrame.h"

#include <QString>

#include <array>
#include <functional>

class QComboBox;
class QLineEdit;

namespace lingomat {

class DateFilter;
class ScoreFilter;
class SettingsStore;
class clsDateEinsteller;
struct FormContext;

/// The controls of the selection form that make up a lesson. The gates of the languages, the set of tabs and
/// the options of the references are not among them: a lesson leaves these as they are.
struct LessonControls {
    using LanguageBoxes = std::array<QLineEdit*, 4>; ///< prefix, main part, suffix, comment

    QComboBox& cmbName;
    std::array<ListPair, listPairRules.size()> pairs;
    std::function<QStringList(const ListPair&)> offered; ///< everything that can be chosen of a pair
    ScoreFilter& score;
    std::array<LanguageBoxes, 2> languages;
    std::array<DateFilter*, 2> dates; ///< of entry, of change
    std::array<clsDateEinsteller*, 2> dateSetters;
    QLineEdit& Zusatzinfo;
    QLineEdit& Beispielsatz;
};

/// Lessons: the content of the selection form under a name. They belong to a database by the name of its
/// file, and stand in the user's settings. A lesson whose name goes on from another's with a backslash lies
/// inside that one, and goes when that one is deleted or stored again.
///
/// A name counts without the blanks at its ends. A setting that cannot be written throws std::runtime_error
/// with a text for the user; the settings stay what they were then, and so does the form.
class CSelection {
public:
    CSelection(FormContext& context, LessonControls controls);

    /// A value that stands for none, so that a stored text which is empty is told from one that is missing.
    const QString FehlenderWert = QStringLiteral("!§$%&");

    /// Hands the name of every lesson of the open database, in the order of the settings, to a list's
    /// AddItem.
    void AddAllAuswahlToCtrl(const std::function<void(const QString&)>& AddItem) const;
    /// Stores what the form shows as the lesson named in cmbName, in place of one of that name.
    void StoreFromForm2ToRegistry();
    /// Fills the form from the lesson named in cmbName. False, and nothing changes, where there is none.
    bool SetAllFromRegistryToForm2();
    /// Makes room for the lesson of that name and tells its number: the one it had, or the lowest free one.
    int PrepareAuswahl(const QString& section, const QString& name);
    void CreateRegistryEntriesFromControl(const QListWidget& list, const QString& section);
    void CreateRegistryEntriesForErrorcount(const QString& section);
    void CreateRegistryEntriesForFraction(const QString& section, int language); ///< 1, any other is 2
    void CreateRegistryEntriesForDate(const QString& section,
                                      int which); ///< 1: of entry, any other: of change
    [[nodiscard]] QString MakeSubKey(const QString& name) const;
    /// Removes a lesson from settings and box, and empties the box. One that is not there is reported.
    void DeleteRegistryEntry(const QString& name);

    /// The name that cmbName shows; empty for one of blanks only.
    [[nodiscard]] QString lessonName() const;

private:
    void recallPair(const ListPair& pair, const QString& section);
    void recallScore(const QString& section);
    void recallFraction(const LessonControls::LanguageBoxes& boxes, const QString& section);
    void recallDates(const QString& lesson);
    bool recallDate(const DateFilter& dates, const QString& section);
    void showFullDates();
    void setInitialisierung(bool flag);

    [[nodiscard]] QString read(const QString& section, const QString& key, const QString& missing = {}) const;
    void save(const QString& section, const QString& key, const QString& value);
    void deleteSections(const QString& name);

    FormContext& m_context;
    SettingsStore& m_settings;
    LessonControls m_form;
};

} // namespace lingomat
