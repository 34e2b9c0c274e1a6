#include "platform/x11/SelectionTextRead.h"

#include <utility>

#include "platform/x11/Atoms.h"
#include "platform/x11/SelectionTargets.h"
#include "text/Graphemes.h"

namespace tessarin::x11 {

SelectionTextRead::SelectionTextRead(XThread& thread, Atoms& atoms, xcb_atom_t selection, Done done)
    : latin1_(atoms.atom("STRING")),
      targets_(atoms.atoms(textTargets())),
      done_(std::move(done)),
      reader_(thread, atoms, selection,
              [this](xcb_atom_t, std::optional<Representation> answer) { receive(std::move(answer)); }) {
  reader_.request(targets_[next_++]);
}

void SelectionTextRead::giveUp() {
  if (!isFinished_) finish(std::nullopt);
}

void SelectionTextRead::receive(std::optional<Representation> representation) {
  if (isFinished_) return;
  if (representation && representation->format == 8) {
    finish(decodedText(*representation, latin1_));
  } else if (next_ < targets_.size()) {
    reader_.request(targets_[next_++]);
  } else {
    finish(std::nullopt);
  }
}

void SelectionTextRead::finish(std::optional<std::string> text) {
  isFinished_ = true;
  done_(std::move(text));
}

std::string decodedText(const Representation& representation, xcb_atom_t latin1) {
  const bool isLatin1 = representation.type == latin1 || !text::isValidUtf8(*representation.data);
  if (!isLatin1) return *representation.data;
  std::string text;
  for (const char c : *representation.data) {
    const auto code = static_cast<unsigned char>(c);
    if (code < 0x80) {
      text += c;
    } else {
      text += static_cast<char>(0xC0 | (code >> 6));
      text += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return text;
}

std::optional<std::string> latin1Text(const std::string& utf8) {
  std::string text;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    if (lead < 0x80) {
      text += utf8[i];
    } else if ((lead == 0xC2 || lead == 0xC3) && i + 1 < utf8.size()) {
      text += static_cast<char>(((lead & 0x03) << 6) | (utf8[++i] & 0x3F));
    } else {
      return std::nullopt;
    }
  }
  return text;
}

}  // namespace tessarin::x11
