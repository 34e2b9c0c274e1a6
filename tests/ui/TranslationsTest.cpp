#include <gtest/gtest.h>

#include "ui/Translations.h"

namespace tessarin::ui {
namespace {

TEST(Translations, AreInTheFirstLanguageThatThereIsACatalogueFor) {
  const QStringList catalogues{"de", "es", "fr", "ja", "pt_BR", "pt_PT", "zh_CN"};
  const QStringList fewer{"de", "pt_BR", "zh_CN"};
  struct Case {
    std::vector<std::string> languages;
    QStringList catalogues;
    QString expected;
  };
  const Case cases[] = {
      {{}, catalogues, ""},
      {{"fr_CA"}, catalogues, "fr"},
      {{"es_MX", "es"}, catalogues, "es"},
      {{"de_AT@euro"}, catalogues, "de"},
      {{"pt_PT"}, catalogues, "pt_PT"},
      {{"pt_BR"}, catalogues, "pt_BR"},
      {{"pt_PT", "pt", "en"}, fewer, "pt_BR"},
      {{"pt"}, fewer, "pt_BR"},
      {{"zh_CN"}, catalogues, "zh_CN"},
      {{"zh_SG"}, catalogues, "zh_CN"},
      {{"zh"}, catalogues, "zh_CN"},
      {{"zh_TW"}, catalogues, ""},
      {{"zh_HK", "zh"}, fewer, "zh_CN"},
      {{"en_GB", "en", "de"}, catalogues, ""},
      {{"sv", "en", "de"}, catalogues, ""},
      {{"sv_SE", "fr", "de"}, catalogues, "fr"},
      {{"xx", "nonsense!", "ja_JP"}, catalogues, "ja"},
  };
  for (const auto& [languages, offered, expected] : cases)
    EXPECT_EQ(catalogueFor(languages, offered), expected) << ::testing::PrintToString(languages);
}

}  // namespace
}  // namespace tessarin::ui
