#include "ErrorOf.h"

namespace dao {

std::optional<int> errorOf(const std::function<void()>& action) {
    try {
        action();
        return std::nullopt;
    } catch (const Error& error) {
        return static_cast<int>(error.Number());
    }
}

QString descriptionOf(const std::function<void()>& action) {
    try {
        action();
        return {};
    } catch (const Error& error) {
        return error.Description();
    }
}

} // namespace dao
