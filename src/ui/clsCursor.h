#pragma once

#include <QtGlobal>

namespace lingomat {

/// The wait cursor. Calls are paired by the object: a second SetCursorToBusy, or a RestoreCursor without
/// one before it, does nothing. Destruction leaves the cursor as it stands.
class clsCursor {
public:
    clsCursor() = default;
    ~clsCursor() = default;
    Q_DISABLE_COPY_MOVE(clsCursor)

    void SetCursorToBusy();
    void RestoreCursor();

private:
    bool m_busy = false;
};

} // namespace lingomat
