#include <app/request/JsonRequest.h>

#include <set>

#include <app/request/Command.h>
#include <app/request/Options.h>
#include <app/text/Errors.h>
#include <app/text/Spelling.h>

namespace velmora::app {
namespace {

constexpr int deepestNesting = 16;

/// Checks a line while it is parsed. A deeply nested value is refused before it is built, as destroying and
/// writing it would take a call per level. An option that is given twice is refused, as the parser would keep
/// only the last one.
class Watch {
 public:
  bool operator()(int depth, Json::parse_event_t event, const Json& parsed) {
    const bool opens =
        event == Json::parse_event_t::object_start || event == Json::parse_event_t::array_start;
    if (opens && depth > deepestNesting)
      throw BadInput("the line is nested too deeply; accepted: one object of plain values");
    if (event == Json::parse_event_t::key && depth == 1) checkOnce(parsed.get_ref<const std::string&>());
    return true;
  }

 private:
  void checkOnce(const std::string& name) {
    if (!_names.insert(name).second) throw BadInput(quote(name) + " is given more than once");
  }

  std::set<std::string> _names;
};

std::string commandNames() {
  std::string names;
  for (const Command& command : allCommands()) {
    if (command.isForBatch) names += (names.empty() ? "" : ", ") + std::string(command.name);
  }
  return names;
}

const Command& commandOf(const Json& object) {
  const auto op = object.find("op");
  if (op == object.end()) throw BadInput("op is missing; accepted: " + commandNames());
  if (!op->is_string()) throw BadInput("op is not a text; accepted: " + commandNames());
  const Command* command = findCommand(op->get_ref<const std::string&>());
  if (!command || !command->isForBatch)
    throw BadInput("op " + quote(op->get_ref<const std::string&>()) +
                   " is not known; accepted: " + commandNames());
  return *command;
}

const Option& optionOf(const std::string& name, const Command& command) {
  const Option* option = command.takes(name) ? findOption(name) : nullptr;
  if (option && !option->onlyOnCommandLine) return *option;
  std::vector<std::string> accepted;
  for (const auto known : command.options) {
    if (!findOption(known)->onlyOnCommandLine) accepted.emplace_back(known);
  }
  throw BadInput(quote(name) + " is not an option of " + std::string(command.name) +
                 "; nearest: " + nearest(name, accepted));
}

/// Reads along a line that is valid JSON.
class Scanner {
 public:
  explicit Scanner(std::string_view line) : _line(line) {}

  /// What stands at the cursor up to the end of the value, which begins there.
  std::string_view value() {
    const std::size_t begin = _at;
    int depth = 0;
    do {
      const char c = _line[_at];
      if (c == '"') {
        skipText();
        continue;
      }
      if (depth == 0 && (c == ',' || c == '}' || c == ']' || c == ':' || isBlank(c))) break;
      if (c == '{' || c == '[') ++depth;
      if (c == '}' || c == ']') --depth;
      ++_at;
      if (depth == 0 && (c == '}' || c == ']')) break;
    } while (_at < _line.size());
    return _line.substr(begin, _at - begin);
  }

  /// Goes to what comes next but blanks and these.
  void pass(std::string_view marks) {
    while (_at < _line.size() && (isBlank(_line[_at]) || marks.find(_line[_at]) != marks.npos)) ++_at;
  }

  bool isAtEndOfObject() const { return _at >= _line.size() || _line[_at] == '}'; }

 private:
  static bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

  void skipText() {
    for (++_at; _line[_at] != '"'; ++_at) {
      if (_line[_at] == '\\') ++_at;
    }
    ++_at;
  }

  std::string_view _line;
  std::size_t _at = 0;
};

BadInput invalidAt(std::size_t byte) {
  return BadInput("the line is not valid JSON at byte " + std::to_string(byte) +
                  "; accepted: one object in UTF-8");
}

}  // namespace

Json jsonFromLine(std::string_view line) {
  const auto zero = line.find('\0');  // the parser would take it for the end
  if (zero != std::string_view::npos) throw invalidAt(zero + 1);
  try {
    return Json::parse(line.begin(), line.end(), Watch());
  } catch (const Json::parse_error& error) {
    throw invalidAt(error.byte);
  } catch (const Json::out_of_range&) {
    throw BadInput("the line holds a number out of range; accepted: numbers up to 1.7e308");
  }
}

std::string_view memberText(std::string_view line, std::string_view name) {
  Scanner scanner(line);
  scanner.pass("\xEF\xBB\xBF{");
  while (!scanner.isAtEndOfObject()) {
    const std::string_view key = scanner.value();
    scanner.pass(":");
    const std::string_view value = scanner.value();
    if (jsonFromText(key) == Json(name)) return value;
    scanner.pass(",");
  }
  return "null";
}

Request requestFromJson(const Json& object) {
  Request request;
  request.command = &commandOf(object);
  for (const auto& [name, value] : object.items()) {
    if (name != "op" && name != "id") readOptionJson(optionOf(name, *request.command), value, request);
  }
  return request;
}

}  // namespace velmora::app
