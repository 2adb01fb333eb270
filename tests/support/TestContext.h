#pragma once

#include "ColumnOptions.h"
#include "FixedRandom.h"
#include "FormContext.h"
#include "Progress.h"
#include "ScriptedPrompts.h"
#include "SettingsStore.h"
#include "SharedState.h"
#include "ValueLists.h"

#include <QTemporaryDir>

namespace lingomat {

/// Switches the interface language, and back when it goes.
class InterfaceLanguage {
public:
    explicit InterfaceLanguage(const QString& language);
    ~InterfaceLanguage();
    Q_DISABLE_COPY_MOVE(InterfaceLanguage)

private:
    QString m_before;
};

/// Everything that a form is given, on a folder of its own:
///
///     TestContext context;
///     Liste list(context.forms);
///
/// A second one in another language: `TestContext context(u"De"_s);`.
class TestContext {
public:
    explicit TestContext(const QString& language = QStringLiteral("En"));
    Q_DISABLE_COPY_MOVE(TestContext)

    /// Path of a file in the test's own folder, which goes with the test.
    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }

    InterfaceLanguage language;
    QTemporaryDir folder;
    ScriptedPrompts prompts;
    SharedState state;
    SettingsStore settings;
    ValueLists values;
    ColumnOptions columns;
    Progress progress;
    FixedRandom random;
    QDate today{2002, 3, 1};
    FormContext forms;
};

} // namespace lingomat
