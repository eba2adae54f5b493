#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <app/request/Request.h>
#include <app/text/Errors.h>
#include <app/text/Json.h>

namespace velmora::app {

/// One option: how it is called, what the help says of it, and how its value enters a request. The command
/// line and a batch read through the same table, so both accept the same.
struct Option {
  using Switch = void (*)(Request&);
  using Number = void (*)(Request&, double);
  using Text = void (*)(Request&, const std::string&);

  std::string_view name;       ///< without dashes
  std::string_view valueName;  ///< as the help shows it; empty for a switch
  std::string_view help;
  std::string_view accepts;  ///< the values accepted, as an error message says it; empty for any
  /// Puts a value into the request; throws BadInput with what is wrong about it.
  std::variant<Switch, Number, Text> read;
  bool onlyOnCommandLine = false;
  char letter = '\0';  ///< its short spelling on the command line; none for most

  bool isSwitch() const { return std::holds_alternative<Switch>(read); }
};

/// Every option of the program, in the order of the help.
const std::vector<Option>& allOptions();

/// The option of that name; none if there is no such option.
const Option* findOption(std::string_view name);

/// The value that the text names; throws BadInput if it names none.
template <typename Value>
Value oneOf(const std::string& text, const std::vector<std::pair<std::string_view, Value>>& values) {
  for (const auto& [name, value] : values) {
    if (name == text) return value;
  }
  throw BadInput("is not known");
}

/// Reads a value from the command line; `label` names it in a message.
void readOptionText(const Option& option, const std::string& label, const std::string& value,
                    Request& request);

/// Reads a value from a batch: a JSON number, a text, or a yes/no for a switch.
void readOptionJson(const Option& option, const Json& value, Request& request);

}  // namespace velmora::app
