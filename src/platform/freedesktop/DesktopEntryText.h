#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::freedesktop {

/// Without the blanks around it.
std::string_view trimmed(std::string_view text);
/// A value of a desktop entry as the text that it stands for (\s, \n, \t, \r and \\ undone), and back.
std::string unescaped(std::string_view value);
std::string escaped(std::string_view text);
/// An argument as it stands in the text of an Exec key: quoted where it must be, with "%" doubled.
std::string quotedArgument(std::string_view argument);

/// The text of a desktop entry, for changing single keys of its main group; every other line stays as it is.
class DesktopEntryText {
 public:
  explicit DesktopEntryText(std::string_view content = {});

  /// The value with escapes undone; none when the main group has no such key.
  std::optional<std::string> value(std::string_view key) const;
  /// Replaces the key's value, or adds the key at the end of the main group.
  void set(std::string_view key, std::string_view text);
  void remove(std::string_view key);
  /// The keys of the main group, in order.
  std::vector<std::string> keys() const;
  /// Whether there is anything but the main group's keys and empty lines: comments, other groups.
  bool hasMore() const;
  std::string content() const;

 private:
  using Lines = std::vector<std::string>;
  /// One past the last line of the main group.
  std::size_t end() const;
  Lines::const_iterator find(std::string_view key) const;

  Lines lines_;
  std::size_t begin_ = 0;  ///< the first line behind the main group's header
};

}  // namespace tessarin::freedesktop
