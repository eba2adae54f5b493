#include <velmora/views/OncePerProcess.h>

#include <set>

#include <velmora/foundation/VelmoraCalendar.h>

namespace velmora {
namespace {

std::set<ProcessValues*>& knownValues() {
  static std::set<ProcessValues*> values;
  return values;
}

}  // namespace

ProcessValues::ProcessValues() { knownValues().insert(this); }

ProcessValues::~ProcessValues() { knownValues().erase(this); }

void ProcessValues::resetAll() {
  for (ProcessValues* value : knownValues()) value->reset();
  VelmoraCalendar::resetSymbols();
}

}  // namespace velmora
