// A batch line of any bytes is answered by one line of JSON with the id and either a result or an error.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <app/program/Batch.h>
#include <app/request/Command.h>
#include <app/request/JsonRequest.h>
#include <app/text/Json.h>

// Such a line is read, but the file that it names is not written.
static bool asksForPicture(std::string_view line) {
  using namespace velmora::app;
  try {
    return requestFromJson(jsonFromLine(line)).command->name == "draw";
  } catch (const std::exception&) {
    return false;
  }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace velmora::app;
  if (asksForPicture({reinterpret_cast<const char*>(data), size})) return 0;
  const std::string answer = velmora::app::batchAnswer({reinterpret_cast<const char*>(data), size});
  const Json read = jsonFromText(answer);
  if (!read.is_object() || answer.find('\n') != std::string::npos) std::abort();
  if (!read.contains("id") || read.contains("result") == read.contains("error")) std::abort();
  return 0;
}
