#pragma once

#include <clocale>
#include <string>

#include <locale.h>

namespace velmora::testing {

/// The C library's numbers with a decimal point, for as long as it lives, whatever the locale of the process.
class PlainNumbers {
 public:
  PlainNumbers() : _former(::uselocale(plain())) {}
  ~PlainNumbers() { ::uselocale(_former); }
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;

 private:
  static locale_t plain() {
    static const locale_t locale = ::newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
  }

  locale_t _former;
};

/// The number that the text begins with.
inline double leadingNumber(const std::string& text) {
  const PlainNumbers plain;
  return std::stod(text);
}

}  // namespace velmora::testing
