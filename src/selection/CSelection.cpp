#include "CSelection.h"

#include "DateFilter.h"
#include "ExpressionText.h"
#include "FormContext.h"
#include "Globals.h"
#include "LessonRules.h"
#include "LstFkt.h"
#include "Prompts.h"
#include "ScoreFilter.h"
#include "SettingsStore.h"
#include "SharedState.h"
#include "ValueLists.h"
#include "clsDateEinsteller.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr std::array fractionKeys{u"Prefix", u"Main", u"Suffix", u"Comment"};
constexpr std::array dateKeys{u"DayMin", u"MonthMin", u"YearMin", u"DayMax", u"MonthMax", u"YearMax"};
constexpr std::array languageSections{u"\\lang1", u"\\lang2"};
constexpr std::array dateSections{u"\\Eingabe", u"\\Aenderung"};
constexpr auto scoreSection = u"\\Score";
constexpr auto textSection = u"\\Msc";

QString text(const char16_t* literal) {
    return QString::fromUtf16(literal);
}

/// Index of language or kind of date: 1 is the first, anything else the second.
size_t indexOf(int number) {
    return number == 1 ? 0 : 1;
}

QString itemKey(int index) {
    return u"I"_s + QString::number(index);
}

auto pairOf(const QList<std::pair<QString, QString>>& pairs, const QString& value) {
    return std::ranges::find(pairs, value, &std::pair<QString, QString>::second);
}

/// Only what a date box can have shown: the text may have been changed by hand meanwhile.
bool fits(const QLineEdit& box, const QString& value) {
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    return value.size() <= box.maxLength() && std::ranges::all_of(value, isDigit);
}

} // namespace

CSelection::CSelection(FormContext& context, LessonControls controls)
    : m_context(context), m_settings(context.settings), m_form(std::move(controls)) {}

QString CSelection::MakeSubKey(const QString& name) const {
    return lessonSection(m_context.state.CurrentDBPath, name);
}

QString CSelection::lessonName() const {
    return extract(m_form.cmbName.currentText());
}

void CSelection::AddAllAuswahlToCtrl(const std::function<void(const QString&)>& AddItem) const {
    const auto lessons = m_settings.GetAllSettings(AppName(), MakeSubKey({}));
    for (const auto& [key, name] : lessons)
        AddItem(name);
}

// Storing.

int CSelection::PrepareAuswahl(const QString& section, const QString& name) {
    const auto lessons = m_settings.GetAllSettings(AppName(), section);
    QStringList keys;
    for (const auto& [key, value] : lessons)
        keys.append(key);

    const auto known = pairOf(lessons, name);
    if (known == lessons.end())
        return lowestFreeNumber(keys);
    m_settings.DeleteSetting(AppName(), section, known->first);
    deleteSections(lessonName());
    if (const int number = lessonNumber(known->first))
        return number;
    keys.removeAll(known->first);
    return lowestFreeNumber(keys);
}

/// A lesson keeps everything further down. What stands right in its section is another one's: the sources of
/// lesson "a", if this one is called "a\Quelle".
void CSelection::deleteSections(const QString& name) {
    const QString section = MakeSubKey(name);
    const auto others = m_settings.GetAllSettings(AppName(), section);
    m_settings.DeleteSetting(AppName(), section);
    for (const auto& [key, value] : others)
        save(section, key, value);
}

void CSelection::StoreFromForm2ToRegistry() {
    SettingsStore::Batch batch(m_settings);
    const QString name = lessonName();
    const QString section = MakeSubKey({});
    save(section, lessonKey(PrepareAuswahl(section, name)), name);

    const QString lesson = MakeSubKey(name);
    for (const ListPair& pair : m_form.pairs)
        CreateRegistryEntriesFromControl(*pair.right, lesson + u'\\' + pair.kind());
    CreateRegistryEntriesForErrorcount(lesson + text(scoreSection));
    for (const int language : {1, 2})
        CreateRegistryEntriesForFraction(lesson + text(languageSections[indexOf(language)]), language);
    for (const int which : {1, 2})
        CreateRegistryEntriesForDate(lesson + text(dateSections[indexOf(which)]), which);
    save(lesson + text(textSection), u"Zusatz"_s, m_form.Zusatzinfo.text());
    save(lesson + text(textSection), u"Beispielsatz"_s, m_form.Beispielsatz.text());
    batch.commit();
}

void CSelection::CreateRegistryEntriesFromControl(const QListWidget& list, const QString& section) {
    for (int i = 0; i < list.count(); ++i) {
        const QString item = list.item(i)->text();
        if (!extract(item).isEmpty())
            save(section, itemKey(i), item);
    }
}

void CSelection::CreateRegistryEntriesForErrorcount(const QString& section) {
    save(section, u"Min"_s, m_form.score.minScore());
    save(section, u"Max"_s, m_form.score.maxScore());
}

