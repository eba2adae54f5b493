#include <app/program/Completion.h>

#include <ostream>

#include <app/place/Cities.h>

namespace velmora::app {

bool asksForCompletion(const std::vector<std::string>& arguments) {
  return arguments.size() == 3 && arguments[0] == "--complete" &&
         (arguments[1] == "city" || arguments[1] == "tz");
}

void offer(const std::vector<std::string>& arguments, std::ostream& out) {
  const auto offered = arguments[1] == "city" ? citiesBeginning(arguments[2]) : zonesBeginning(arguments[2]);
  for (const std::string& name : offered) out << name << '\n';
}

}  // namespace velmora::app
