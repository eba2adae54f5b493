#include <app/request/JsonRequest.h>

#include <set>

#include <app/request/Command.h>
#include <app/request/Options.h>
#include <app/text/Errors.h>
#include <app/text/Spelling.h>

namespace velmora::app {
namespace {

constexpr int deepestNesting = 16;

/// Watches the parser. A deep value is stopped before it is built: values are destroyed and written by
/// recursion. An option that is given twice is stopped because the parser would keep the last alone.
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
    throw BadInput("the line holds a number out of range; accepted: what fits a double");
  }
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
