#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace velmora::app {

/// What was asked cannot be answered as it was asked; the message says what was wrong and what is accepted.
/// Ends the program with exit status 2.
class BadInput : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A resource or the output failed. Ends the program with exit status 1, silently if the message is empty.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The input in quotation marks for a message of one line: cut after 80 characters, control characters
/// and what is not UTF-8 replaced.
std::string quote(std::string_view input);

/// The path of a file of the program's own in quotation marks, whole, control characters and
/// what is not UTF-8 replaced.
std::string quotePath(std::string_view path);

/// What the error says; of memory that ran out, that it did.
std::string messageOf(const std::exception& error);

}  // namespace velmora::app
