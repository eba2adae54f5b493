#include <app/text/ValueTexts.h>

#include <algorithm>
#include <locale>
#include <sstream>

#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::sys_days;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Takes a text apart from left to right; once a piece does not fit, nothing fits any more.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : _rest(text) {}

  int digits(std::size_t count) {
    int value = 0;
    if (_rest.size() < count ||
        !std::all_of(_rest.begin(), _rest.begin() + static_cast<int>(count), isDigit)) {
      _fits = false;
      return 0;
    }
    for (; count > 0; --count, _rest.remove_prefix(1)) value = value * 10 + (_rest.front() - '0');
    return value;
  }

  bool takes(char c) {
    if (_rest.empty() || _rest.front() != c) return false;
    _rest.remove_prefix(1);
    return true;
  }

  void expect(char c) { _fits = takes(c) && _fits; }

  double fraction() {
    double value = 0, place = 0.1;
    for (; !_rest.empty() && isDigit(_rest.front()); _rest.remove_prefix(1), place /= 10)
      value += place * (_rest.front() - '0');
    return value;
  }

  bool fits() const { return _fits; }
  bool fitsWhole() const { return _fits && _rest.empty(); }

 private:
  std::string_view _rest;
  bool _fits = true;
};

std::chrono::year_month scanMonth(Scanner& text) {
  const int year = text.digits(4);
  text.expect('-');
  const int month = text.digits(2);
  return {std::chrono::year{year}, std::chrono::month(static_cast<unsigned>(month))};
}

std::optional<CivilDate> scanDate(Scanner& text) {
  const std::chrono::year_month month = scanMonth(text);
  text.expect('-');
  const CivilDate date = month / std::chrono::day(static_cast<unsigned>(text.digits(2)));
  if (!text.fits() || !date.ok()) return std::nullopt;
  return date;
}

std::optional<ClockTime> scanTime(Scanner& text) {
  const int hour = text.digits(2);
  text.expect(':');
  const int minute = text.digits(2);
  if (!text.fits() || hour > 23 || minute > 59) return std::nullopt;
  return hours(hour) + minutes(minute);
}

std::optional<Seconds> scanSeconds(Scanner& text) {
  if (!text.takes(':')) return Seconds(0);
  const int whole = text.digits(2);
  const double fraction = text.takes('.') ? text.fraction() : 0;
  if (!text.fits() || whole > 59) return std::nullopt;
  return Seconds(whole + fraction);
}

std::optional<ClockTime> scanOffset(Scanner& text) {
  if (text.takes('Z')) return ClockTime(0);
  if (text.takes('+')) return scanTime(text);
  if (!text.takes('-')) return std::nullopt;
  const auto behind = scanTime(text);
  return behind ? std::optional(-*behind) : std::nullopt;
}

std::string twoDigits(std::int64_t number) { return integerText(number, 2); }

}  // namespace

std::optional<double> numberFromText(std::string_view text) {
  if (text.find_first_not_of("0123456789+-.eE") != std::string_view::npos) return std::nullopt;
  std::istringstream stream{std::string(text)};
  stream.imbue(std::locale::classic());
  double number = 0;
  if (!(stream >> number) || stream.peek() != std::istringstream::traits_type::eof()) return std::nullopt;
  return number;
}

std::optional<CivilDate> dateFromText(std::string_view text) {
  Scanner scanner(text);
  const auto date = scanDate(scanner);
  return scanner.fitsWhole() ? date : std::nullopt;
}

std::optional<std::chrono::year_month> monthFromText(std::string_view text) {
  Scanner scanner(text);
  const std::chrono::year_month month = scanMonth(scanner);
  if (!scanner.fitsWhole() || !month.ok()) return std::nullopt;
  return month;
}

std::optional<ClockTime> timeFromText(std::string_view text) {
  Scanner scanner(text);
  const auto time = scanTime(scanner);
  return scanner.fitsWhole() ? time : std::nullopt;
}

std::optional<Instant> instantFromText(std::string_view text) {
  Scanner scanner(text);
  const auto date = scanDate(scanner);
  scanner.expect('T');
  const auto time = scanTime(scanner);
  const auto second = scanSeconds(scanner);
  const auto offset = scanOffset(scanner);
  if (!date || !time || !second || !offset || !scanner.fitsWhole()) return std::nullopt;
  return Instant(sys_days(*date)) + *time - *offset + *second;
}

std::string dateText(CivilDate date) {
  return integerText(static_cast<int>(date.year()), 4) + "-" +
         twoDigits(static_cast<unsigned>(date.month())) + "-" + twoDigits(static_cast<unsigned>(date.day()));
}

std::string instantText(Instant instant) {
  const auto second = std::chrono::round<seconds>(instant);
  const auto day = std::chrono::floor<std::chrono::days>(second);
  const std::int64_t ofDay = (second - day).count();
  return dateText(CivilDate(day)) + "T" + twoDigits(ofDay / 3600) + ":" + twoDigits(ofDay / 60 % 60) + ":" +
         twoDigits(ofDay % 60) + "Z";
}

}  // namespace velmora::app
