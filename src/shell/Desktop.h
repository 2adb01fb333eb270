#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace lingomat {

/// What the program asks of the desktop it runs on. Tests put their own in place.
struct Desktop {
    /// Shows an address in the user's browser. False: there is none.
    std::function<bool(const QUrl& address)> openUrl;
    /// Full path of a program on the search path; empty where there is none of that name.
    std::function<QString(const QString& name)> findProgram;
    /// Starts a program and lets it go. False: it did not start.
    std::function<bool(const QString& program, const QStringList& arguments)> startProgram;
};

/// The desktop of the user.
[[nodiscard]] Desktop userDesktop();

} // namespace lingomat
