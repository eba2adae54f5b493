#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

/// The principal phases of one year in UTC: under each month's number as text, "1" to "12", one line a phase
/// in order of time.
///
/// A line is "DAY TIME CODE": the day of the month with one or two digits, the time as "HH:mm", and "NM",
/// "FQ", "FM" or "LQ" for new moon, first quarter, full moon and last quarter. One blank or two stand between
/// the fields; what follows the code is ignored.
using YearTable = std::map<std::string, std::vector<std::string>>;

/// The table that the library has of that year; empty if it has none.
std::shared_ptr<const YearTable> tableOfYear(std::int64_t year);

}  // namespace velmora
