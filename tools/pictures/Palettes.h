#pragma once

#include <QPalette>

namespace tessarin::pictures {

QPalette lightPalette();
QPalette darkPalette();

}  // namespace tessarin::pictures
