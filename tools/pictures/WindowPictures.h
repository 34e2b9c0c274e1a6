#pragma once

#include <QString>
#include <filesystem>

namespace tessarin::pictures {

/// Shows every window in each of its states, in the application's palette, and saves what is seen into files
/// whose names start with `prefix`. False when one cannot be saved.
bool saveWindows(const QString& prefix, const std::filesystem::path& resources);

}  // namespace tessarin::pictures
