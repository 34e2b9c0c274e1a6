#include "importers/ForeignSnippets.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Translate.h"
#include "model/SnippetDraft.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

void dropTriggerCharacters(std::string& trigger, const std::string& character) {
  if (character.empty()) return;
  if (trigger.starts_with(character)) trigger.erase(0, character.size());
  if (trigger.ends_with(character)) trigger.erase(trigger.size() - character.size());
}

/// Of ":a:" or ";a;" where the user types ";", what stands between. Never both pairs of "::a::".
std::string bareTrigger(std::string trigger, const std::string& usersCharacter) {
  const std::size_t whole = trigger.size();
  dropTriggerCharacters(trigger, usersCharacter);
  if (trigger.size() == whole) dropTriggerCharacters(trigger, ":");
  return trigger;
}

std::string listOf(const std::string& headline, const std::vector<ForeignSnippets::Note>& notes) {
  if (notes.empty()) return {};
  std::string lines = headline + "\n";
  for (const auto& [where, why] : notes)
    lines.append("  ").append(where).append(": ").append(why).append("\n");
  return lines;
}

}  // namespace

void ForeignSnippets::leaveOut(std::string where, std::string why) {
  leftOut.push_back({std::move(where), std::move(why)});
}

void ForeignSnippets::take(Found found, const ImportTerms& terms) {
  constexpr std::size_t longestTrigger = 256;  // bytes; far more than anybody types
  if (found.trigger.size() > longestTrigger)
    return leaveOut(found.where, translate("Importers", "its trigger is too long to type"));
  const std::string bare = bareTrigger(found.trigger, terms.triggerCharacter);
  std::string trigger = filteredTrigger(bare);
  if (found.trigger.empty()) return leaveOut(found.where, translate("Importers", "it has no trigger"));
  if (trigger.empty())
    return leaveOut(found.where, translate("Importers", "nothing of its trigger can be part of a shortcode"));
  if (found.text.empty()) return leaveOut(found.where, translate("Importers", "it has no text"));
  if (trigger != bare) {
    changed.push_back({found.where, filledIn(translate("Importers", "its trigger is now %1"), {trigger})});
  }
  if (found.name.empty()) found.name = trigger;
  size += found.text.size() + found.name.size();
  if (size > largestImport) throw DataError("holds more than could be meant");
  snippets.push_back({{},
                      std::move(found.name),
                      std::move(trigger),
                      std::move(found.text),
                      std::move(found.keywords),
                      customCategory,
                      false});
}

void ForeignSnippets::append(ForeignSnippets more) {
  std::ranges::move(more.snippets, std::back_inserter(snippets));
  std::ranges::move(more.leftOut, std::back_inserter(leftOut));
  std::ranges::move(more.changed, std::back_inserter(changed));
  size += more.size;
  if (size > largestImport) throw DataError("holds more than could be meant");
}

std::string notesOf(const ForeignSnippets& imported) {
  const auto count = [](const auto& notes) { return static_cast<int>(notes.size()); };
  return listOf(translate("Importers", "Left out: %n", nullptr, count(imported.leftOut)), imported.leftOut) +
         listOf(translate("Importers", "Changed: %n", nullptr, count(imported.changed)), imported.changed);
}

std::string shown(std::string_view text) {
  constexpr std::size_t most = 40;
  constexpr std::size_t bytes = 400;
  std::string line;
  std::size_t end = std::min(text.size(), bytes);
  while (end < text.size() && end > 0 && (text[end] & 0xC0) == 0x80) --end;
  text = text.substr(0, end);
  for (std::size_t count = 0; !text.empty(); ++count) {
    if (count == most) return line + "…";
    const std::string character = text::firstCharacter(text);
    text.remove_prefix(character.size());
    const bool isControl = static_cast<unsigned char>(character[0]) < 0x20 || character[0] == 0x7F;
    line += isControl ? " " : character;
  }
  return line;
}

std::string shownAt(const std::string& place, std::string_view text) {
  return text.empty() ? place : place + " (" + shown(text) + ")";
}

std::string_view requireUtf8(std::string_view text) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  if (!text::isValidUtf8(text)) throw DataError("not valid UTF-8");
  return text;
}

std::string withLineFeeds(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (!isPair) result += text[i] == '\r' ? '\n' : text[i];
  }
  return result;
}

void failAtLine(const char* problem, std::size_t line) {
  throw DataError(std::string(problem) + " (line " + std::to_string(line) + ")");
}

}  // namespace tessarin