void CSelection::CreateRegistryEntriesForFraction(const QString& section, int language) {
    const auto& boxes = m_form.languages[indexOf(language)];
    for (size_t i = 0; i < boxes.size(); ++i)
        save(section, text(fractionKeys[i]), extract(boxes[i]->text()));
}

void CSelection::CreateRegistryEntriesForDate(const QString& section, int which) {
    const auto boxes = m_form.dates[indexOf(which)]->boxes();
    for (size_t i = 0; i < boxes.size(); ++i)
        save(section, text(dateKeys[i]), boxes[i]->text());
}

void CSelection::DeleteRegistryEntry(const QString& name) {
    const QString section = MakeSubKey({});
    const auto lessons = m_settings.GetAllSettings(AppName(), section);
    const auto known = pairOf(lessons, name);
    if (known == lessons.end()) {
        const QString german = u"Konfigurationsparameter fehlerhaft!"_s;
        // Where there is no lesson at all, the text exists in German only.
        m_context.prompts.critical(m_form.cmbName.window(),
                                   lessons.isEmpty() ? german
                                                     : uiText(german, u"False configuration parameter!"_s));
        return;
    }
    SettingsStore::Batch batch(m_settings);
    m_settings.DeleteSetting(AppName(), section, known->first);
    deleteSections(name);
    batch.commit();
    m_context.values.remove(name, u"Auswahl"_s);
    m_form.cmbName.clearEditText();
}

// Recalling.

bool CSelection::SetAllFromRegistryToForm2() {
    const QString name = lessonName();
    if (name.isEmpty() || m_form.cmbName.findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
        return false;

    const QString lesson = MakeSubKey(name);
    for (const ListPair& pair : m_form.pairs)
        recallPair(pair, lesson + u'\\' + pair.kind());
    recallScore(lesson + text(scoreSection));
    for (size_t i = 0; i < m_form.languages.size(); ++i)
        recallFraction(m_form.languages[i], lesson + text(languageSections[i]));
    recallDates(lesson);
    m_form.Zusatzinfo.setText(read(lesson + text(textSection), u"Zusatz"_s));
    m_form.Beispielsatz.setText(read(lesson + text(textSection), u"Beispielsatz"_s));
    return true;
}

/// All at once: moving a thousand values one by one through the widgets would take its time.
void CSelection::recallPair(const ListPair& pair, const QString& section) {
    QStringList stored;
    for (;;) {
        const QString value = read(section, itemKey(static_cast<int>(stored.size())), FehlenderWert);
        if (value == FehlenderWert)
            break;
        stored.append(value);
    }
    const DividedValues values = chooseFrom(m_form.offered(pair), stored);
    LeereListen(*pair.left, *pair.right);
    KopiereListe(values.left, *pair.left);
    KopiereListe(values.right, *pair.right);
    if (!values.right.isEmpty())
        WaehleEintrag(values.right.last(), *pair.right);
}

void CSelection::recallScore(const QString& section) {
    const auto [minimum, maximum] = m_form.score.boxes();
    const QString lowest = MyItoS(LowestScore);
    const QString highest = MyItoS(HighestScore);
    minimum->setText(lowest);
    maximum->setText(highest);
    minimum->setText(read(section, u"Min"_s, lowest));
    maximum->setText(read(section, u"Max"_s, highest));
}

void CSelection::recallFraction(const LessonControls::LanguageBoxes& boxes, const QString& section) {
    for (size_t i = 0; i < boxes.size(); ++i)
        boxes[i]->setText(read(section, text(fractionKeys[i])));
}

void CSelection::recallDates(const QString& lesson) {
    showFullDates();
    setInitialisierung(true);
    bool complete = true;
    for (size_t i = 0; complete && i < m_form.dates.size(); ++i)
        complete = recallDate(*m_form.dates[i], lesson + text(dateSections[i]));
    if (!complete)
        showFullDates();
    setInitialisierung(false);
}

/// False at the first value that is missing.
bool CSelection::recallDate(const DateFilter& dates, const QString& section) {
    const auto boxes = dates.boxes();
    for (size_t i = 0; i < boxes.size(); ++i) {
        const QString value = read(section, text(dateKeys[i]), FehlenderWert);
        if (value == FehlenderWert || !fits(*boxes[i], value))
            return false;
        boxes[i]->setText(value);
    }
    return true;
}

void CSelection::showFullDates() {
    for (DateFilter* dates : m_form.dates)
        dates->setFullRange();
}

void CSelection::setInitialisierung(bool flag) {
    for (clsDateEinsteller* setter : m_form.dateSetters)
        setter->SetInitialisierung(flag);
}

QString CSelection::read(const QString& section, const QString& key, const QString& missing) const {
    return m_settings.GetSetting(AppName(), section, key, missing);
}

void CSelection::save(const QString& section, const QString& key, const QString& value) {
    m_settings.SaveSetting(AppName(), section, key, value);
}

} // namespace lingomat
