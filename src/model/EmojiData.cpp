#include "model/EmojiData.h"

namespace tessarin {

Snippet EmojiData::toSnippet(const std::string& idPrefix) const {
  return {idPrefix + trigger, name, trigger, replacement, keywords, category, true};
}

}  // namespace tessarin
