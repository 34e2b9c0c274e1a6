#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Subscription.h"
#include "model/Snippet.h"

namespace tessarin {

class AutocompleteViewModel;
class KeyboardMonitor;
class PopupPresenter;
class UserDefaults;

/// Keeps the popup, its model and the monitor's swallowing in step. All references outlive it. Main thread.
class PopupController {
 public:
  PopupController(AutocompleteViewModel& model, PopupPresenter& panel, KeyboardMonitor& monitor,
                  const UserDefaults& defaults);
  PopupController(const PopupController&) = delete;
  PopupController& operator=(const PopupController&) = delete;

  bool isVisible() const;
  /// A collecting has begun.
  void anticipate();
  /// Hides the popup when there are no results; the model keeps them and the query all the same. No row is
  /// highlighted where the query is doubtful, unless the user has moved through the lists of this shortcode.
  void showResults(std::vector<Snippet> results, const std::string& query, bool isDoubtful);
  /// The doubt about what is shown has been raised or removed.
  void setDoubtful(bool isDoubtful);
  void hide();
  /// Hides the popup and empties the model.
  void close();

  /// Moves the highlights and opens or closes the skin-tone picker. False when the key is no arrow.
  bool handleArrow(std::int64_t keyCode);
  /// Highlights a variant; nothing while the picker is closed.
  void selectVariant(int index);

  /// What is shown may be out of date, for a reason other than the model.
  void invalidate() { isStale_ = true; }
  /// Presents again what has changed since the last time, if the popup is shown.
  void refresh();

 private:
  void present();
  void handleLeft();
  void handleRight();
  int firstHighlight() const;

  AutocompleteViewModel& model_;
  PopupPresenter& panel_;
  KeyboardMonitor& monitor_;
  const UserDefaults& defaults_;
  bool isStale_ = false;
  bool isDoubtful_ = false;
  bool isChosenFrom_ = false;  ///< the user has moved through a list since the shortcode was begun
  Subscription modelObserver_;
};

}  // namespace tessarin
