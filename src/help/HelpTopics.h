#pragma once

#include <QStringList>

class QWidget;

namespace lingomat {

/// The page of the help, often with an anchor, for a control; `names` are object names from the control
/// outwards, the window's last. The innermost control that has a page of its own decides, then the window.
/// A window that the help does not know gives an empty text.
[[nodiscard]] QString helpPageFor(const QStringList& names);

/// The page for the control that has the focus. Where its window has none (a message box, a file dialog),
/// that of the window it belongs to; the contents at last.
[[nodiscard]] QString helpPageFor(const QWidget* focus);

/// Every page that a window or control of the program leads to, with its anchor.
[[nodiscard]] QStringList allHelpTargets();

} // namespace lingomat
