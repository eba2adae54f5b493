#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <tests/almanac/EclipseTesting.h>
#include <tests/support/ErrorSummary.h>
#include <tests/support/PlainNumbers.h>
#include <tests/support/Tables.h>

namespace velmora::almanac {
namespace {

using namespace velmora::testing;

/// The next field; NaN for "-".
double numberOrNone(TableRow& row) {
  std::string text;
  EXPECT_TRUE(row.fields >> text) << row.where;
  return text == "-" ? NAN : leadingNumber(text);
}

// The Moon's place errs by 0.8″ at most. The discs close by 0.3″ a second and more, but for grazes, the Moon
// and the shadow by 0.15″.
constexpr double contactLimit = 3.0, lunarContactLimit = 6.0, grazeLimit = 60.0;  // seconds

/// The solar eclipses of 2000 to 2040 against the rows of the table.
class SolarEclipsesSeen : public ::testing::Test {
 protected:
  void compareAll() {
    for (TableRow& row : tableRows("solar_eclipses_seen.txt")) {
      if (row.kind == "place") {
        _places.push_back(readPlace(row.fields));
      } else if (row.kind == "eclipse") {
        expectNoneAtTheOthers();
        begin(row);
      } else {
        compare(row);
      }
    }
    expectNoneAtTheOthers();
  }

  ErrorSummary _contacts{"contacts", " s", contactLimit}, _grazes{"contacts of grazes", " s", grazeLimit},
      _maxima{"maxima", " s", 2.0}, _visible{"begin and end of what is seen", " s", contactLimit},
      _visibleGrazes{"the same of grazes", " s", grazeLimit},
      _polar{"the same beyond 66° of latitude", " s", 10.0}, _magnitudes{"magnitude", "", 0.001},
      _obscurations{"obscuration", "", 0.002}, _altitudes{"altitude", "°", 0.02},
      _azimuths{"azimuth, times cosine of altitude", "°", 0.02};
  int _eclipses = 0, _seen = 0, _touched = 0, _untouched = 0;

 private:
  static Place readPlace(std::istream& fields) {
    Place place;
    fields >> place.latitude >> place.longitude;
    return place;
  }

  void begin(TableRow& row) {
    const Instant day = instantFromUnixSeconds(numberOrNone(row));
    const auto found = eclipses(day, day + Seconds(86400));
    ASSERT_EQ(found.size(), 1U) << row.where;
    _eclipse = found.front();
    _day = day;
    _rest = {};
    for (std::size_t i = 0; i < _places.size(); ++i) _rest[std::to_string(i)] = _places[i];
    ++_eclipses;
  }

  Place placeOf(const std::string& name) {
    const std::size_t comma = name.find(',');
    if (comma == std::string::npos) return _places.at(static_cast<std::size_t>(leadingNumber(name)));
    return {leadingNumber(name), leadingNumber(name.substr(comma + 1))};
  }

  double seconds(Instant instant) const { return (instant - _day).count(); }

  void compare(TableRow& row) {
    const auto local = seenFrom(_eclipse, placeOf(row.kind));
    ASSERT_TRUE(local) << row.where;
    _rest.erase(row.kind);
    ++_touched;
    std::string kind;
    row.fields >> kind;
    ASSERT_EQ(local->kind, kindOf(kind)) << row.where;
    std::map<ContactName, double> expected;
    for (const ContactName name : {ContactName::C1, ContactName::C2}) expected[name] = numberOrNone(row);
    _maxima.add(seconds(local->maximum.at) - numberOrNone(row), row.where);
    for (const ContactName name : {ContactName::C3, ContactName::C4}) expected[name] = numberOrNone(row);
    compareContacts(*local, expected, row.where);
    compareMaximum(*local, row);
    compareVisible(*local, row);
  }

  void compareContacts(const LocalEclipse& local, std::map<ContactName, double>& expected,
                       const std::string& where) {
    const bool isCentral = !std::isnan(expected[ContactName::C2]);
    ASSERT_EQ(local.contacts.size(), isCentral ? 4U : 2U) << where;
    // Where one disc only just touches the other a hundredth of a second of arc is worth many seconds.
    _isGraze = expected[ContactName::C4] - expected[ContactName::C1] < 1800;
    const bool isShort = isCentral && expected[ContactName::C3] - expected[ContactName::C2] < 30;
    for (const Contact& contact : local.contacts) {
      const bool isInner = contact.name == ContactName::C2 || contact.name == ContactName::C3;
      const double error = seconds(contact.moment.at) - expected[contact.name];
      ((isInner ? isShort : _isGraze) ? _grazes : _contacts).add(error, where);
    }
  }

