#pragma once

#include <xcb/xcb.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/x11/SelectionReader.h"

namespace tessarin::x11 {

/// Reads the plain text that another program offers under a selection, by the best target that it answers.
class SelectionTextRead {
 public:
  using Done = std::function<void(std::optional<std::string> text)>;

  SelectionTextRead(XThread& thread, Atoms& atoms, xcb_atom_t selection, Done done);

  void handle(const xcb_generic_event_t& event) { reader_.handle(event); }
  /// Answers that there is no text, if there is no answer yet.
  void giveUp();
  bool isFinished() const { return isFinished_; }

 private:
  void receive(std::optional<Representation> representation);
  void finish(std::optional<std::string> text);

  xcb_atom_t latin1_;
  std::vector<xcb_atom_t> targets_;
  std::size_t next_ = 0;
  Done done_;
  bool isFinished_ = false;
  SelectionReader reader_;
};

/// The text of a representation in UTF-8, `latin1` being the type that holds ISO 8859-1.
std::string decodedText(const Representation& representation, xcb_atom_t latin1);
/// The text in ISO 8859-1; none when it holds other characters.
std::optional<std::string> latin1Text(const std::string& utf8);

}  // namespace tessarin::x11
