#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// Turns a text of the program into the user's language. `count` is the number that stands for %n in the
/// text, and -1 where there is none; %n may be left to `translate`.
using Translator = std::function<std::string(const char* context, const char* text, int count)>;

/// Installed at the start, by the layer that has the catalogues; without one, every text stays English.
void setTranslator(Translator translator);

/// The text in the user's language, with %n replaced by the count. The signature is the one that the tool
/// which collects texts for the catalogues looks for; a disambiguation is not used.
std::string translate(const char* context, const char* text, const char* disambiguation = nullptr,
                      int count = -1);

/// The text with the first part in the place of %1, the second in that of %2 and so on, up to %9.
std::string filledIn(std::string_view text, const std::vector<std::string>& parts);

}  // namespace tessarin
