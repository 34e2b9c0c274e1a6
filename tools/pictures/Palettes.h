#pragma once

#include <QPalette>

namespace tessarin::pictures {

QPalette lightPalette();
QPalette darkPalette();
/// White and yellow on black, as themes for weak eyes have it.
QPalette highContrastPalette();

}  // namespace tessarin::pictures
