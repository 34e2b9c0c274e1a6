#include "model/SnippetTexts.h"

#include "text/Graphemes.h"

namespace tessarin {
namespace {

std::uint32_t sizeOf(std::size_t bytes) {
  return static_cast<std::uint32_t>(bytes);
}

std::size_t totalOf(const SnippetTexts::Place& place) {
  return std::size_t{place.storedBytes} + place.triggerBytes + place.keywordBytes;
}

}  // namespace

SnippetTexts::Place SnippetTexts::add(const Snippet& snippet) {
  Place place;
  const std::string trigger = folded(snippet.trigger);
  place.begin = bytes_.size();
  place.storedBytes = sizeOf(snippet.trigger.size());
  place.triggerBytes = sizeOf(trigger.size());
  place.triggerLength = static_cast<int>(text::characterCount(trigger));
  bytes_.append(snippet.trigger).append(trigger);
  std::string searched = trigger + textEnd;
  for (const std::string& keyword : snippet.keywords) {
    // What stands in a text that is looked at earlier never decides.
    const std::string word = folded(keyword);
    if (!text::containsNormalized(searched, word)) searched.append(word).push_back(textEnd);
  }
  bytes_.append(searched, trigger.size() + 1);
  place.keywordBytes = sizeOf(searched.size() - trigger.size() - 1);
  return place;
}

SnippetTexts::Place SnippetTexts::add(const SnippetTexts& other, const Place& place) {
  Place moved = place;
  moved.begin = bytes_.size();
  bytes_.append(other.bytes_, place.begin, totalOf(place));
  return moved;
}

std::string_view SnippetTexts::storedTrigger(const Place& place) const {
  return std::string_view(bytes_).substr(place.begin, place.storedBytes);
}

FoldedEntry SnippetTexts::entry(const Place& place) const {
  const std::string_view texts = std::string_view(bytes_).substr(place.begin, totalOf(place));
  return {texts.substr(place.storedBytes, place.triggerBytes),
          texts.substr(std::size_t{place.storedBytes} + place.triggerBytes), place.triggerLength};
}

}  // namespace tessarin
