#include "model/Snippet.h"

#include <algorithm>

#include "text/Graphemes.h"

namespace tessarin {

bool Snippet::operator==(const Snippet& other) const {
  return text::equals(id, other.id) && text::equals(name, other.name) &&
         text::equals(trigger, other.trigger) && text::equals(replacement, other.replacement) &&
         std::equal(keywords.begin(), keywords.end(), other.keywords.begin(), other.keywords.end(),
                    text::equals) &&
         text::equals(category, other.category) && isBuiltIn == other.isBuiltIn;
}

}  // namespace tessarin
