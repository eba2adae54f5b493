// A batch line of any bytes is answered by one line of JSON with the id and either a result or an error.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <app/Json.h>
#include <app/commands/Batch.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using velmora::app::Json;
  const std::string answer = velmora::app::batchAnswer({reinterpret_cast<const char*>(data), size});
  const Json read = Json::parse(answer, nullptr, false);
  if (!read.is_object() || answer.find('\n') != std::string::npos) std::abort();
  if (!read.contains("id") || read.contains("result") == read.contains("error")) std::abort();
  return 0;
}
