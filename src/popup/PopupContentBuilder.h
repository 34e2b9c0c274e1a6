#pragma once

#include <string>

#include "platform/PopupPresenter.h"

namespace tessarin {

class AutocompleteViewModel;

/// What the popup shows for the model as it stands: all rows, the highlights, and the key hints, which are
/// left out when there are no rows.
PopupContent buildPopupContent(const AutocompleteViewModel& model, const std::string& triggerCharacter);

}  // namespace tessarin
