#pragma once

#include "EngineError.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace dao {

/// Number of the engine's error that an action ends with; nothing where it ends well.
[[nodiscard]] std::optional<int> errorOf(const std::function<void()>& action);

/// The error's description; empty where the action ends well.
[[nodiscard]] QString descriptionOf(const std::function<void()>& action);

} // namespace dao
