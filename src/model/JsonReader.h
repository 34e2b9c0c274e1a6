#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// Reads JSON from front to back, value by value, strictly by the grammar: UTF-8 only (a byte order mark is
/// passed over), no halves of surrogate pairs. Texts may hold zero characters. It builds no tree: a full
/// event log as a tree would cost megabytes that stay with the process and the better part of the start-up
/// time. Everything throws DataError with line and column; the text itself is never quoted.
class JsonReader {
 public:
  enum class Kind { object, array, string, number, boolean, null };

  explicit JsonReader(std::string_view text);

  /// What the next value is; reads nothing of it.
  Kind kind();

  // Each reads one value, which must be of that kind.
  std::string string();
  bool boolean();
  double number();
  /// A number without fraction and exponent that fits the type.
  std::int64_t integer();
  /// Whether the next value, a number, is written as an integer.
  bool isInteger();
  /// Any value, whatever is in it.
  void skip();
  /// Nothing but white space may follow.
  void end();

  /// Calls `readElement()`, which must read one value, for each element of an array.
  template <class ReadElement>
  void elements(ReadElement readElement) {
    for (bool more = enter('[', ']'); more; more = next(']')) readElement();
  }
  /// Calls `readValue(key)`, which must read one value, for each member of an object.
  template <class ReadValue>
  void members(ReadValue readValue) {
    for (bool more = enter('{', '}'); more; more = next('}')) readValue(key());
  }

 private:
  bool enter(char open, char close);
  bool next(char close);
  std::string key();
  char peek();
  void expect(char c);
  void literal(std::string_view word);
  std::string_view numberToken() const;
  void appendEscape(std::string& result);
  std::uint32_t hexQuad();
  [[noreturn]] void fail(const char* problem) const;

  std::string_view text_;
  std::size_t at_ = 0;
  int depth_ = 0;
};

}  // namespace tessarin
