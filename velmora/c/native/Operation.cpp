#include <exception>

#include <velmora/c/Answering.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace c {
namespace {

/// Ends an operation whose message is kept.
struct Refusal {
  velmora_status status;
};

}  // namespace

void endWith(velmora_status status, Words message) { throw Refusal{refuse(status, message)}; }

velmora_status run(velmora_status (*operation)(void*), void* context) noexcept {
  try {
    return operation(context);
  } catch (const Refusal& refusal) {
    return refusal.status;
  } catch (const std::exception& failure) {
    return refuse(VELMORA_FAILED, {failure.what()});
  }
}

}  // namespace c
}  // namespace velmora
