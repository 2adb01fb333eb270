#include "ScriptedPrompts.h"

#include "Globals.h"

#include <QPointer>

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QString iconName(QMessageBox::Icon icon) {
    switch (icon) {
    case QMessageBox::NoIcon: return u"plain message"_s;
    case QMessageBox::Information: return u"information"_s;
    case QMessageBox::Warning: return u"exclamation"_s;
    case QMessageBox::Critical: return u"critical message"_s;
    case QMessageBox::Question: return u"question"_s;
    }
    return u"message"_s;
}

QString describeMessage(const Message& message) {
    return iconName(message.icon) + u" \""_s + message.text + u'"';
}

QString errorBoxText(const QString& description) {
    return uiText(u"Es trat folgender Fehler auf: "_s, u"The following error occured: "_s) + u'\r' +
           description;
}

/// The answer that does the least where a test goes on after a failure.
QMessageBox::StandardButton harmlessAnswer(const Message& message) {
    for (const auto button : {QMessageBox::Cancel, QMessageBox::No, QMessageBox::Ok}) {
        if (message.buttons.testFlag(button))
            return button;
    }
    return message.defaultButton;
}

void checkMessage(const ExpectedMessage& expected, const Message& shown) {
    EXPECT_EQ(iconName(shown.icon), iconName(expected.icon))
        << "of the message \"" << shown.text.toStdString() << '"';
    EXPECT_TRUE(expected.text.matches(shown.text))
        << "message:  \"" << shown.text.toStdString()
        << "\"\nexpected: " << expected.text.description().toStdString();
    if (expected.title) {
        EXPECT_EQ(shown.title, *expected.title);
    }
    if (expected.buttons) {
        EXPECT_EQ(shown.buttons.toInt(), expected.buttons->toInt())
            << "buttons of \"" << shown.text.toStdString() << '"';
    }
    if (expected.defaultButton) {
        EXPECT_EQ(shown.defaultButton, *expected.defaultButton)
            << "default button of \"" << shown.text.toStdString() << '"';
    }
    EXPECT_TRUE(shown.buttons.testFlag(expected.answer))
        << "the message \"" << shown.text.toStdString() << "\" does not offer the answer that the test gives";
}

} // namespace

ExpectedText::ExpectedText(std::function<bool(const QString&)> accepts, QString description)
    : m_accepts(std::move(accepts)), m_description(std::move(description)) {}

ExpectedText::ExpectedText(const QString& exact)
    : ExpectedText([exact](const QString& text) { return text == exact; }, u'"' + exact + u'"') {}

ExpectedText::ExpectedText(const char16_t* exact) : ExpectedText(QString::fromUtf16(exact)) {}

ExpectedText ExpectedText::containing(const QString& part) {
    return {[part](const QString& text) { return text.contains(part); },
            u"a text with \""_s + part + u"\" in it"_s};
}

ExpectedText ExpectedText::anything() {
    return {[](const QString&) { return true; }, u"any text"_s};
}

ScriptedPrompts::~ScriptedPrompts() {
    verify();
}

void ScriptedPrompts::verify() {
    for (const Step& step : std::exchange(m_steps, {}))
        ADD_FAILURE() << "did not come: " << describe(step).toStdString();
}

void ScriptedPrompts::expect(ExpectedMessage message) {
    m_steps.emplace_back(std::move(message));
}

void ScriptedPrompts::expectInformation(const ExpectedText& text) {
    expect({.icon = QMessageBox::Information, .text = text});
}

void ScriptedPrompts::expectExclamation(const ExpectedText& text) {
    expect({.icon = QMessageBox::Warning, .text = text});
}

void ScriptedPrompts::expectCritical(const ExpectedText& text) {
    expect({.icon = QMessageBox::Critical, .text = text});
}

void ScriptedPrompts::expectError(const QString& description) {
    expectCritical(errorBoxText(description));
}

void ScriptedPrompts::expectErrorContaining(const QString& part) {
    expectCritical(ExpectedText::containing(part));
}

