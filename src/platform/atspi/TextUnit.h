#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarin::atspi {

/// What an application counts a text in.
enum class TextUnit { codePoint, utf16, utf8Byte };

std::int64_t countUnits(std::string_view text, TextUnit unit);
/// Without the U+FEFF that stands behind each code point beyond the basic plane where an application that
/// counts in UTF-16 answers through a library that counts code points.
std::string withoutPadding(std::string_view text);

/// How a toolkit counts. Seen in editors of each: GTK 3 and GTK 4 count offsets in code points and take the
/// length of inserted text in UTF-8 bytes (a shorter length inserts nothing); Qt counts both in UTF-16 units
/// (a byte length there pads the document with NULs). Gecko counts in UTF-16 units and pads. Others are taken
/// to be like GTK, whose library most of them speak through.
struct Toolkit {
  TextUnit offset = TextUnit::codePoint;
  TextUnit insertedLength = TextUnit::utf8Byte;
  /// Its own texts leave the caret behind what is inserted. One before it is then a foreign widget's.
  bool movesCaret = false;
  /// Its objects may be elements of a web page.
  bool showsWebPages = true;
  /// Answers rectangles relative to the window only.
  bool isWindowRelative = false;
  /// Its texts come padded.
  bool pads = false;
  /// Refuses neither erasing nor inserting in an editable text, so that both can be asked for at one go.
  bool changesAtOneGo = false;
  /// Seen while writing: the caret stays before inserted text, and has to be put behind it.
  bool leavesCaret = false;
  /// Seen while writing: nor can it be put there. Nothing can be inserted without spoiling the order.
  bool keepsCaret = false;

  /// `name` and `version` as the application tells them.
  static Toolkit named(std::string_view name, std::string_view version);
};

}  // namespace tessarin::atspi
