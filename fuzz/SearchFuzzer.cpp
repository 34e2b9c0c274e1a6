#include <algorithm>
#include <string>
#include <vector>

#include "Check.h"
#include "model/SearchIndex.h"
#include "support/PlainSearch.h"

namespace tessarin::fuzz {
namespace {

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == separator) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

/// Does everything to the index and to the plain search.
class Both {
 public:
  /// "+trigger keyword…" appends, "=…" and "-…" replace and remove the place that the line's length leads to,
  /// "#trigger" counts a use; any other line is a query.
  void take(const std::string& line) {
    const std::string_view rest = std::string_view(line).substr(line.empty() ? 0 : 1);
    const std::size_t size = plain_.snippets.size();
    const std::size_t place = size == 0 ? 0 : line.size() % size;
    if (line.starts_with('+')) return append(rest);
    if (line.starts_with('=') && size > 0) return replace(place, rest);
    if (line.starts_with('-') && size > 0) return remove(place);
    if (line.starts_with('#')) return count(std::string(rest));
    for (const std::size_t limit : {1, 3, 1000}) {
      check(index_.search(line, limit) == plain_.search(line, limit),
            "the index answers as the plain search");
    }
  }

 private:
  static Snippet snippetOf(std::string_view text) {
    std::vector<std::string> words = split(text, ' ');
    Snippet snippet;
    snippet.trigger = words.front();
    snippet.keywords.assign(words.begin() + 1, words.end());
    return snippet;
  }

  void append(std::string_view text) {
    plain_.snippets.push_back(snippetOf(text));
    index_.append(plain_.snippets.back());
  }
  void replace(std::size_t place, std::string_view text) {
    plain_.snippets[place] = snippetOf(text);
    index_.replace(place, plain_.snippets[place]);
  }
  void remove(std::size_t place) {
    plain_.snippets.erase(plain_.snippets.begin() + static_cast<std::ptrdiff_t>(place));
    index_.remove(place);
  }
  void count(const std::string& trigger) { index_.setUsageCount(trigger, ++plain_.counts[trigger]); }

  SearchIndex index_;
  testing::PlainSearch plain_;
};

}  // namespace
}  // namespace tessarin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  fuzz::Both both;
  constexpr std::size_t longest = 400;  // what is longer takes much time and finds little more
  const std::string_view lines = fuzz::asText(data, std::min(size, longest));
  for (const std::string& line : fuzz::split(lines, '\n')) both.take(line);
  return 0;
}
