#pragma once

#include <QString>
#include <QStringList>

namespace tessarin::ui {

/// The text's characters as people see them.
QStringList charactersOf(const QString& text);

/// Whether every character of the text asks for a picture: it has a code point that is shown as emoji by
/// itself, or one that is made so by a variation selector or a key cap.
bool isEmoji(const QString& text);

}  // namespace tessarin::ui
