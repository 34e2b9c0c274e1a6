#pragma once

#include <QString>

class QPalette;

namespace tessarin::pictures {

/// Paints the popup in each of its states into files whose names start with `prefix`. False when one cannot
/// be saved.
bool savePopups(const QString& prefix, const QPalette& palette, double scale);

}  // namespace tessarin::pictures
