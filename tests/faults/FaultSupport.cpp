#include "FaultSupport.h"

#include <QFile>

#include <gtest/gtest.h>

#include <pwd.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr uid_t Superuser = 0;

uid_t nobody() {
    const passwd* entry = getpwnam("nobody");
    return entry ? entry->pw_uid : 65534;
}

} // namespace

QMessageBox::StandardButton RecordingPrompts::message(QWidget* /*parent*/, const Message& message) {
    texts.append(message.text);
    return message.buttons.testFlag(QMessageBox::No) ? QMessageBox::No : QMessageBox::Ok;
}

int RecordingPrompts::exec(QDialog& dialog) {
    texts.append("form "_L1 + dialog.objectName());
    return QDialog::Rejected;
}

std::optional<QString> RecordingPrompts::openFile(QWidget* /*parent*/, const FileDialogRequest& /*request*/) {
    return fileToOpen;
}

std::optional<QString> RecordingPrompts::saveFile(QWidget* /*parent*/, const FileDialogRequest& /*request*/) {
    return {};
}

OrdinaryUser::OrdinaryUser() : m_before(geteuid()) {
    if (m_before == Superuser && seteuid(nobody()) != 0)
        throw std::runtime_error("cannot become an ordinary user");
}

OrdinaryUser::~OrdinaryUser() {
    if (m_before == Superuser && seteuid(m_before) != 0)
        std::abort(); // every test after this one would run as somebody else
}

FaultyFile::FaultyFile(Way way, const QString& language) : m_way(way), m_program(language) {
    m_program.promptsInPlace = &m_prompts;
    if (way == Way::ByCommand) {
        m_program.startWithDatabase();
        EXPECT_EQ(said(), QString());
    }
}

void FaultyFile::open(const QString& file) {
    if (m_way == Way::AtStart) {
        m_program.rememberDatabase(file);
        m_program.start();
    } else {
        m_prompts.fileToOpen = file;
        m_program.choose("Datei_Open");
    }
    EXPECT_TRUE(m_program.app().form1().isVisible());
    EXPECT_FALSE(m_program.app().state().FormIsLoading);
}

void FaultyFile::expectRefused() {
    EXPECT_FALSE(m_prompts.texts.isEmpty()) << "nothing was said";
    for (const QString& text : std::as_const(m_prompts.texts))
        EXPECT_FALSE(text.trimmed().isEmpty() || text.endsWith(u": \r"_s)) << text.toStdString();
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(m_program.isEnabled("Command1"));

    const QString sound = path(u"sound.lmt"_s);
    writeDatabase(sound, {.entries = someEntries()});
    const auto said = m_prompts.texts.size();
    m_prompts.fileToOpen = sound;
    m_program.choose("Datei_Open");
    EXPECT_EQ(m_program.app().state().CurrentDBPath, sound);
    EXPECT_EQ(m_program.label("AnzahlLabel").right(2), u" 4"_s);
    m_program.click("Command4");
    EXPECT_FALSE(m_program.app().form1().isVisible());
    EXPECT_EQ(m_prompts.texts.size(), said) << m_prompts.texts.last().toStdString();
}

void FaultyFile::expectTold(const QString& text) const {
    const bool told = std::any_of(m_prompts.texts.begin(), m_prompts.texts.end(),
                                  [&text](const QString& each) { return each.contains(text); });
    EXPECT_TRUE(told) << "not told: " << text.toStdString() << "\nbut:      " << said().toStdString();
}

} // namespace lingomat
