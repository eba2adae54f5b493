#include <velmora/platform/time/NumberText.h>

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

namespace velmora {

std::string decimalText(double number, int fractionDigits) {
  if (std::isnan(number)) return "nan";
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::fixed << std::setprecision(fractionDigits) << number;
  return text.str();
}

std::string integerText(std::int64_t number, std::size_t minimumDigits) {
  std::string text = std::to_string(number);
  const std::size_t signs = number < 0 ? 1 : 0;
  if (text.size() < signs + minimumDigits) text.insert(signs, signs + minimumDigits - text.size(), '0');
  return text;
}

}  // namespace velmora
