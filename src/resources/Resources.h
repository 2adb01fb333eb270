#pragma once

#include <QIcon>

namespace lingomat {

/// Makes the pictures below ":/" available. They lie in a static library, out of which the linker takes only
/// what is called by name, so that something has to call this. icon() and applicationIcon() do; other code
/// needs it before it opens a ":/" path of its own. May be called any number of times.
void initResources();

/// An action's icon: one of "new", "open", "print", "selection", "list", "trainer", "quit", "help", "step",
/// "first", "previous", "next", "last", "restart", or of the Trainer's options: "sequential", "shuffle",
/// "random", "language1-first", "language2-first", "self-test", "loop", "write", "confirm-error",
/// "main-only". It is drawn anew at each size and scale in the text colour
/// of the application's palette, so that it is readable on light and dark ground. A name that does not exist
/// is a programming error; it stops a debug build and gives an empty icon elsewhere.
[[nodiscard]] QIcon icon(QLatin1StringView name);

/// The program's own icon, in colour.
[[nodiscard]] QIcon applicationIcon();

} // namespace lingomat
