// The toolkit allows one application object a process, so this is a program with a main() of its own.

#include "ScriptedPrompts.h"

#include "EngineError.h"
#include "Globals.h"
#include "SafeApplication.h"

#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

/// The prompts of the moment, for an application object that outlives them.
class CurrentPrompts final : public Prompts {
public:
    QMessageBox::StandardButton message(QWidget* parent, const Message& message) override {
        return current->message(parent, message);
    }
    int exec(QDialog& dialog) override { return current->exec(dialog); }
    std::optional<QString> openFile(QWidget* parent, const FileDialogRequest& request) override {
        return current->openFile(parent, request);
    }
    std::optional<QString> saveFile(QWidget* parent, const FileDialogRequest& request) override {
        return current->saveFile(parent, request);
    }
    void beep() override {}

    Prompts* current = nullptr;
};

CurrentPrompts prompts;

class ClumsyWidget final : public QWidget {
protected:
    void customEvent(QEvent* /*event*/) override { throw std::runtime_error("clumsy"); }
};

TEST(SafeApplication, ExceptionOfASlotIsToldAndTheProgramGoesOn) {
    ScriptedPrompts script;
    prompts.current = &script;
    script.expectError(u"slipped"_s);
    int after = 0;
    QTimer::singleShot(0, qApp, [] { throw std::runtime_error("slipped"); });
    QTimer::singleShot(0, qApp, [&after] { ++after; });
    EXPECT_TRUE(QTest::qWaitFor([&after] { return after > 0; }));
}

TEST(SafeApplication, ExceptionOfAnEventHandlerIsToldToo) {
    ScriptedPrompts script;
    prompts.current = &script;
    script.expectError(u"clumsy"_s);
    ClumsyWidget widget;
    // Not a click: what the toolkit holds while it delivers one leaks when an exception passes through it.
    QEvent event(QEvent::User);
    EXPECT_TRUE(QCoreApplication::sendEvent(&widget, &event));
}

TEST(SafeApplication, ErrorThatWasReportedIsPassedOver) {
    ScriptedPrompts script;
    prompts.current = &script;
    int after = 0;
    QTimer::singleShot(0, qApp, [] { throw dao::alreadyReported(); });
    QTimer::singleShot(0, qApp, [&after] { ++after; });
    EXPECT_TRUE(QTest::qWaitFor([&after] { return after > 0; }));
}

} // namespace
} // namespace lingomat

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const lingomat::SafeApplication application(argc, argv, lingomat::prompts);
    lingomat::setInterfaceLanguage(u"En"_s);
    return RUN_ALL_TESTS();
}
