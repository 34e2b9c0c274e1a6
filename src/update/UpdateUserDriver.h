#pragma once

#include <functional>
#include <string>

#include "update/AppcastItem.h"
#include "update/UpdateChoice.h"
#include "update/UpdateFailure.h"

namespace tessarin {

/// Tells the user about checks and asks what to do. One thing is shown at a time: each `show…` replaces what
/// was shown before, whose callback is then not called any more. Main thread.
class UpdateUserDriver {
 public:
  /// How much a window may push itself forward.
  enum class Manner {
    inFront,     ///< the user asked for it: gets the keyboard
    unobtrusive  ///< the user is at something else and keeps typing there
  };

  virtual ~UpdateUserDriver() = default;

  /// A check runs; `cancel` is called when the user wants no more of it.
  virtual void showChecking(std::function<void()> cancel) = 0;
  /// `chosen` is called once; closing the window means later.
  virtual void showUpdate(const AppcastItem& item, const std::string& currentVersion, Manner manner,
                          std::function<void(UpdateChoice)> chosen) = 0;
  virtual void showUpToDate(const std::string& currentVersion) = 0;
  virtual void showFailure(UpdateFailure failure) = 0;
  /// Brings what is shown to the front.
  virtual void focus() = 0;
  /// Nothing is shown any more.
  virtual void dismiss() = 0;
};

}  // namespace tessarin
