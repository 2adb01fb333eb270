#pragma once

#include <QString>

namespace dao {

/// What came of using a file.
struct Outcome {
    bool opened = false;
    bool failed = false; ///< with the engine's error, on opening or later
};

/// Opens a file and reads everything in it in every way there is. The engine's errors are a fair answer;
/// anything else, and a walk that does not end, fails the test.
Outcome readEverything(const QString& path);

/// The same, and changes rows of every table.
Outcome changeEverything(const QString& path);

} // namespace dao
