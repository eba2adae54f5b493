#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velmora {

/// A language and region with its habits: a cheap value named by an identifier such as "en_US", "ar_EG",
/// "zh-Hans" (a hyphen and an underscore are the same). An identifier that nobody knows is kept and behaves
/// as the root locale.
class Locale {
 public:
  /// How a clock is read: to 12 twice a day, or to 24.
  enum class HourCycle { h12, h24 };

  /// The locale of that identifier.
  explicit Locale(std::string identifier);

  /// The process's locale: the one last set, else that of the environment (LC_ALL, LC_TIME, LANG), where
  /// "C", "POSIX" and nothing mean "en_US".
  static Locale current();
  /// Sets the process's locale; none goes back to the environment's.
  static void setCurrent(std::optional<Locale> locale);

  /// The identifier as given.
  const std::string& identifier() const { return _identifier; }

  /// The language alone ("ar"), in lower case.
  std::string languageCode() const;

  /// Whether the language is written from right to left.
  bool isRightToLeft() const;

  /// Whether Chinese characters are written there in their traditional form: as the identifier's script says,
  /// else in Taiwan, Hong Kong and Macao.
  bool writesTraditionalChinese() const;

  /// Which plural form the language takes for that many: "zero", "one", "two", "few", "many" or "other"
  /// (CLDR).
  std::string pluralCategory(std::int64_t count) const;

  /// The weekday that calendars there begin with: 1 = Sunday .. 7 = Saturday.
  int firstWeekday() const;

  /// Whether clocks are habitually read 0..23 there, or as the override says.
  bool uses24HourClock() const;

  /// The same locale with its clock habit overridden, which short times and the template letter "j" then
  /// follow.
  Locale withHourCycle(HourCycle cycle) const;
  /// The override; none where the locale's own habit stands.
  std::optional<HourCycle> hourCycle() const { return _hourCycle; }

  friend bool operator==(const Locale&, const Locale&) = default;

 private:
  std::string _identifier;
  std::optional<HourCycle> _hourCycle;
};

/// Sets the process's locale for as long as it lives, then puts the former one back.
class ScopedLocale {
 public:
  /// Sets the locale.
  explicit ScopedLocale(Locale locale);
  explicit ScopedLocale(std::string identifier) : ScopedLocale(Locale(std::move(identifier))) {}
  ~ScopedLocale();
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

 private:
  std::optional<Locale> _former;
};

}  // namespace velmora
