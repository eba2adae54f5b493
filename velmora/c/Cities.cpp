#include <velmora/c/Answering.h>
#include <velmora/c/CopiedText.h>
#include <velmora/cities/CityTable.h>

using namespace velmora;
using namespace velmora::c;

namespace {

velmora_city cityOf(const City& city) {
  velmora_city out{};
  out.latitude = city.latitude;
  out.longitude = city.longitude;
  out.people = city.people;
  copyText(city.name, out.name);
  copyText(city.region, out.region);
  copyText(city.country, out.country);
  copyText(city.zone, out.zone);
  return out;
}

}  // namespace

extern "C" {

velmora_status velmora_cities(const char* name, velmora_city* cities, size_t capacity, size_t* count) {
  return answering([&] {
    const CityTable table = CityTable::shipped();
    const auto found = table.named(&given(name, "name"));
    if (table.size() == 0) endWith(VELMORA_NO_DATA, {"the table of cities cannot be read"});
    return fill(found, cities, capacity, count, "cities", cityOf);
  });
}

}  // extern "C"
