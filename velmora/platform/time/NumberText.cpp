#include <velmora/platform/time/NumberText.h>

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

namespace velmora {
namespace {

std::ostringstream fixedPointStream() {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream << std::fixed;
  return stream;
}

}  // namespace

std::string decimalText(double number, int fractionDigits) {
  if (std::isnan(number)) return "nan";
  thread_local std::ostringstream stream = fixedPointStream();  // costs more to make than to use
  stream.str("");
  stream << std::setprecision(fractionDigits) << number;
  return stream.str();
}

std::string integerText(std::int64_t number, std::size_t minimumDigits) {
  std::string text = std::to_string(number);
  const std::size_t signs = number < 0 ? 1 : 0;
  if (text.size() < signs + minimumDigits) text.insert(signs, signs + minimumDigits - text.size(), '0');
  return text;
}

}  // namespace velmora
