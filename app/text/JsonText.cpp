#include <app/text/JsonText.h>

#include <array>
#include <charconv>
#include <cmath>

#include <app/text/Json.h>

namespace velmora::app {
namespace {

constexpr std::size_t longestNumber = 64;

}  // namespace

JsonText& JsonText::name(std::string_view text) {
  plain(text);
  _text += ':';
  _isFirst = true;
  return *this;
}

JsonText& JsonText::plain(std::string_view text) {
  separate();
  _text += '"';
  _text += text;
  _text += '"';
  return *this;
}

JsonText& JsonText::number(std::int64_t value) {
  separate();
  std::array<char, longestNumber> digits;
  _text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
  return *this;
}

// As the library of JSON writes it, so that a number looks the same in every answer.
JsonText& JsonText::number(double value) {
  if (!std::isfinite(value)) return null();
  separate();
  std::array<char, longestNumber> digits;
  _text.append(digits.data(),
               nlohmann::detail::to_chars(digits.data(), digits.data() + digits.size(), value));
  return *this;
}

JsonText& JsonText::null() {
  separate();
  _text += "null";
  return *this;
}

JsonText& JsonText::open(char bracket) {
  separate();
  _text += bracket;
  _isFirst = true;
  return *this;
}

JsonText& JsonText::close(char bracket) {
  _text += bracket;
  _isFirst = false;
  return *this;
}

void JsonText::separate() {
  if (!_isFirst) _text += ',';
  _isFirst = false;
}

}  // namespace velmora::app
