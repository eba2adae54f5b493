#include <velmora/platform/resources/Languages.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using Names = std::vector<std::string>;

TEST(Languages, TheRegionStandsBeforeTheLanguageAndEnglishLast) {
  EXPECT_EQ(preferredLanguages(Locale("pt_BR")), (Names{"pt-BR", "pt", "en"}));
  EXPECT_EQ(preferredLanguages(Locale("de")), (Names{"de", "en"}));
  EXPECT_EQ(preferredLanguages(Locale("en_GB")), (Names{"en-GB", "en", "en"}));
}

TEST(Languages, ChineseIsToldByItsScript) {
  EXPECT_EQ(preferredLanguages(Locale("zh_TW")), (Names{"zh-TW", "zh-Hant", "zh", "en"}));
  EXPECT_EQ(preferredLanguages(Locale("zh_MO")), (Names{"zh-MO", "zh-Hant", "zh", "en"}));
  EXPECT_EQ(preferredLanguages(Locale("zh_CN")), (Names{"zh-CN", "zh-Hans", "zh", "en"}));
  EXPECT_EQ(preferredLanguages(Locale("zh")), (Names{"zh-Hans", "zh", "en"}));
}

TEST(Languages, ANamedScriptStandsBeforeTheRegionsOwn) {
  const Names languages = preferredLanguages(Locale("zh-Hans-HK"));
  EXPECT_EQ(languages, (Names{"zh-Hans", "zh-HK", "zh-Hans", "zh", "en"}));
}

TEST(Languages, WhatFollowsTheIdentifierPlaysNoPart) {
  EXPECT_EQ(preferredLanguages(Locale("ar_EG@calendar=islamic")), (Names{"ar-EG", "ar", "en"}));
}

}  // namespace
}  // namespace velmora
