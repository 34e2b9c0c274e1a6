#pragma once

#include <QStringList>
#include <QWidget>

namespace tessarin::pictures {

/// The texts of a window that do not have the room that they need. Lists, charts and what is shortened on
/// purpose (ShortLabel) are not looked at.
QStringList cutOffTexts(const QWidget& window);

}  // namespace tessarin::pictures
