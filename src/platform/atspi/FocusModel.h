#pragma once

#include <optional>
#include <string>

#include "platform/atspi/ObjectReference.h"

namespace tessarin::atspi {

/// Which element has the keyboard focus, concluded from the events of all applications. The bus has no call
/// that answers this, and applications differ: some announce the element and then the window, some the window
/// only, some let a window go without letting its element go.
class FocusModel {
 public:
  struct Focus {
    std::optional<ObjectReference> element;
    std::optional<ObjectReference> window;
    bool operator==(const Focus&) const = default;
  };

  /// Answers whether the focus has moved inside an application. Losing the focus is no move, nor is getting
  /// it back; nor is another application's word, which may come late: the active window tells of that.
  bool elementFocused(const ObjectReference& element);
  void elementUnfocused(const ObjectReference& element);
  /// A window that comes back has its focus where it was, until it says otherwise.
  void windowActivated(const ObjectReference& window);
  void windowDeactivated(const ObjectReference& window);
  /// Something of our own has the focus: nothing that may be read or written.
  void ownFocused();
  void applicationGone(const std::string& bus);
  /// What a search has come upon: the user did nothing, so this is no move.
  void found(const Focus& focus);

  const Focus& focus() const { return focus_; }
  /// What had the focus last, when it was let go and nothing has taken its place. GTK 4 lets go for every key
  /// that is held for its verdict, though the user has gone nowhere; whether that is so, the active window
  /// tells.
  const Focus& lost() const { return lost_; }
  /// What had the focus last, whether it has been let go or not.
  const std::optional<ObjectReference>& lastElement() const { return lastElement_; }
  /// The active window whose focused element is not known.
  std::optional<ObjectReference> windowToSearch() const;
  /// How many times a window has been activated.
  int activations() const { return activations_; }

 private:
  void letGo();

  Focus focus_;
  Focus lost_;
  std::optional<ObjectReference> lastElement_;
  int activations_ = 0;
};

}  // namespace tessarin::atspi
