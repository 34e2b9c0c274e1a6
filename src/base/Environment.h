#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tessarin {

/// Looks up an environment variable; tests bring their own.
using Environment = std::function<std::optional<std::string>(const std::string& name)>;

/// The environment of this process.
std::optional<std::string> processEnvironment(const std::string& name);

}  // namespace tessarin
