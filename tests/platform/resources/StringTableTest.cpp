#include <velmora/platform/resources/StringTable.h>

#include <gtest/gtest.h>

#include <tests/platform/resources/TemporaryFolder.h>

namespace velmora {
namespace {

std::string list(const std::string& root) { return "<plist version=\"1.0\">" + root + "</plist>"; }

TEST(StringTable, GivesTheTextUnderAKey) {
  const TemporaryFolder folder;
  const auto table = StringTable::fromFile(folder.write(
      "Localizable.strings", list("<dict><key>Full Moon</key><string>Vollmond</string></dict>")));
  ASSERT_TRUE(table);
  EXPECT_EQ(table->text("Full Moon"), "Vollmond");
  EXPECT_EQ(table->text("New Moon"), std::nullopt);
}

TEST(StringTable, EntriesThatAreNoTextsAreLeftOut) {
  const TemporaryFolder folder;
  const auto table = StringTable::fromFile(folder.write(
      "Localizable.strings",
      list("<dict><key>a</key><array/><key>b</key><true/><key>c</key><string>C</string></dict>")));
  ASSERT_TRUE(table);
  EXPECT_EQ(table->text("a"), std::nullopt);
  EXPECT_EQ(table->text("b"), std::nullopt);
  EXPECT_EQ(table->text("c"), "C");
}

TEST(StringTable, WhatIsNoTableGivesNone) {
  const TemporaryFolder folder;
  EXPECT_FALSE(StringTable::fromFile(folder.path() / "missing.strings"));
  EXPECT_FALSE(StringTable::fromFile(folder.path()));
  EXPECT_FALSE(StringTable::fromFile(folder.write("empty.strings", "")));
  EXPECT_FALSE(StringTable::fromFile(folder.write("array.strings", list("<array/>"))));
  EXPECT_FALSE(StringTable::fromFile(folder.write("text.strings", list("<string>Vollmond</string>"))));
  EXPECT_FALSE(StringTable::fromFile(folder.write("old.strings", "\"Full Moon\" = \"Vollmond\";\n")));
}

}  // namespace
}  // namespace velmora
