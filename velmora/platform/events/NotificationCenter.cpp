#include <velmora/platform/events/NotificationCenter.h>

#include <algorithm>
#include <utility>

namespace velmora {

NotificationCenter& NotificationCenter::defaultCenter() {
  static NotificationCenter center;
  return center;
}

NotificationCenter::Subscription NotificationCenter::subscribe(std::string_view name, Observer observer) {
  auto& observers = _observers[std::string(name)];
  std::erase_if(observers, [](const auto& former) { return former.expired(); });
  auto owned = std::make_shared<const Observer>(std::move(observer));
  observers.push_back(owned);
  return Subscription(std::move(owned));
}

void NotificationCenter::post(std::string_view name) {
  const auto found = _observers.find(name);
  if (found == _observers.end()) return;
  // A copy: observers may subscribe while they are called. Each is held until its call returns.
  const auto observers = found->second;
  for (const auto& subscribed : observers) {
    if (const auto observer = subscribed.lock()) (*observer)();
  }
}

}  // namespace velmora
