#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace velmora {

/// The number with exactly that many fraction digits and a decimal point, the same in every locale:
/// "37.7855" for 37.78549 and 4 digits. What is no number reads "nan", without a sign.
std::string decimalText(double number, int fractionDigits);

/// The number with at least that many digits, zeros in front, the sign apart: "05" and "-05" for 5, −5 and
/// 2 digits.
std::string integerText(std::int64_t number, std::size_t minimumDigits = 1);

}  // namespace velmora
