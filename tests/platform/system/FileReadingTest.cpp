#include <velmora/platform/system/FileReading.h>

#include <gtest/gtest.h>

#include <tests/platform/resources/TemporaryFolder.h>

namespace velmora {
namespace {

TEST(FileReading, GivesTheBytesOfAFile) {
  const TemporaryFolder folder;
  const std::string bytes("line\r\n\0\xFF", 8);
  EXPECT_EQ(readFile(folder.write("file", bytes)), bytes);
  EXPECT_EQ(readFile(folder.write("empty", "")), "");
}

TEST(FileReading, WhatIsNoReadableFileGivesNone) {
  const TemporaryFolder folder;
  const auto missing = folder.path() / "missing";
  const auto dangling = folder.path() / "dangling";
  const auto loop = folder.path() / "loop";
  std::filesystem::create_symlink(missing, dangling);
  std::filesystem::create_symlink(loop, loop);
  for (const std::filesystem::path& path : {missing, dangling, loop, folder.path(), std::filesystem::path(),
                                            std::filesystem::path("/dev/zero")}) {
    EXPECT_EQ(readFile(path), std::nullopt) << path;
    EXPECT_EQ(readTextFile(path), std::nullopt) << path;
  }
}

TEST(FileReading, AFileAboveTheLimitGivesNone) {
  const TemporaryFolder folder;
  const auto path = folder.write("file", "12345");
  EXPECT_EQ(readFile(path, 5), "12345");
  EXPECT_EQ(readFile(path, 4), std::nullopt);
  const auto huge = folder.write("huge", "");
  std::filesystem::resize_file(huge, maximumResourceSize + 1);
  EXPECT_EQ(readFile(huge), std::nullopt);
}

TEST(FileReading, TextIsUtf8) {
  const TemporaryFolder folder;
  EXPECT_EQ(readTextFile(folder.write("utf8", "Vollmond \u2013 \u6E80\u6708\n")),
            "Vollmond \u2013 \u6E80\u6708\n");
  EXPECT_EQ(readTextFile(folder.write("latin1", "M\xE4rz")), std::nullopt);
}

TEST(FileReading, TellsWellFormedUtf8) {
  for (const char* text : {"", "moon", "\u00E9", "\u6E80", "\U0001F319", "\uD7FF\uE000", "\U0010FFFF"}) {
    EXPECT_TRUE(isUtf8(text)) << text;
  }
  EXPECT_TRUE(isUtf8(std::string_view("\0", 1)));
}

TEST(FileReading, TellsIllFormedUtf8) {
  const std::string_view illFormed[] = {
      "\x80",              // a continuation without a lead
      "\xC3",              // cut short
      "\xC3(",             // not continued
      "\xE6\xBA",          // cut short
      "\xC0\x80",          // longer than needed
      "\xE0\x9F\xBF",      // longer than needed
      "\xF0\x8F\xBF\xBF",  // longer than needed
      "\xED\xA0\x80",      // a surrogate
      "\xF4\x90\x80\x80",  // above U+10FFFF
      "\xF8\x88\x80\x80",  // no lead
      "\xFF",
  };
  for (const std::string_view text : illFormed) EXPECT_FALSE(isUtf8(text)) << ::testing::PrintToString(text);
}

}  // namespace
}  // namespace velmora
