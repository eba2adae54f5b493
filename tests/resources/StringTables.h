#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <tests/resources/WritingScripts.h>

namespace velmora {

using Texts = std::map<std::string, std::string>;

/// The languages of the string tables and the script each is written in.
extern const std::map<std::string, Script> kLanguages;

/// The bundle of the tree.
std::filesystem::path libraryFolder();

/// The texts that a bundle ships in a language.
Texts textsOf(const std::filesystem::path& bundle, const std::string& language,
              const std::string& table = "Localizable");

std::set<std::string> keysOf(const Texts& texts);

/// What stands to be filled in: each percent sign with the character after it, in order.
std::vector<std::string> placeholdersOf(const std::string& text);

}  // namespace velmora
