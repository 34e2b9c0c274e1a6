#pragma once

#include <QIcon>
#include <QPixmap>
#include <optional>

#include "ui/style/Colors.h"

namespace tessarin::ui {

/// Our own symbols, drawn in one colour. `name` is that of a file in resources/symbols, without ".svg".
QPixmap symbolPixmap(const QString& name, const QColor& color, const QSize& size, qreal devicePixelRatio);

/// The symbol as an icon for buttons and tabs: in the colour of the text beside it, whatever the palette
/// becomes, or in the colour of a role.
QIcon symbolIcon(const QString& name, std::optional<ColorRole> color = std::nullopt);

}  // namespace tessarin::ui
