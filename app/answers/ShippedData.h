#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include <velmora/phases/YearTable.h>
#include <velmora/platform/resources/Bundle.h>

// What the library passes over in damaged data would be missing from the program's answers without a word.
// These throw a Failure that names the file instead.
namespace velmora::app {

/// The table of the year. Throws unless it has the phases of each month.
std::shared_ptr<const YearTable> wholeTable(std::chrono::year year);

/// A January also needs the table of the year before, a December that of the year after, where the tables
/// reach so far. Throws unless it is whole.
void checkNeighbour(std::chrono::year_month month);

/// Throws unless the bundle has each of the pictures, undamaged.
void checkPictures(const Bundle& bundle, const std::vector<std::string>& names);

}  // namespace velmora::app
