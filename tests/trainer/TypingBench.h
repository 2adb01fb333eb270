#pragma once

#include "Globals.h"
#include "TrainingBench.h"

#include <gtest/gtest.h>

namespace lingomat {

// The two questions about a near answer, in the interface language.

inline QString synonymQuestion() {
    return uiText(QStringLiteral("Der eingegebene Ausdruck wurde in der Datenbank als Synonym für den "
                                 "angeforderten Ausdruck eingetragen.\r"
                                 "Soll die Eingabe als korrekt gewertet werden?"),
                  QStringLiteral("The expression typed in, was recognized as Synonym for the required "
                                 "expression.\rShall the input be regarded as correct?"));
}

inline QString referenceQuestion(const QString& type) {
    return uiText(
               QStringLiteral("Der eingegebene Ausdruck wurde in der Datenbank als folgende Referenz bzgl. "
                              "des angeforderten Ausdrucks eingetragen: '%1.\r"
                              "'Soll die Eingabe als korrekt gewertet werden?"),
               QStringLiteral("The expression typed in, was recognized as the following Reference to the "
                              "required expression: '%1.\r"
                              "'Shall the input be regarded as correct?"))
        .arg(type);
}

/// Entries to be asked for by typing, from German to English.
struct TypingBench : TrainingBench {
    explicit TypingBench(const QString& language = QStringLiteral("En")) : TrainingBench(0, language) {
        openFile();
    }

    void begin() {
        listEntries();
        beginTyping();
    }
    void willAsk(const QString& question, bool yes) {
        context.prompts.expect({.icon = QMessageBox::Question,
                                .text = question,
                                .answer = yes ? QMessageBox::Yes : QMessageBox::No,
                                .buttons = QMessageBox::Yes | QMessageBox::No});
    }
    void willConfirmError(bool isError) {
        context.prompts.expectDialog("ConfirmForm", [isError](QDialog& form) {
            child<QPushButton>(form, isError ? "Ja" : "Nein").click();
        });
    }
    void expectRight() {
        EXPECT_TRUE(saysRight());
        EXPECT_FALSE(saysWrong());
        EXPECT_FALSE(shown("Suche"));
        EXPECT_FALSE(action("menSucheZuletzt").isEnabled());
        EXPECT_TRUE(context.prompts.isFinished());
    }
    void expectWrong(const QString& caption) {
        EXPECT_TRUE(saysWrong());
        EXPECT_FALSE(saysRight());
        EXPECT_EQ(child<QLabel>(trainer, "NichtWort").text(), caption);
        EXPECT_TRUE(shown("Suche"));
        EXPECT_TRUE(action("menSucheZuletzt").isEnabled());
        EXPECT_TRUE(context.prompts.isFinished());
    }
};

} // namespace lingomat
