#include <app/text/Errors.h>

#include <algorithm>
#include <new>

#include <app/text/Utf8.h>

namespace velmora::app {
namespace {

constexpr std::size_t longestQuotation = 80;

}  // namespace

std::string quote(std::string_view input) {
  std::string text = "'";
  std::size_t characters = 0;
  for (const char byte : input) {
    if (!continuesCharacter(byte) && ++characters > longestQuotation) return text + "…'";
    if (text.size() > 4 * longestQuotation) return text + "…'";  // not UTF-8: a run of continuation bytes
    text += isControl(byte) ? '?' : byte;
  }
  return text + "'";
}

std::string quotePath(std::string_view path) {
  std::string text(path);
  std::replace_if(text.begin(), text.end(), isControl, '?');
  return "'" + text + "'";
}

std::string messageOf(const std::exception& error) {
  return dynamic_cast<const std::bad_alloc*>(&error) ? "out of memory" : error.what();
}

}  // namespace velmora::app
