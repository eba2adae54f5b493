#include <velmora/platform/time/NumberText.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace velmora {
namespace {

/// As the C library prints it, with a point in place of the mark of the C locale.
std::string printedText(double number, int fractionDigits) {
  constexpr const char* format = "%.*f";
  std::string text(static_cast<std::size_t>(std::snprintf(nullptr, 0, format, fractionDigits, number)), '\0');
  std::snprintf(text.data(), text.size() + 1, format, fractionDigits, number);
  if (!std::isfinite(number)) return text;
  constexpr std::string_view digits = "0123456789";
  const std::size_t mark = text.find_first_not_of(digits, std::signbit(number) ? 1 : 0);
  if (mark == text.npos) return text;
  return text.replace(mark, text.find_first_of(digits, mark) - mark, ".");
}

/// The whole number nearest to number · scale; of two as near the even one. Decided on the exact product: its
/// rounded value and, at a half, what that lacks. The number is not negative, the product below 2⁵³.
std::int64_t nearestWholeProduct(double number, double scale) {
  const double product = number * scale;
  const auto whole = static_cast<std::int64_t>(product);
  const double fraction = product - static_cast<double>(whole);
  if (fraction != 0.5) return whole + (fraction > 0.5 ? 1 : 0);
  const double lacking = std::fma(number, scale, -product);
  return whole + (lacking > 0 || (lacking == 0 && whole % 2 == 1) ? 1 : 0);
}

constexpr std::array<double, 7> powersOfTen = {1, 10, 100, 1000, 10000, 100000, 1000000};
constexpr double largestScaled = 9e15;  // below 2⁵³

}  // namespace

std::string decimalText(double number, int fractionDigits) {
  if (std::isnan(number)) return "nan";
  const auto digits = static_cast<std::size_t>(fractionDigits);
  if (digits >= powersOfTen.size()) return printedText(number, fractionDigits);
  const double scale = powersOfTen[digits];
  if (!(std::abs(number) * scale < largestScaled)) return printedText(number, fractionDigits);

  std::int64_t rest = nearestWholeProduct(std::abs(number), scale);
  std::array<char, 24> text;  // written from its end
  char* const end = text.data() + text.size();
  char* begin = end;
  for (std::size_t written = 0; written <= digits || rest != 0; ++written, rest /= 10) {
    if (written == digits && digits != 0) *--begin = '.';
    *--begin = static_cast<char>('0' + rest % 10);
  }
  if (std::signbit(number)) *--begin = '-';
  return {begin, end};
}

std::string integerText(std::int64_t number, std::size_t minimumDigits) {
  std::string text = std::to_string(number);
  const std::size_t signs = number < 0 ? 1 : 0;
  if (text.size() < signs + minimumDigits) text.insert(signs, signs + minimumDigits - text.size(), '0');
  return text;
}

}  // namespace velmora
