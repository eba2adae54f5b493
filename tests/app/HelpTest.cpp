#include <app/request/Command.h>
#include <app/request/DrawableView.h>
#include <app/request/DrawingOptions.h>
#include <app/request/Options.h>
#include <velmora/Version.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using HelpTest = AppTest;

/// One that the option accepts, as it says itself.
std::string valueOf(const Option& option) {
  if (option.name == "phase") return "full";
  if (option.name == "heading") return "90";
  if (option.name == "month") return "2026-05";
  if (option.name == "background") return "white";
  if (option.name == "ics") return "holidays.ics";
  const std::string accepted(option.accepts);
  return accepted.substr(0, accepted.find_first_of(", "));
}

TEST_F(HelpTest, NamesEveryCommand) {
  const std::string help = answer({"--help"});
  for (const Command& command : allCommands())
    EXPECT_NE(help.find("\n  " + std::string(command.name) + " "), std::string::npos) << command.name;
}

TEST_F(HelpTest, OfACommandNamesEachOfItsOptionsAndNoOther) {
  for (const Command& command : allCommands()) {
    const std::string help = answer({std::string(command.name), "--help"});
    for (const Option& option : allOptions()) {
      const bool isListed = help.find("\n  --" + std::string(option.name) + " ") != std::string::npos;
      EXPECT_EQ(isListed, command.takes(option.name) && option.name != command.positional)
          << command.name << " " << option.name;
    }
  }
}

TEST_F(HelpTest, OfAViewNamesEachOptionThatItTakesAndNoOther) {
  for (const DrawableView& view : allViews()) {
    const std::string name(view.name), help = answer({"draw", name, "--help"});
    EXPECT_EQ(linesOf(help).at(0), "Usage: velmora draw " + name + " --output FILE [options]");
    EXPECT_EQ(help.find("\nViews\n"), std::string::npos);
    for (const Option& option : allOptions()) {
      const bool isListed = help.find("\n  --" + std::string(option.name) + " ") != std::string::npos;
      const bool isTaken = findCommand("draw")->takes(option.name) && option.name != "view";
      EXPECT_EQ(isListed, isTaken && !isOfOtherViews(option.name, view)) << name << " " << option.name;
    }
  }
}

TEST_F(HelpTest, OfAViewAgreesWithWhatTheViewTakes) {
  for (const DrawableView& view : allViews()) {
    const std::string name(view.name), help = answer({"draw", name, "--help"});
    for (const std::string_view option : viewOptions()) {
      const std::string spelling = "--" + std::string(option);
      std::vector<std::string> arguments = {"draw", name, "-o", "picture.none", spelling};
      if (!findOption(option)->isSwitch()) arguments.push_back(valueOf(*findOption(option)));
      const std::string error = runProgram(arguments).err;
      const bool isListed = help.find("\n  " + spelling + " ") != std::string::npos;
      EXPECT_NE(error.find(isListed ? "'picture.none'" : "does not take"), std::string::npos) << error;
    }
  }
}

TEST_F(HelpTest, OfACommandBeginsWithWhatMustBeGiven) {
  const auto usage = [&](const std::string& command) { return linesOf(answer({command, "--help"})).at(0); };
  EXPECT_EQ(usage("phases"), "Usage: velmora phases --from YYYY-MM-DD --to YYYY-MM-DD [options]");
  EXPECT_EQ(usage("ics"), "Usage: velmora ics --from YYYY-MM-DD --to YYYY-MM-DD [options]");
  EXPECT_EQ(usage("draw"), "Usage: velmora draw VIEW --output FILE [options]");
  EXPECT_EQ(usage("elevation"), "Usage: velmora elevation DEGREES [options]");
  EXPECT_EQ(usage("year"), "Usage: velmora year [YYYY] [options]");
}

TEST_F(HelpTest, OfACommandAsksForNoMoreThanTheCommandDoes) {
  for (const Command& command : allCommands()) {
    const bool isComplete = command.required.empty() && command.positional != "degrees";
    if (command.name == "batch") continue;  // reads its standard input
    EXPECT_EQ(runProgram({std::string(command.name)}).status == 0, isComplete) << command.name;
  }
}

TEST_F(HelpTest, FitsThePage) {
  for (const Command& command : allCommands()) {
    for (const std::string& line : linesOf(answer({std::string(command.name), "--help"})))
      EXPECT_LE(charactersOf(line), 80U) << line;
  }
}

TEST_F(HelpTest, EveryOptionOfACommandExists) {
  for (const Command& command : allCommands()) {
    for (const auto name : command.options) EXPECT_NE(findOption(name), nullptr) << name;
  }
}

TEST_F(HelpTest, HasAShortSpelling) {
  EXPECT_EQ(answer({"-h"}), answer({"--help"}));
  EXPECT_EQ(answer({"month", "-h"}), answer({"month", "--help"}));
}

TEST_F(HelpTest, TheVersionIsTheLibrarys) {
  EXPECT_EQ(answer({"--version"}), std::string("velmora ") + VelmoraVersionString + "\n");
}

}  // namespace
}  // namespace velmora::app
