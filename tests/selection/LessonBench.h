#pragma once

#include "SelectionBench.h"

#include "Globals.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace lingomat {

using namespace Qt::StringLiterals;

/// Lessons as the user handles them, and what then stands in the settings.
class Lessons : public testing::Test {
protected:
    explicit Lessons(const QString& language = u"En"_s) : bench(language) {
        bench.openDatabase();
        const QString a = bench.add({.main1 = u"a"_s,
                                     .fields = {{u"Quelle"_s, u"Book"_s}, {u"Wortart"_s, u"adverb"_s}},
                                     .bereiche = {u"Sport"_s, u"Kunst"_s, u"Reisen"_s},
                                     .grammatikalisch = {u"dual"_s},
                                     .funktional = {u"archaic"_s}});
        bench.add({.main1 = u"b"_s, .fields = {{u"Quelle"_s, u"Radio"_s}}});
        bench.addReference(a, a, u"Rhymes with"_s);
        bench.load();
        bench.form.show();
    }

    [[nodiscard]] QComboBox& name() { return child<QComboBox>(bench.form, "cmbName"); }
    [[nodiscard]] bool enabled(const char* button) {
        return child<QPushButton>(bench.form, button).isEnabled();
    }
    [[nodiscard]] bool menuEnabled(const char* entry) {
        return child<QAction>(bench.form, entry).isEnabled();
    }
    void enter(const QString& text) { name().setEditText(text); }
    void type(const QString& text) {
        name().clearEditText();
        QTest::keyClicks(name().lineEdit(), text);
    }
    void save(const QString& lesson) {
        // The name of a lesson recalls it: what is on the form is to go into it.
        const QSignalBlocker quiet(name());
        enter(lesson);
        child<QPushButton>(bench.form, "cmdSpeichern").setEnabled(true);
        bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
        bench.click("cmdSpeichern");
    }
    void remove(const QString& lesson) {
        enter(lesson);
        bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
        bench.click("cmdLoeschen");
    }
    void clear() { bench.click("Command2"); }

    [[nodiscard]] QString stored(const QString& section, const QString& key) {
        return bench.context.settings.GetSetting(AppName(), u"Queries\\selection.lmt"_s + section, key,
                                                 u"(none)"_s);
    }
    [[nodiscard]] QStringList storedKeys(const QString& section) {
        QStringList all;
        const auto values =
            bench.context.settings.GetAllSettings(AppName(), u"Queries\\selection.lmt"_s + section);
        for (const auto& [key, value] : values)
            all.append(key + u'=' + value);
        return all;
    }
    void put(const QString& section, const QString& key, const QString& value) {
        bench.context.settings.SaveSetting(AppName(), u"Queries\\selection.lmt"_s + section, key, value);
    }
    void take(const QString& section, const QString& key) {
        bench.context.settings.DeleteSetting(AppName(), u"Queries\\selection.lmt"_s + section, key);
    }
    [[nodiscard]] QStringList offeredLessons() {
        QStringList all;
        for (int i = 0; i < name().count(); ++i)
            all.append(name().itemText(i));
        return all;
    }
    /// The twelve boxes, of entry and of change.
    [[nodiscard]] QStringList dates() {
        QStringList all;
        for (const char* box : {"txtEingabeVonTag", "txtEingabeVonMonat", "txtEingabeVonJahr",
                                "txtEingabeBisTag", "txtEingabeBisMonat", "txtEingabeBisJahr"})
            all.append(bench.text(box));
        for (const char* box : {"txtAenderungVonTag", "txtAenderungVonMonat", "txtAenderungVonJahr",
                                "txtAenderungBisTag", "txtAenderungBisMonat", "txtAenderungBisJahr"})
            all.append(bench.text(box));
        return all;
    }
    void fillForm() {
        bench.choose(u"Quelle"_s, {u"Radio"_s});
        bench.choose(u"Bereich"_s, {u"Sport"_s, u"Kunst"_s});
        bench.choose(u"Wortart"_s, {u"adverb"_s});
        bench.choose(u"Grammatikalisch"_s, {u"dual"_s});
        bench.choose(u"Funktional"_s, {u"archaic"_s});
        bench.choose(u"Referenzen"_s, {u"Rhymes with"_s, u"See also"_s});
        bench.type("MinScore", u"2"_s);
        bench.type("MaxScore", u"4"_s);
        bench.type("Lang1Prefix", u"der"_s);
        bench.type("Lang1Main", u" Hund* "_s);
        bench.type("Lang1Suffix", u"-e"_s);
        bench.type("Lang1Kommentar", u"Tier"_s);
        bench.type("Lang2Prefix", u"the"_s);
        bench.type("Lang2Main", u"dog"_s);
        bench.type("Lang2Suffix", u"s"_s);
        bench.type("Lang2Kommentar", u"pet"_s);
        bench.type("txtEingabeVonJahr", u"2001"_s);
        bench.type("txtEingabeVonMonat", u"02"_s);
        bench.type("txtEingabeVonTag", u"03"_s);
        bench.type("txtAenderungBisMonat", u"01"_s);
        bench.type("txtAenderungBisTag", u"28"_s);
        bench.type("Zusatzinfo", u"more"_s);
        bench.type("Beispielsatz", u"Das ist ein Satz."_s);
    }

    SelectionBench bench;
    const QStringList fullRange{u"05"_s, u"01"_s, u"2001"_s, u"01"_s, u"03"_s, u"2002"_s,
                                u"05"_s, u"01"_s, u"2001"_s, u"01"_s, u"03"_s, u"2002"_s};
};

class GermanLessons : public Lessons {
protected:
    GermanLessons() : Lessons(u"De"_s) {}
};

} // namespace lingomat
