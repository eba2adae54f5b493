#include <velmora/c/Answering.h>

/// In refusals.js: throws the message as JavaScript does.
extern "C" [[noreturn]] void velmora_end(velmora_status status, const char* message);

namespace [[gnu::visibility("hidden")]] velmora {
namespace c {

void endWith(velmora_status status, Words message) {
  velmora_end(refuse(status, message), velmora_message());
}

velmora_status run(velmora_status (*operation)(void*), void* context) noexcept { return operation(context); }

}  // namespace c
}  // namespace velmora
