#pragma once

#include <QString>

#include <stdexcept>

namespace lingomat {

/// A mistake in the sample data, or a sample database that could not be written. The text is complete.
class SampleError : public std::runtime_error {
public:
    explicit SampleError(const QString& description) : std::runtime_error(description.toStdString()) {}

    [[nodiscard]] QString description() const { return QString::fromUtf8(what()); }
};

} // namespace lingomat
