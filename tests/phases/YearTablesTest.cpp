#include <gtest/gtest.h>

#include <limits>

#include <tests/phases/Places.h>
#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/phases/MoonPhaseCalc.h>
#include <velmora/platform/resources/Bundle.h>

namespace velmora {
namespace {

TEST(YearTables, AreReadFromTheLibrarysBundle) {
  for (std::int64_t year = 2000; year <= 2040; ++year) {
    const auto table = MoonPhaseCalc::GetFileContents("Data/" + std::to_string(year));
    ASSERT_TRUE(table) << year;
    EXPECT_EQ(table->size(), 12U) << year;
  }
  EXPECT_EQ(shippedTable(2024).at("3"),
            (std::vector<std::string>{"3  15:23 LQ", "10 09:00 NM", "17 04:11 FQ", "25 07:00 FM"}));
}

TEST(YearTables, OfOtherYearsThereAreNone) {
  EXPECT_FALSE(MoonPhaseCalc::GetFileContents("Data/1999"));
  EXPECT_FALSE(MoonPhaseCalc::GetFileContents("Data/2041"));
  EXPECT_FALSE(tableOfYear(-1));
  EXPECT_FALSE(MoonPhaseCalc::GetFileContents(""));
}

TEST(YearTables, AnEmptyTableIsNotNone) {
  const TemporaryFolder folder;
  folder.write("Data/2024.plist", propertyListOf({}));
  const ScopedLibraryBundle bundle(folder.path());
  ASSERT_TRUE(tableOfYear(2024));
  EXPECT_TRUE(tableOfYear(2024)->empty());
}

TEST(YearTables, AFileThatIsNoTableGivesNone) {
  const std::string whole = propertyListOf({{"1", {"4 03:30 LQ"}}});
  for (const std::string& bytes :
       {std::string(), std::string("moon"), whole.substr(0, whole.size() / 2),
        std::string("<plist><array/></plist>"), std::string("<plist><string>1</string></plist>")}) {
    const TemporaryFolder folder;
    folder.write("Data/2024.plist", bytes);
    const ScopedLibraryBundle bundle(folder.path());
    EXPECT_FALSE(tableOfYear(2024)) << bytes;
  }
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.path() / "Data/2024.plist");
  const ScopedLibraryBundle bundle(folder.path());
  EXPECT_FALSE(tableOfYear(2024)) << "a folder";
}

TEST(YearTables, WhatIsNoArrayOfTextsIsLeftOut) {
  const TemporaryFolder folder;
  folder.write("Data/2024.plist",
               "<plist><dict><key>1</key><string>4 03:30 LQ</string>"
               "<key>2</key><array><true/><string>2 23:18 LQ</string><array/></array></dict></plist>");
  const ScopedLibraryBundle bundle(folder.path());
  EXPECT_EQ(*tableOfYear(2024), (YearTable{{"2", {"2 23:18 LQ"}}}));
}

TEST(YearTables, ATableIsReadOnceWhileItsFileStaysTheSame) {
  const auto table = tableOfYear(2024);
  EXPECT_EQ(tableOfYear(2024), table);
  for (std::int64_t year = 2000; year <= 2010; ++year) EXPECT_TRUE(tableOfYear(year));
  EXPECT_EQ(*tableOfYear(2024), *table);
}

TEST(YearTables, AFileThatHasChangedIsReadAgain) {
  const TemporaryFolder folder;
  const ScopedLibraryBundle bundle(folder.path());
  const auto writtenAnHourAgo = [&](const char* line) {
    const auto file = folder.write("Data/2024.plist", propertyListOf({{"1", {line}}}));
    std::filesystem::last_write_time(file,
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  };
  writtenAnHourAgo("4 03:30 LQ");
  EXPECT_EQ(tableOfYear(2024)->at("1").front(), "4 03:30 LQ");
  EXPECT_EQ(tableOfYear(2024), tableOfYear(2024));
  writtenAnHourAgo("5 03:30 LQ");
  EXPECT_EQ(tableOfYear(2024)->at("1").front(), "5 03:30 LQ");
  folder.write("Data/2024.plist", propertyListOf({{"1", {"6 03:30 LQ"}}}));
  EXPECT_EQ(tableOfYear(2024)->at("1").front(), "6 03:30 LQ");
  folder.write("Data/2024.plist", propertyListOf({{"1", {"7 03:30 LQ"}}}));
  EXPECT_EQ(tableOfYear(2024)->at("1").front(), "7 03:30 LQ") << "twice within a tick of the file's time";
}

TEST(YearTables, MonthLengthsFollowTheGregorianRule) {
  const std::int64_t lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (std::int64_t month = 0; month < 12; ++month) {
    EXPECT_EQ(MoonPhaseCalc::GetNumberOfDaysInMonth(month, 2023), lengths[month]) << month;
  }
  EXPECT_EQ(MoonPhaseCalc::GetNumberOfDaysInMonth(1, 2000), 29);
  EXPECT_EQ(MoonPhaseCalc::GetNumberOfDaysInMonth(1, 2100), 28);
  EXPECT_EQ(MoonPhaseCalc::GetNumberOfDaysInMonth(1, 2024), 29);
  EXPECT_EQ(MoonPhaseCalc::GetNumberOfDaysInMonth(1, 2023), 28);
}

TEST(YearTables, AMonthOutsideTheYearHas31Days) {
  for (const std::int64_t month :
       {std::int64_t{12}, std::int64_t{13}, std::int64_t{-1}, std::int64_t{-11},
        std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_EQ(MoonPhaseCalc::GetNumberOfDaysInMonth(month, 2023), 31) << month;
  }
}

TEST(YearTables, PhasesHaveEnglishNames) {
  const char* names[] = {"Full Moon",       "First Quarter",  "Last Quarter",   "New Moon",
                         "Waxing Crescent", "Waxing Gibbous", "Waning Gibbous", "Waning Crescent"};
  for (std::int64_t phase = 0; phase < 8; ++phase)
    EXPECT_EQ(MoonPhaseCalc::nameForPhase(phase), names[phase]);
  EXPECT_EQ(MoonPhaseCalc::nameForPhase(8), std::nullopt);
  EXPECT_EQ(MoonPhaseCalc::nameForPhase(-1), std::nullopt);
}

}  // namespace
}  // namespace velmora
