#include <app/text/Errors.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

struct BadInputCase {
  const char* name;
  std::vector<std::string> arguments;
  std::vector<std::string> said;  ///< parts of the message: what was wrong, what is accepted
};

void PrintTo(const BadInputCase& badInput, std::ostream* out) { *out << badInput.name; }

class BadInputTest : public AppTest, public ::testing::WithParamInterface<BadInputCase> {};

TEST_P(BadInputTest, IsRefusedWithOneLineAndNothingPrinted) {
  const Outcome outcome = runProgram(GetParam().arguments);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(linesOf(outcome.err).size(), 1U) << outcome.err;
  for (const std::string& part : GetParam().said)
    EXPECT_NE(outcome.err.find(part), std::string::npos) << part << " is missing in " << outcome.err;
}

const std::string years = "1900-01-01 to 2100-12-31";

INSTANTIATE_TEST_SUITE_P(
    Everywhere, BadInputTest,
    ::testing::ValuesIn(std::vector<BadInputCase>{
        {"LatitudeNorthOfThePole", {"--lat", "90.1", "--lon", "0"}, {"--lat '90.1'", "-90 to 90"}},
        {"LatitudeSouthOfThePole", {"--lat", "-91", "--lon", "0"}, {"--lat '-91'", "-90 to 90"}},
        {"LatitudeThatIsNoNumber", {"--lat", "nan", "--lon", "0"}, {"'nan' is not a number", "-90 to 90"}},
        {"InfiniteLongitude", {"--lat", "1", "--lon", "inf"}, {"'inf' is not a number", "-180 to 180"}},
        {"LongitudeTooFarEast", {"--lat", "1", "--lon", "180.5"}, {"--lon '180.5'", "-180 to 180"}},
        {"LongitudeTooFarWest", {"--lat", "1", "--lon", "-181"}, {"--lon '-181'", "-180 to 180"}},
        {"LatitudeAlone", {"--lat", "1"}, {"lat and lon come together"}},
        {"LongitudeAlone", {"--lon", "1"}, {"lat and lon come together"}},
        {"CityAndCoordinates", {"--city", "Helsinki", "--lat", "1", "--lon", "1"}, {"exclude each other"}},
        {"UnknownCity", {"--city", "Helsikni"}, {"'Helsikni'", "nearest: Helsinki", "lat and lon"}},
        {"UnknownZone", {"--tz", "Europe/Helsinky"}, {"'Europe/Helsinky'", "nearest: Europe/Helsinki"}},
        {"ZoneThatLeavesTheDatabase", {"--tz", "../../etc/passwd"}, {"is not a time zone"}},
        {"ZoneAndOffset", {"--tz", "UTC", "--gmt-offset", "0"}, {"exclude each other"}},
        {"OffsetBeyondEighteenHours",
         {"--gmt-offset", "64801"},
         {"'64801' is out of range", "-64800 to 64800"}},
        {"OffsetBeyondEighteenHoursWest", {"--gmt-offset", "-64801"}, {"'-64801' is out of range"}},
        {"OffsetOfHalfASecond", {"--gmt-offset", "0.5"}, {"whole number"}},
        {"DateThatDoesNotExist", {"--date", "2023-02-29"}, {"'2023-02-29' is not a date that exists", years}},
        {"DateBefore1900", {"--date", "1899-12-31"}, {"out of range", years}},
        {"DateAfter2100",
         {"riseset", "--from", "2100-12-31", "--to", "2101-01-01"},
         {"--to '2101-01-01'", years}},
        {"DateThatThePlaceSkipped",
         {"--city", "Apia", "--date", "2011-12-30"},
         {"2011-12-30", "Pacific/Apia"}},
        {"TimeOfDay", {"position", "--time", "24:00"}, {"'24:00'", "00:00 to 23:59"}},
        {"RangeBackwards", {"riseset", "--from", "2024-01-02", "--to", "2024-01-01"}, {"backwards"}},
        {"RangeOver41Years", {"riseset", "--from", "2000-01-01", "--to", "2041-01-01"}, {"at most 41 years"}},
        {"RangeWithoutEnd", {"riseset", "--from", "2024-01-02"}, {"from and to come together"}},
        {"RangeAndDate",
         {"riseset", "--date", "2024-01-01", "--from", "2024-01-02", "--to", "2024-01-03"},
         {"exclude each other"}},
        {"Now", {"--now", "yesterday"}, {"'yesterday'", "ISO 8601"}},
        {"NowBefore1900", {"--now", "1899-12-31T00:00:00Z"}, {"out of range", "from 1900 to 2100"}},
        {"ElevationAbove90", {"elevation", "90.5"}, {"'90.5' is out of range", "-90 to 90"}},
        {"ElevationBelowMinus90", {"elevation", "-91"}, {"'-91' is out of range", "-90 to 90"}},
        {"ElevationMissing", {"elevation"}, {"elevation is missing", "-90 to 90"}},
        {"ElevationTwice", {"elevation", "1", "2"}, {"does not take '2'"}},
        {"MonthThatIsNone",
         {"month", "2024-13"},
         {"velmora: month '2024-13' is not a month", "1900-01 to 2100-12"}},
        {"MonthOfOneDigit", {"month", "2024-3"}, {"'2024-3' is not a month"}},
        {"MonthBefore1900", {"month", "1899-12"}, {"'1899-12' is out of range", "1900-01 to 2100-12"}},
        {"MonthBeforeTheTables", {"month", "1999-12"}, {"month 1999-12 lies outside", "2000-01 to 2040-12"}},
        {"MonthAfterTheTables", {"month", "2041-01"}, {"month 2041-01 lies outside"}},
        {"PresentMonthAfterTheTables",
         {"month", "--tz", "Pacific/Kiritimati", "--now", "2040-12-31T10:00:00Z"},
         {"today's date 2041-01-01", "2000-01-01 to 2040-12-31"}},
        {"YearThatIsNoNumber", {"year", "MMXXIV"}, {"'MMXXIV' is not a number", "1900 to 2100"}},
        {"YearAndAHalf", {"year", "2024.5"}, {"'2024.5' is not a whole number"}},
        {"YearBeforeTheTables", {"year", "1999"}, {"year 1999 lies outside", "2000 to 2040"}},
        {"YearAfterTheTables", {"year", "2041"}, {"year 2041 lies outside"}},
        {"EclipsesBefore1900", {"eclipses", "1899"}, {"'1899' is out of range", "1900 to 2100"}},
        {"YearBeyondAllNumbers", {"year", "1e300"}, {"'1e300' is out of range"}},
        {"PresentYearBeforeTheTables",
         {"year", "--tz", "Pacific/Pago_Pago", "--now", "2000-01-01T10:00:00Z"},
         {"today's date 1999-12-31", "2000-01-01 to 2040-12-31"}},
        {"PhasesWithoutARange", {"phases"}, {"from and to are missing"}},
        {"DayThatBeginsBefore1900InUniversalTime",
         {"riseset", "--city", "Tokyo", "--date", "1900-01-01"},
         {"the day 1900-01-01 is not wholly known", "from 1900 to 2100 in UTC"}},
        {"RangeThatEndsAfter2100InUniversalTime",
         {"phases", "--from", "2100-12-01", "--to", "2100-12-31"},
         {"the day 2100-12-31 is not wholly known"}},
        {"MomentBefore1900InUniversalTime",
         {"position", "--city", "Tokyo", "--date", "1900-01-01", "--time", "00:00"},
         {"the moment 1899-12-31T", "1900 to 2100 in UTC"}},
        {"StepOfNoMinute", {"track", "--step", "0"}, {"'0' is out of range", "1 to 1440"}},
        {"StepOfHalfAMinute", {"track", "--step", "0.5"}, {"is not a whole number"}},
        {"HeightBelowTheHorizonAround", {"--height", "-1"}, {"'-1' is out of range", "0 to 10000 metres"}},
        {"HeightThatIsNone", {"--height", "nan"}, {"'nan' is not a number"}},
        {"TwoFormsOfValues", {"riseset", "--csv", "--json"}, {"csv and json exclude each other"}},
        {"CsvOfNoTable", {"position", "--csv"}, {"'--csv' is not an option of position"}},
        {"ForgettingAndKeeping", {"place", "--forget", "--city", "Oslo"}, {"exclude each other"}},
        {"PhaseThatIsNoPrincipalOne",
         {"phases", "--from", "2024-01-01", "--to", "2024-01-31", "--phase", "gibbous"},
         {"'gibbous' is not known", "new, first, full or last"}},
        {"NextAtTheEnd", {"next", "--now", "2100-12-31T20:00:00Z"}, {"2100-12-31 is not wholly known"}},
        {"Twilight", {"--twilight", "dark"}, {"'dark' is not known", "civil, nautical, astronomical or all"}},
        {"Body", {"position", "--body", "mars"}, {"'mars' is not known", "moon or sun"}},
        {"NameThatIsNoUnicode", {"--name", "a\xff"}, {"is not UTF-8", "text in UTF-8"}},
        {"NameThatMovesTheCursor", {"--name", "a\x1b[2Jb"}, {"holds control characters", "one line of text"}},
        {"NameOfTwoLines", {"--name", "a\nb"}, {"holds control characters", "one line of text"}},
        {"NameOfTwoLinesByUnicode", {"--name", "a\u2028b"}, {"'a?b' holds control characters"}},
        {"NameThatTurnsTheLine", {"--name", "a\u202Eb"}, {"'a?b' holds control characters"}},
        {"Clock", {"--clock", "25h"}, {"'25h'", "24h or 12h"}},
        {"BothClocks", {"--24h", "--12h"}, {"contradicts"}},
        {"Locale", {"--locale", "en US"}, {"'en US'", "letters"}},
        {"Color", {"--color", "blue"}, {"'blue'", "auto, always or never"}},
        {"UnknownOption", {"riseset", "--form", "2024-01-01"}, {"'--form'", "nearest: --from"}},
        {"OptionOfAnotherCommand",
         {"position", "--twilight", "civil"},
         {"'--twilight' is not an option of position"}},
        {"OptionOfAnotherCommandInFront",
         {"--twilight", "civil", "position"},
         {"--twilight is not an option of position"}},
        {"OptionOfNoDayInFront", {"--body", "sun"}, {"--body is not an option of today"}},
        {"ShortOptionThatIsNone", {"-x"}, {"'-x' is not an option of today", "velmora today --help"}},
        {"OptionTwice",
         {"--city", "Helsinki", "riseset", "--city", "Oslo"},
         {"--city is given more than once"}},
        {"OptionWithoutValue", {"position", "--body"}, {"'--body' needs a value"}},
        {"OptionInPlaceOfAValue", {"--lat", "--lon", "3"}, {"--lat '--lon' is not a number", "-90 to 90"}},
        {"EmptyValueInFrontOfAWord",
         {"riseset", "--city=", "--date", "2024-01-01"},
         {"city '' is not in the table of cities; any other place: lat and lon"}},
        {"EmptyValueAtTheEnd", {"riseset", "--date="}, {"--date '' is not a date that exists"}},
        {"SwitchWithAnEmptyValue", {"riseset", "--json="}, {"riseset does not take ''"}},
        {"OptionThatTheCommandLacksInFrontOfAValue",
         {"month", "--date", "2024-01-01"},
         {"'--date' is not an option of month"}},
        {"OptionThatStandsWithoutAName",
         {"draw", "--view", "month", "-o", "x.png"},
         {"'--view' is not an option of draw; nearest: --size"}},
        {"NumberOfTwoPoints", {"--lat", "-.5.5", "--lon", "0"}, {"is not a number"}},
        {"SwitchWithValue", {"--json=yes"}, {"--json takes no value"}},
        {"ViewMissing", {"draw", "-o", "x.png"}, {"the view is missing", "disc, month, year"}},
        {"View", {"draw", "moon", "-o", "x.png"}, {"'moon' is not known", "disc, month, year"}},
        {"TwoViews", {"draw", "disc", "month", "-o", "x.png"}, {"draw does not take 'month'"}},
        {"OutputMissing", {"draw", "disc"}, {"output is missing", ".png, .svg or .pdf"}},
        {"OutputOfAnotherFormat", {"draw", "disc", "-o", "x.gif"}, {"'x.gif'", ".png, .svg or .pdf"}},
        {"OutputWithoutEnding", {"draw", "disc", "-o", "png"}, {"'png' has no known format"}},
        {"OutputTwice", {"draw", "disc", "-o", "x.png", "--output", "y.png"}, {"more than once"}},
        {"SizeOfOneNumber", {"draw", "disc", "--size", "5", "-o", "x.png"}, {"'5' is not a size", "390x600"}},
        {"SizeOfThree", {"draw", "disc", "--size", "5x5x5", "-o", "x.png"}, {"'5x5x5' is not a size"}},
        {"SizeZero", {"draw", "disc", "--size", "0x9", "-o", "x.png"}, {"out of range", "1 to 16384 pixels"}},
        {"SizeNegative", {"draw", "disc", "--size", "-5x9", "-o", "x.png"}, {"'-5x9' is out of range"}},
        {"SizeAbove16384",
         {"draw", "disc", "--size", "16385x9", "-o", "x.png"},
         {"1 to 16384 pixels a side, not 16385 x 9"}},
        {"SizeAbove16384ByItsScale",
         {"draw", "disc", "--size", "9x8200", "--scale", "2", "-o", "x.png"},
         {"1 to 16384 pixels a side, not 18 x 16400"}},
        {"SizeOfAPage",
         {"draw", "disc", "--size", "9x20000", "-o", "x.svg"},
         {"1 to 16384 points a side, not 9 x 20000"}},
        {"ScaleThatLeavesNoPixel",
         {"draw", "disc", "--scale", "0.001", "-o", "x.png"},
         {"1 to 16384 pixels a side"}},
        {"ScaleZero", {"draw", "disc", "--scale", "0", "-o", "x.png"}, {"--scale '0' is out of range"}},
        {"ScaleHuge", {"draw", "disc", "--scale", "1e300", "-o", "x.png"}, {"'1e300' is out of range"}},
        {"Background", {"draw", "disc", "--background", "red", "-o", "x.png"}, {"'red'", "RRGGBB"}},
        {"Theme",
         {"draw", "disc", "--theme", "dim", "-o", "x.png"},
         {"'dim'", "calendar, default, dark or light"}},
        {"Calendar", {"draw", "month", "--calendar", "maya", "-o", "x.png"}, {"'maya'", "hebrew, islamic"}},
        {"CalendarOfTheRows",
         {"draw", "riseset", "--calendar", "chinese", "-o", "x.png"},
         {"hebrew, islamic, buddhist or japanese"}},
        {"WeekStart",
         {"draw", "month", "--week-start", "1", "-o", "x.png"},
         {"'1'", "sunday, monday, tuesday"}},
        {"Heading", {"draw", "compass", "--heading", "361", "-o", "x.png"}, {"'361'", "-360 to 360"}},
        {"WeekStartOfTheYear",
         {"draw", "year", "--week-start", "monday", "-o", "x.png"},
         {"draw year does not take week-start", "accepted", "phase, background", "tablet, output, size"}},
        {"MonthAndDate",
         {"draw", "calendar", "--month", "2026-05", "--date", "2026-05-10", "-o", "x.png"},
         {"exclude each other"}},
        {"MonthOfADisc", {"draw", "disc", "--month", "2026-05", "-o", "x.png"}, {"does not take month"}},
        {"HeadingOfAMonth", {"draw", "month", "--heading", "1", "-o", "x.png"}, {"does not take heading"}},
        {"PhaseOfAMonth", {"draw", "month", "--phase", "new", "-o", "x.png"}, {"does not take phase"}},
        {"QuartersOfTheYear", {"draw", "year", "--phase", "last", "-o", "x.png"}, {"new or full"}},
        {"PictureBeforeTheTables",
         {"draw", "month", "--date", "1999-12-31", "-o", "x.png"},
         {"1999-12-31", "2000-01-01 to 2040-12-31"}},
        {"UnknownCommand",
         {"risset"},
         {"'risset' is not a command", "accepted: today, ", ", riseset, ", ", batch; more: velmora --help"}},
        {"TwoCommands", {"riseset", "position"}, {"riseset does not take 'position'"}},
    }),
    [](const auto& input) { return std::string(input.param.name); });

