#include "base/Environment.h"

#include <cstdlib>

namespace tessarin {

std::optional<std::string> processEnvironment(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (!value) return std::nullopt;
  return value;
}

}  // namespace tessarin
