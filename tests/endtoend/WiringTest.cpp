#include "TestProgram.h"

#include <QApplication>
#include <QMetaMethod>

#include <gtest/gtest.h>

namespace lingomat {
namespace {

/// Gives access to a question that an object otherwise answers to its own class only.
struct Asking : QObject {
    using QObject::isSignalConnected;
};

bool isConnected(const QObject& object, const QMetaMethod& signal) {
    return (object.*(&Asking::isSignalConnected))(signal);
}

bool isOfTheProgram(const QMetaObject* type) {
    return QByteArrayView(type->className()).startsWith("lingomat::");
}

/// What the object wants of others: its signals named `...Requested`, those of the toolkit left out.
QList<QMetaMethod> requests(const QObject& object) {
    QList<QMetaMethod> all;
    const QMetaObject* type = object.metaObject();
    for (int index = 0; index < type->methodCount(); ++index) {
        const QMetaMethod method = type->method(index);
        if (method.methodType() == QMetaMethod::Signal && method.name().endsWith("Requested") &&
            isOfTheProgram(method.enclosingMetaObject()))
            all.append(method);
    }
    return all;
}

TEST(Wiring, EveryRequestIsConnected) {
    TestProgram program;
    program.startWithDatabase();
    QObjectList objects;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        objects.append(window);
        objects.append(window->findChildren<QObject*>());
    }

    int checked = 0;
    for (const QObject* object : std::as_const(objects)) {
        const QList<QMetaMethod> wanted = requests(*object);
        for (const QMetaMethod& signal : wanted) {
            ++checked;
            EXPECT_TRUE(isConnected(*object, signal))
                << object->metaObject()->className() << "::" << signal.name().toStdString();
        }
    }
    EXPECT_GE(checked, 2) << "of the splash and of the main window at least";
}

TEST(Wiring, LoadingMovesTheSplash) {
    TestProgram program;
    Application& app = program.make();
    EXPECT_TRUE(isConnected(app.liste(), QMetaMethod::fromSignal(&Liste::loadProgress)));
    EXPECT_TRUE(isConnected(app.trainer(), QMetaMethod::fromSignal(&Trainer::loadProgress)));
    EXPECT_TRUE(isConnected(app.form2(), QMetaMethod::fromSignal(&Form2::selectionMade)));
}

} // namespace
} // namespace lingomat
