#include <typeinfo>

#include <velmora/c/Answering.h>

using namespace velmora::c;

/// What ended an operation, as its status; velmora_message() then says it in words. For refusals.js.
extern "C" velmora_status velmora_thrown(const Refusal* thrown, const std::type_info* type) {
  if (*type != typeid(Refusal)) return refuse(VELMORA_FAILED, "the library failed");
  return refuse(thrown->status, thrown->message);
}
