#pragma once

namespace tessarin::ui {

/// The two lists that the popup shows: the matches and, while the picker is open, the skin tones.
enum class PopupList { rows, variants };

}  // namespace tessarin::ui
