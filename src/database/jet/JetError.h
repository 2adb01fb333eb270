#pragma once

#include <QString>

#include <exception>

namespace jet {

/// Why a file, or a part of it, cannot be read.
enum class Problem {
    NotJet,    ///< another kind of file
    Newer,     ///< a later format of the same family
    Protected, ///< encoded, or behind a password
    Damaged,   ///< what it says of itself does not hold together
    Device,    ///< the system does not let it be read
};

/// The one exception type of the reader. The text is English, a whole sentence, and fit to be shown.
class Error : public std::exception {
public:
    Error(Problem problem, QString text)
        : m_problem(problem), m_text(std::move(text)), m_utf8(m_text.toUtf8()) {}

    [[nodiscard]] Problem problem() const noexcept { return m_problem; }
    [[nodiscard]] const QString& text() const noexcept { return m_text; }
    [[nodiscard]] const char* what() const noexcept override { return m_utf8.constData(); }

private:
    Problem m_problem;
    QString m_text;
    QByteArray m_utf8;
};

[[noreturn]] void damaged(const QString& text);

} // namespace jet
