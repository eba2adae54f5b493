#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora::app {

/// Writes JSON member by member, for answers of so many values that a tree of them would take longer than
/// their computing. Commas are set between values; what opens must be closed.
class JsonText {
 public:
  JsonText& openObject() { return open('{'); }
  JsonText& closeObject() { return close('}'); }
  JsonText& openArray() { return open('['); }
  JsonText& closeArray() { return close(']'); }

  /// The name of the member whose value comes next; plain ASCII.
  JsonText& name(std::string_view text);

  /// A text of plain ASCII without quotation marks, backslashes and control characters.
  JsonText& plain(std::string_view text);
  JsonText& number(std::int64_t value);
  /// Reads back unchanged; what is no number is null.
  JsonText& number(double value);
  JsonText& null();

  const std::string& text() const { return _text; }

 private:
  JsonText& open(char bracket);
  JsonText& close(char bracket);
  void separate();

  std::string _text;
  bool _isFirst = true;  ///< whether no comma stands before what comes next
};

}  // namespace velmora::app