  void compareMaximum(const LocalEclipse& local, TableRow& row) {
    const double magnitude = numberOrNone(row), obscuration = numberOrNone(row);
    if (!std::isnan(magnitude)) {
      _magnitudes.add(local.magnitude - magnitude, row.where);
      // The table's covered area of an eclipse that is total is the square of the diameters' ratio.
      if (local.kind != EclipseKind::total) _obscurations.add(local.obscuration - obscuration, row.where);
    }
    const double altitude = numberOrNone(row), azimuth = numberOrNone(row);
    if (altitude < -1) _altitudes.add(local.maximum.altitude - altitude, row.where);
    _azimuths.add(std::remainder(local.maximum.azimuth - azimuth, 360) * std::cos(altitude * 0.0174533),
                  row.where);
  }

  void compareVisible(const LocalEclipse& local, TableRow& row) {
    const double from = numberOrNone(row), to = numberOrNone(row);
    ASSERT_EQ(local.isVisible, !std::isnan(from)) << row.where;
    if (!local.isVisible) return;
    ++_seen;
    const bool isPolar = std::abs(placeOf(row.kind).latitude) > 66;
    ErrorSummary& errors = _isGraze ? _visibleGrazes : isPolar ? _polar : _visible;
    errors.add(seconds(local.visibleFrom) - from, row.where);
    errors.add(seconds(local.visibleTo) - to, row.where);
  }

  void expectNoneAtTheOthers() {
    for (const auto& [name, place] : _rest) {
      EXPECT_FALSE(seenFrom(_eclipse, place)) << unixSeconds(_day) << " at place " << name;
      ++_untouched;
    }
  }

  std::vector<Place> _places;
  std::map<std::string, Place> _rest;  ///< the places that no row of the eclipse has named yet
  Eclipse _eclipse;
  Instant _day{};
  bool _isGraze = false;  ///< at the place of the row
};

TEST_F(SolarEclipsesSeen, From50PlacesAreThoseOfThePreciseEphemeris) {
  compareAll();
  for (const ErrorSummary* errors : {&_contacts, &_grazes, &_maxima, &_visible, &_visibleGrazes, &_polar,
                                     &_magnitudes, &_obscurations, &_altitudes, &_azimuths}) {
    errors->print();
  }
  std::cout << "  " << _eclipses << " eclipses, " << _touched << " touch a place, " << _seen
            << " of them seen, " << _untouched << " do not\n";
  EXPECT_EQ(_eclipses, 92);
  EXPECT_LE(_contacts.rms(), 0.5);
  EXPECT_GT(_contacts.count(), 3500);
  EXPECT_LT(_grazes.count(), 200);
}

TEST(LunarEclipsesSeen, HaveTheContactsOfThePreciseEphemeris) {
  ErrorSummary contacts("contacts of lunar eclipses of 1900 to 2100", " s", lunarContactLimit),
      grazes("contacts of grazes", " s", grazeLimit);
  const Place anywhere{12.5, 47.25};
  for (TableRow& row : tableRows("eclipses.txt")) {
    if (row.kind != "moon") continue;
    std::string kind, magnitude, gamma, saros;
    double greatest = 0;
    row.fields >> kind >> greatest >> magnitude >> gamma >> saros;
    const Instant about = instantFromUnixSeconds(greatest);
    const auto found = eclipses(about - Seconds(300), about + Seconds(300));
    ASSERT_EQ(found.size(), 1U) << row.where;
    const LocalEclipse local = localEclipse(found.front(), anywhere);
    ASSERT_EQ(local.kind, kindOf(kind)) << row.where;
    std::map<ContactName, double> times;
    for (const Contact& contact : local.contacts) {
      times[contact.name] = terrestrialSeconds(contact.moment.at) - greatest;
    }
    for (const Contact& contact : local.contacts) {
      double expected = 0;
      ASSERT_TRUE(row.fields >> expected) << row.where;
      (std::abs(expected) < 900 ? grazes : contacts).add(times[contact.name] - expected, row.where);
    }
    EXPECT_FALSE(row.fields >> kind) << row.where;
  }
  contacts.print();
  grazes.print();
  EXPECT_LE(contacts.rms(), 0.5);
  EXPECT_GT(contacts.count(), 1500);
}

}  // namespace
}  // namespace velmora::almanac
