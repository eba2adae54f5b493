#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

#include <tests/service/ServiceTest.h>
#include <velmora/platform/system/FileReading.h>
#include <velmora/platform/system/Log.h>
#include <velmora/platform/time/DateFormatter.h>
#include <velmora/service/EclipseCatalogue.h>

namespace velmora {
namespace {

class EclipseCatalogueReading : public ServiceTest {
 protected:
  /// Reads a catalogue of that text.
  const EclipseCatalogue& read(const std::string& text) {
    resources.writeCatalogue(text);
    service().loadEventsFromFile();
    return *service().eventsData();
  }
  static std::shared_ptr<const EclipseInfo> onlyOf(const EclipseCatalogue& eclipses) {
    EXPECT_EQ(eclipses.size(), 1U);
    return eclipses.begin()->second;
  }

  const OwnResources resources;
  const ScopedLogRecord log;
};

using Messages = std::vector<std::string>;
const Messages invalidEntry = {"Invalid entry"};

TEST_F(EclipseCatalogueReading, ALineGivesAllOfAnEclipse) {
  const auto eclipse = onlyOf(read("04/08/2024 18:17,TSE"));
  EXPECT_EQ(eclipse->key, "TSE");
  EXPECT_EQ(eclipse->title, "Total Solar Eclipse");
  EXPECT_EQ(eclipse->datetime, utc(2024, 4, 8, 18, 17));
  EXPECT_FALSE(eclipse->isLunarEvent);
  EXPECT_EQ(service().eventsData()->begin()->first, eclipse->datetime);
}

TEST_F(EclipseCatalogueReading, EachCodeHasItsTitleAndBody) {
  const std::tuple<const char*, const char*, bool> cases[] = {
      {"TLE", "Total Lunar Eclipse", true},    {"PLE", "Partial Lunar Eclipse", true},
      {"NLE", "Penumbra Lunar Eclipse", true}, {"TSE", "Total Solar Eclipse", false},
      {"PSE", "Partial Solar Eclipse", false}, {"ASE", "Annular Solar Eclipse", false},
      {"HSE", "Hybrid Solar Eclipse", false},
  };
  for (const auto& [code, title, isLunar] : cases) {
    const auto eclipse = onlyOf(read(std::string("01/31/2000 00:00,") + code));
    EXPECT_EQ(eclipse->title, title);
    EXPECT_EQ(eclipse->isLunarEvent, isLunar) << code;
  }
  EXPECT_EQ(log.messages(), Messages());
}

TEST_F(EclipseCatalogueReading, AnUnknownCodeIsKeptWithoutATitle) {
  const std::pair<const char*, bool> cases[] = {{"XSE", false}, {"XLE", true}, {"LEO", true},
                                                {"tle", false}, {"", false},   {" TSE", false}};
  for (const auto& [code, isLunar] : cases) {
    const auto eclipse = onlyOf(read(std::string("04/08/2024 18:17,") + code));
    EXPECT_EQ(eclipse->key, code);
    EXPECT_EQ(eclipse->title, std::nullopt) << code;
    EXPECT_EQ(eclipse->isLunarEvent, isLunar) << code;
  }
  EXPECT_EQ(log.messages(), Messages());
}

TEST_F(EclipseCatalogueReading, BlankLinesArePassedOverInSilence) {
  EXPECT_EQ(read("\n\n04/08/2024 18:17,TSE\n\n10/14/2023 18:00,ASE\n\n").size(), 2U);
  EXPECT_TRUE(read("").empty());
  EXPECT_TRUE(read("\n").empty());
  EXPECT_EQ(log.messages(), Messages());
}

TEST_F(EclipseCatalogueReading, ALineOfOtherThanTwoFieldsIsInvalid) {
  for (const char* line :
       {"04/08/2024 18:17,TSE,x", "04/08/2024 18:17", "TSE", " ", "04/08/2024 18:17,TSE,"}) {
    const ScopedLogRecord own;
    EXPECT_TRUE(read(line).empty()) << line;
    EXPECT_EQ(own.messages(), invalidEntry) << line;
  }
}

TEST_F(EclipseCatalogueReading, ALineOfOneCarriageReturnIsInvalid) {
  EXPECT_EQ(read("04/08/2024 18:17,TSE\n\r\n").size(), 1U);
  EXPECT_EQ(log.messages(), invalidEntry);
}

TEST_F(EclipseCatalogueReading, ADateThatCannotBeReadIsInvalid) {
  for (const char* date : {"", "moon", "13/08/2024 18:17", "02/30/2024 18:17", "04/08/2024",
                           "04/08/2024 24:17", "04/08/2024 18:60", "2024-04-08 18:17", "04/08/2024 18:17x"}) {
    const ScopedLogRecord own;
    EXPECT_TRUE(read(std::string(date) + ",TSE").empty()) << date;
    EXPECT_EQ(own.messages(), invalidEntry) << date;
  }
}

TEST_F(EclipseCatalogueReading, InvalidLinesLeaveTheOthersAlone) {
  EXPECT_EQ(read("x\n04/08/2024 18:17,TSE\nfoo,TSE\n10/14/2023 18:00,ASE\n").size(), 2U);
  EXPECT_EQ(log.messages(), (Messages{"Invalid entry", "Invalid entry"}));
}

TEST_F(EclipseCatalogueReading, ACarriageReturnStaysPartOfTheCode) {
  const auto& eclipses = read("11/08/2022 10:59,TLE\r\n04/08/2024 18:17,TSE\r\n");
  ASSERT_EQ(eclipses.size(), 2U);
  const auto lunar = eclipses.at(utc(2022, 11, 8, 10, 59)), solar = eclipses.at(utc(2024, 4, 8, 18, 17));
  EXPECT_EQ(lunar->key, "TLE\r");
  EXPECT_EQ(lunar->title, std::nullopt);
  EXPECT_TRUE(lunar->isLunarEvent);
  EXPECT_EQ(solar->title, std::nullopt);
  EXPECT_FALSE(solar->isLunarEvent);
  EXPECT_EQ(log.messages(), Messages());
}

TEST_F(EclipseCatalogueReading, OfTwoEclipsesAtOneInstantTheLaterLineStays) {
  EXPECT_EQ(onlyOf(read("04/08/2024 18:17,TSE\n04/08/2024 18:17,PLE\n"))->key, "PLE");
}

TEST_F(EclipseCatalogueReading, LinesNeedNoOrder) {
  const auto& eclipses = read("04/08/2024 18:17,TSE\n10/14/2023 18:00,ASE\n03/25/2024 07:13,NLE");
  std::string keys;
  for (const auto& [instant, eclipse] : eclipses) keys += eclipse->key + " ";
  EXPECT_EQ(keys, "ASE NLE TSE ");
}

TEST_F(EclipseCatalogueReading, IsInUtcAndAmericanInEveryProcess) {
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  for (const char* identifier : {"ar_EG", "fa_IR", "th_TH", "de_DE"}) {
    const ScopedLocale locale(identifier);
    EXPECT_EQ(onlyOf(read("04/08/2024 18:17,TSE"))->datetime, utc(2024, 4, 8, 18, 17)) << identifier;
  }
}

TEST_F(EclipseCatalogueReading, ReadingAfreshReplacesTheWholeCatalogue) {
  read("04/08/2024 18:17,TSE\n10/14/2023 18:00,ASE\n");
  EXPECT_EQ(onlyOf(read("11/08/2022 10:59,TLE\n"))->key, "TLE");
}

TEST_F(EclipseCatalogueReading, AnUnreadableFileKeepsTheFormerCatalogue) {
  read("04/08/2024 18:17,TSE");
  const auto former = service().eventsData();
  resources.writeCatalogue("10/14/2023 18:00,ASE\n\xff\xfe");
  service().loadEventsFromFile();
  EXPECT_EQ(service().eventsData(), former) << "not UTF-8";
  std::filesystem::remove(resources.folder.path() / "Data/events.txt");
  service().loadEventsFromFile();
  EXPECT_EQ(service().eventsData(), former) << "missing";
  std::filesystem::create_directory(resources.folder.path() / "Data/events.txt");
  service().loadEventsFromFile();
  EXPECT_EQ(service().eventsData(), former) << "a folder";
  EXPECT_EQ(log.messages(), Messages());
}

TEST_F(EclipseCatalogueReading, AQueryReadsUntilItSucceedsAndThenNoMore) {
  service().SetSelectedLocation(placeAt(32.7767, -96.797, "America/Chicago"));
  const auto askFor8April2024 = [] {
    return service().eventsOnDate(utc(2024, 4, 8, 18), *TimeZone::named("America/Chicago"));
  };
  EXPECT_EQ(askFor8April2024(), nullptr);
  EXPECT_EQ(service().eventsData(), nullptr);
  resources.writeCatalogue("04/08/2024 18:17,TSE");
  ASSERT_NE(askFor8April2024(), nullptr);
  const auto read = service().eventsData();
  resources.writeCatalogue("");
  EXPECT_NE(askFor8April2024(), nullptr);
  EXPECT_EQ(service().eventsData(), read);
}

/// What a formatter of the catalogue's dates reads in the text.
std::optional<Instant> formatted(const std::string& text) {
  DateFormatter formatter;
  formatter.setTimeZone(*TimeZone::named("UTC"));
  formatter.setDateFormat("MM/dd/yyyy HH:mm");
  formatter.setLocale(Locale("en_US"));
  return formatter.dateFromString(text);
}

/// What the catalogue reads in it.
std::optional<Instant> inCatalogue(const std::string& text) {
  const EclipseCatalogue eclipses = readEclipseCatalogue(text + ",TSE");
  return eclipses.empty() ? std::nullopt : std::optional(eclipses.begin()->first);
}

TEST_F(EclipseCatalogueReading, EveryDayAndMinuteIsReadAsAFormatterDoes) {
  const auto twoDigits = [](int number) {
    return std::string(number < 10 ? "0" : "") + std::to_string(number);
  };
  for (const char* year : {"0000", "0001", "0100", "1582", "1900", "2000", "2023", "2024", "9999"}) {
    for (int month = 0; month <= 13; ++month) {
      for (int day = 0; day <= 32; ++day) {
        const std::string text = twoDigits(month) + "/" + twoDigits(day) + "/" + year + " 18:17";
        ASSERT_EQ(inCatalogue(text), formatted(text)) << text;
      }
    }
  }
  for (int hour = 0; hour <= 25; ++hour) {
    for (int minute = 0; minute <= 61; ++minute) {
      const std::string text = "04/08/2024 " + twoDigits(hour) + ":" + twoDigits(minute);
      ASSERT_EQ(inCatalogue(text), formatted(text)) << text;
    }
  }
}

/// Exchanges, leaves out or puts in a few characters, mostly of those that stand in dates.
std::string garbled(std::string text, std::mt19937& random) {
  constexpr std::string_view characters = "0123456789/: -+.\tx";
  for (auto changes = 1 + random() % 3; changes > 0; --changes) {
    const std::size_t place = random() % (text.size() + 1);
    const bool isPutIn = random() % 3 == 0, isLeftOut = random() % 3 == 0;
    text.replace(place, isPutIn || place == text.size() ? 0 : 1,
                 isLeftOut ? "" : std::string(1, characters[random() % characters.size()]));
  }
  return text;
}

TEST_F(EclipseCatalogueReading, GarbledDatesAreReadAsAFormatterDoes) {
  std::mt19937 random(20240408);
  int dates = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::string text = garbled("04/08/2024 18:17", random);
    const auto expected = formatted(text);
    ASSERT_EQ(inCatalogue(text), expected) << text;
    dates += expected ? 1 : 0;
  }
  EXPECT_GT(dates, 2000);
  EXPECT_LT(dates, 18000);
}

using ShippedEclipses = ServiceTest;

TEST_F(ShippedEclipses, AreReadAsAFormatterReadsThem) {
  const auto text = readTextFile(*Bundle::library().pathForResource("Data/events", "txt"));
  std::istringstream lines(text.value());
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    const std::string date = line.substr(0, line.find(','));
    ASSERT_NE(formatted(date), std::nullopt) << line;
    EXPECT_EQ(inCatalogue(date), formatted(date)) << line;
  }
  EXPECT_GT(count, 150);
}

TEST_F(ShippedEclipses, AreReadWithoutAComplaint) {
  const ScopedLogRecord log;
  service().loadEventsFromFile();
  ASSERT_NE(service().eventsData(), nullptr);
  EXPECT_GT(service().eventsData()->size(), 150U);
  for (const auto& [instant, eclipse] : *service().eventsData()) {
    EXPECT_TRUE(eclipse->title) << eclipse->key;
    EXPECT_EQ(eclipse->datetime, instant);
  }
  EXPECT_EQ(log.messages(), Messages());
}

TEST_F(ShippedEclipses, HaveTitlesInTheUsersLanguage) {
  const ScopedLocale locale("de_DE");
  service().loadEventsFromFile();
  EXPECT_EQ(service().eventsData()->at(utc(2024, 4, 8, 18, 17))->title, "Totale Sonnenfinsternis");
}

}  // namespace
}  // namespace velmora
