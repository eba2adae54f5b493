#include <app/text/Errors.h>

#include <new>

#include <app/text/Utf8.h>

namespace velmora::app {
namespace {

constexpr std::size_t longestQuotation = 80, mostBytes = 4 * longestQuotation;

}  // namespace

std::string quote(std::string_view input) {
  const std::string shown = printable(input.substr(0, mostBytes));
  std::size_t characters = 0, end = 0;
  for (; end < shown.size(); ++end) {
    if (!continuesCharacter(shown[end]) && ++characters > longestQuotation) break;
  }
  const bool isWhole = end == shown.size() && input.size() <= mostBytes;
  return "'" + shown.substr(0, end) + (isWhole ? "'" : "…'");
}

std::string quotePath(std::string_view path) { return "'" + printable(path) + "'"; }

std::string messageOf(const std::exception& error) {
  return dynamic_cast<const std::bad_alloc*>(&error) ? "out of memory" : error.what();
}

}  // namespace velmora::app
