#pragma once

#include <cstdint>
#include <string>

#include <velmora/platform/time/Locale.h>

namespace velmora {

/// Writes numbers with the digits and signs of a locale. A cheap value.
class NumberFormatter {
 public:
  /// What is written.
  enum class Style {
    none,     ///< an integer without grouping
    decimal,  ///< grouped, with as many fraction digits as needed up to the maximum
  };

  /// A formatter in the current locale, of style none.
  NumberFormatter();

  /// What numbers are written with.
  void setLocale(Locale locale) { _locale = std::move(locale); }
  void setStyle(Style style) { _style = style; }
  /// Only for the decimal style; 3 unless set.
  void setMaximumFractionDigits(int digits) { _maximumFractionDigits = digits; }

  /// The locale of the texts.
  const Locale& locale() const { return _locale; }

  /// The number as a text.
  std::string stringFromNumber(std::int64_t number) const;
  std::string stringFromNumber(double number) const;

 private:
  Locale _locale;
  Style _style = Style::none;
  int _maximumFractionDigits = 3;
};

}  // namespace velmora