using QuotationTest = AppTest;

TEST_F(QuotationTest, IsCutAfterEightyCharacters) {
  const Outcome outcome = runProgram({"--city", std::string(100'000, 'x')});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.err.find("'" + std::string(80, 'x') + "…'"), std::string::npos);
  EXPECT_EQ(outcome.err.find(std::string(81, 'x')), std::string::npos);
}

TEST_F(QuotationTest, CountsCharactersAndNeverCutsOne) {
  std::string input;
  for (int i = 0; i < 81; ++i) input += "é";
  EXPECT_EQ(quote(input), "'" + input.substr(0, 160) + "…'");
  EXPECT_EQ(quote(input.substr(0, 160)), "'" + input.substr(0, 160) + "'");
}

TEST_F(QuotationTest, StaysOnOneLine) {
  const Outcome outcome = runProgram({"--city", "a\nb\x1b[1m\r"});
  EXPECT_EQ(linesOf(outcome.err).size(), 1U);
  EXPECT_NE(outcome.err.find("'a?b?[1m?'"), std::string::npos);
}

TEST_F(QuotationTest, IsAlwaysUtf8) {
  EXPECT_EQ(quote("a\xFF\xC3"), "'a\uFFFD\uFFFD'");
  EXPECT_EQ(quote("\xED\xA0\x80"), "'\uFFFD\uFFFD\uFFFD'") << "half of a pair";
  EXPECT_EQ(quote("\xC0\xAF"), "'\uFFFD\uFFFD'") << "longer than need be";
  EXPECT_EQ(quote("\u009B1m\u00E9"), "'?1mé'") << "an order to a terminal in two bytes";
}

TEST_F(QuotationTest, OfBytesThatAreNoCharactersIsBounded) {
  EXPECT_LT(quote(std::string(100'000, '\x80')).size(), 250U);
}

}  // namespace
}  // namespace velmora::app
