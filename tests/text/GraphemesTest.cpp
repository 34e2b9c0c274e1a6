#include <gtest/gtest.h>

#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

const std::string composed = "\u00e9";
const std::string decomposed = "e\u0301";
const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467";
const std::string flags = "\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7";
const std::string thumb = "\U0001F44D\U0001F3FD";

TEST(Characters, AreWhatTheUserPerceives) {
  const std::pair<std::string, std::size_t> cases[] = {{"", 0},         {"smile", 5},
                                                       {"a\r\nb", 3},   {"\n\r", 2},
                                                       {decomposed, 1}, {family, 1},
                                                       {flags, 2},      {thumb + "x", 2},
                                                       {"\u0301", 1},   {"\uAC01\u1112\u1161\u11AB", 2},
                                                       {"\u0E33", 1},   {"\U0001FAC8\U0001FACD", 2},
                                                       {"a\xff", 2}};
  for (const auto& [text, count] : cases) EXPECT_EQ(text::characterCount(text), count) << text;
}

TEST(Characters, HaveTheColumnsOfATerminal) {
  const std::pair<std::string, std::size_t> cases[] = {
      {"", 0}, {"a-b", 3}, {decomposed, 1}, {"\u6587\u4ef6", 4}, {"\uFF21\uFF71", 3}, {thumb + "x", 3}};
  for (const auto& [text, columns] : cases) EXPECT_EQ(text::columnCount(text), columns) << text;
}

TEST(Characters, AreTakenWhole) {
  EXPECT_EQ(text::firstCharacter(""), "");
  EXPECT_EQ(text::firstCharacter(decomposed + "t"), decomposed);
  EXPECT_EQ(text::lastCharacters("abc", 7), "abc");
  EXPECT_EQ(text::lastCharacters("ab" + family + decomposed, 2), family + decomposed);
  EXPECT_EQ(text::withoutLastCharacter("a\r\n"), "a");
  EXPECT_EQ(text::withoutLastCharacter(flags), flags.substr(0, 8));
}

TEST(Equality, IsCanonicalAndOtherwiseExact) {
  EXPECT_FALSE(text::equals("a", "A"));
  EXPECT_TRUE(text::equals(composed, decomposed));
  EXPECT_TRUE(text::equals("a\u0323\u0307", "a\u0307\u0323"));
  EXPECT_FALSE(text::equals("\uFF41", "a"));
}

TEST(TextParts, MatchWholeCharacters) {
  const struct {
    std::string text;
    std::string part;
    bool starts;
    bool contains;
  } cases[] = {{"smile", "sm", true, true},
               {"smile", "mil", false, true},
               {"a", "", true, true},
               {decomposed + "tud", "e", false, false},
               {composed + "tude", decomposed + "t", true, true},
               {"caf" + decomposed, "f" + composed, false, true},
               {"\r\n", "\r", false, false},
               {family, "\U0001F468", false, false},
               {flags, flags.substr(4, 8), false, false},
               {"ab\u0301ab", "ab", false, true},
               {"\uAC01", "\uAC00", false, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(text::startsWith(c.text, c.part), c.starts) << c.text << " " << c.part;
    EXPECT_EQ(text::contains(c.text, c.part), c.contains) << c.text << " " << c.part;
  }
}

TEST(Lowercase, IsFullAndWithoutLocale) {
  EXPECT_EQ(text::lowercased("SMILE_+1z"), "smile_+1z");
  EXPECT_EQ(text::lowercased("\u0130"), "i\u0307");
  EXPECT_EQ(text::lowercased("\u039F\u0394\u039F\u03A3"), "\u03BF\u03B4\u03BF\u03C2");
}

TEST(TypableWord, IsWhatOneTypesForAName) {
  for (const auto& [name, word] : {std::pair("Flagge: Côte d’Ivoire", "flagge_côte_divoire"),
                                   {"drapeau\u202f: Japon", "drapeau_japon"},
                                   {"\u200fC++ (1.2)", "c++_12"},
                                   {"می\u200cخندد", "میخندد"},
                                   {"…", ""}})
    EXPECT_EQ(text::typableWord(name), word);
}

TEST(PlainLetters, AreTypedWhereThereAreNoOthers) {
  for (const auto& [text, plain] : {std::pair("cœur", "coeur"),
                                    {"łódź", "lodz"},
                                    {"việt_nam", "viet_nam"},
                                    {"καρδιά", "καρδια"},
                                    {"ёлочный", "елочный"},
                                    {"straße", "strasse"},
                                    {"한국", "한국"},
                                    {"दिल", "दिल"},
                                    {"ガ", "ガ"}})
    EXPECT_EQ(text::withPlainLetters(text), plain);
}

TEST(Alphanumeric, AreLettersMarksAndNumbers) {
  for (const char* yes : {"a", "Z", "7", "\u00e9", "\u00df", "\u0416", "\u0663", "\u0301", "\u2163", "\u00bd",
                          "\u4e2d", "\U0001D7D8", "e\u0301"}) {
    EXPECT_TRUE(text::startsAlphanumeric(yes)) << yes;
  }
  for (const char* no :
       {"", "_", "-", "+", ".", " ", "\n", "\x7f", "\U0001F600", "\uF700", "\u20ac", "\xff"}) {
    EXPECT_FALSE(text::startsAlphanumeric(no)) << no;
  }
}

TEST(Alphanumeric, AreOfScriptsThatSetWordsApartOrNot) {
  for (const char* yes :
       {"a", "é", "ß", "e\u0301", "α", "ж", "א", "ع", "Ա", "ა", "한", "अ", "7", "٣", "３", "½"}) {
    EXPECT_TRUE(text::isOfSpacedWord(yes)) << yes;
  }
  for (const char* no :
       {"", " ", ":", "😀", "\xff", "心", "〇", "々", "ひ", "カ", "ー", "ｰ", "ㄅ", "ไ", "ລ", "ខ", "မ"}) {
    EXPECT_FALSE(text::isOfSpacedWord(no)) << no;
  }
}

TEST(Encoding, ValidatesUtf8AndConvertsItToUtf16AndBack) {
  EXPECT_TRUE(text::isValidUtf8("a" + family));
  for (const char* bad : {"\xff", "a\xc3", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\x80"}) {
    EXPECT_FALSE(text::isValidUtf8(bad));
  }
  EXPECT_EQ(text::toUtf16("a" + thumb), u"a\U0001F44D\U0001F3FD");
  EXPECT_EQ(text::fromUtf16(u"\u00e9\U0001F600"), "\u00e9\U0001F600");
  EXPECT_EQ(text::fromUtf16(std::u16string(1, u'\xD83D') + u"a"),
            "\uFFFD"
            "a");
  EXPECT_EQ(text::toUtf16("a\xff"), u"a\uFFFD");
}

}  // namespace
}  // namespace tessarin::testing