void ScriptedPrompts::expectYesNo(const ExpectedText& text, bool yes) {
    expect({.icon = QMessageBox::Question,
            .text = text,
            .answer = yes ? QMessageBox::Yes : QMessageBox::No,
            .buttons = QMessageBox::Yes | QMessageBox::No,
            .defaultButton = QMessageBox::No});
}

void ScriptedPrompts::expectDialog(const char* name, std::function<void(QDialog&)> act) {
    m_steps.emplace_back(DialogStep{QString::fromUtf8(name), std::move(act)});
}

void ScriptedPrompts::expectOpenFile(const std::optional<QString>& answer) {
    m_steps.emplace_back(FileStep{true, !answer, answer.value_or(QString())});
}

void ScriptedPrompts::expectSaveFile(const std::optional<QString>& answer) {
    m_steps.emplace_back(FileStep{false, !answer, answer.value_or(QString())});
}

QString ScriptedPrompts::describe(const Step& step) {
    if (const auto* message = std::get_if<ExpectedMessage>(&step))
        return iconName(message->icon) + u' ' + message->text.description();
    if (const auto* dialog = std::get_if<DialogStep>(&step))
        return u"form \""_s + dialog->name + u'"';
    return std::get<FileStep>(step).open ? u"dialog for a file to open"_s : u"dialog for a file to save"_s;
}

void ScriptedPrompts::failUnexpected(const QString& prompt) const {
    const QString expected = m_steps.empty() ? u"nothing"_s : describe(m_steps.front());
    ADD_FAILURE() << "unexpected prompt: " << prompt.toStdString()
                  << "\nexpected:          " << expected.toStdString();
}

template <typename Kind>
std::optional<Kind> ScriptedPrompts::take(const QString& prompt) {
    if (m_steps.empty() || !std::holds_alternative<Kind>(m_steps.front())) {
        failUnexpected(prompt);
        return {};
    }
    // Off the script before it acts: a form may bring up the next prompt.
    Kind step = std::move(std::get<Kind>(m_steps.front()));
    m_steps.pop_front();
    return step;
}

QMessageBox::StandardButton ScriptedPrompts::message(QWidget* /*parent*/, const Message& message) {
    const auto expected = take<ExpectedMessage>(describeMessage(message));
    if (!expected)
        return harmlessAnswer(message);
    checkMessage(*expected, message);
    return expected->answer;
}

int ScriptedPrompts::exec(QDialog& dialog) {
    const auto step = take<DialogStep>(u"form \""_s + dialog.objectName() + u'"');
    if (!step)
        return QDialog::Rejected;
    EXPECT_EQ(dialog.objectName(), step->name);

    const QPointer<QDialog> stillThere(&dialog);
    dialog.setResult(QDialog::Rejected);
    dialog.setModal(true);
    dialog.show();
    try {
        step->act(dialog);
    } catch (const std::exception& exception) {
        ADD_FAILURE() << "on form \"" << step->name.toStdString() << "\": " << exception.what();
    }
    if (!stillThere)
        return QDialog::Rejected;
    if (dialog.isVisible()) {
        ADD_FAILURE() << "form \"" << step->name.toStdString() << "\" was left open";
        dialog.hide();
    }
    return dialog.result();
}

std::optional<QString> ScriptedPrompts::chooseFile(bool open, const FileDialogRequest& request) {
    m_lastFileRequest = request;
    const auto step = take<FileStep>(u"file dialog \""_s + request.title + u'"');
    if (!step)
        return {};
    EXPECT_EQ(open, step->open) << "file dialog \"" << request.title.toStdString() << '"';
    return step->cancelled ? std::nullopt : std::optional(step->path);
}

std::optional<QString> ScriptedPrompts::openFile(QWidget* /*parent*/, const FileDialogRequest& request) {
    return chooseFile(true, request);
}

std::optional<QString> ScriptedPrompts::saveFile(QWidget* /*parent*/, const FileDialogRequest& request) {
    return chooseFile(false, request);
}

} // namespace lingomat
