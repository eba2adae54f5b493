#include <app/text/Json.h>

template class nlohmann::basic_json<nlohmann::ordered_map>;

namespace velmora::app {

Json jsonFromText(std::string_view text) { return Json::parse(text, nullptr, false); }

std::string jsonLine(const Json& value) { return value.dump(-1, ' ', false, Json::error_handler_t::replace); }

}  // namespace velmora::app
