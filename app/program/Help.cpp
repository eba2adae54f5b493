#include <app/program/Help.h>

#include <algorithm>
#include <cctype>

#include <app/request/DrawingOptions.h>
#include <app/request/Options.h>
#include <app/text/TextTable.h>

namespace velmora::app {
namespace {

/// "--date YYYY-MM-DD". A value that may be left out where it stands by itself must follow its option.
std::string spelled(const Option& option) {
  std::string value(option.valueName);
  if (value.starts_with('[')) value = value.substr(1, value.size() - 2);
  return "--" + std::string(option.name) + (value.empty() ? "" : " " + value);
}

std::string optionsText(const Command& command, const DrawableView* view) {
  TextTable table({"Options", ""});
  for (const Option& option : allOptions()) {
    if (!command.takes(option.name) || option.name == command.positional) continue;
    if (view && isOfOtherViews(option.name, *view)) continue;
    table.add({"  " + spelled(option), std::string(option.help)});
  }
  return table.text(false);
}

std::string positionalText(const Command& command) {
  if (command.positional.empty()) return "";
  const Option& option = *findOption(command.positional);
  return std::string(option.valueName) + ": " + std::string(option.help) + "\n\n";
}

std::string commandsText() {
  TextTable table({"Commands", ""});
  for (const Command& command : allCommands())
    table.add({"  " + std::string(command.name), std::string(command.summary)});
  return table.text(false);
}

std::string programText() {
  return "Usage: velmora [COMMAND] [options]\n\nSun and Moon for any place on Earth.\n\n" + commandsText() +
         "\nvelmora COMMAND --help lists the options of a command. Without a command: " +
         std::string(allCommands().front().name) + ".\n\n";
}

std::string sentence(std::string_view words) {
  std::string text = std::string(words) + ".";
  text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
  return text;
}

std::string usageLine(const Command& command, std::string_view positional) {
  std::string line = "Usage: velmora " + std::string(command.name);
  if (!positional.empty()) line += " " + std::string(positional);
  for (const auto name : command.required) line += " " + spelled(*findOption(name));
  return line + " [options]\n\n";
}

std::string usageText(const Command& command) {
  const Option* positional = findOption(command.positional);
  return usageLine(command, positional ? positional->valueName : "") + sentence(command.summary) + "\n\n" +
         positionalText(command);
}

std::string viewText(const Command& command, const DrawableView& view) {
  const auto& options = view.options;
  const bool takesCalendar = std::find(options.begin(), options.end(), "calendar") != options.end();
  return usageLine(command, view.name) + sentence(view.summary) + "\n\n" +
         (takesCalendar ? calendarNotes() + "\n" : "");
}

}  // namespace

std::string helpText(const Command& command, const DrawableView* view) {
  if (view) return viewText(command, *view) + optionsText(command, view);
  const bool answersUnnamed = &command == &allCommands().front();
  const std::string notes = command.notes ? command.notes() + "\n" : "";
  return (answersUnnamed ? programText() : usageText(command)) + notes + optionsText(command, nullptr);
}

}  // namespace velmora::app
