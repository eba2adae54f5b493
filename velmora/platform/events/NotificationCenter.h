#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora {

/// Calls observers by name when something has changed. A notification is a name and carries no object: the
/// observer asks the sender for its new state. For the main thread only.
///
/// While a notification is being posted, an observer may
/// - subscribe: the new observer is called for every later post, not for the one under way;
/// - end a subscription, its own or another's: at once, so an observer not yet reached is not called any
/// more;
/// - post, also the same name: the inner notification is delivered to all before the outer one goes on;
/// - throw: the exception leaves `post`, the observers not yet reached are not called, and the centre stays
///   usable.
class NotificationCenter {
 public:
  /// What is called at a post.
  using Observer = std::function<void()>;

  /// Keeps one observer subscribed for as long as it lives. It may outlive the centre.
  class [[nodiscard]] Subscription {
   public:
    /// A subscription to nothing.
    Subscription() = default;
    Subscription(Subscription&&) = default;
    /// Ends what this one held before it takes over the other.
    Subscription& operator=(Subscription&&) = default;

    /// Ends the subscription before its owner goes; ending it again does nothing.
    void end() { _observer.reset(); }

   private:
    friend class NotificationCenter;
    explicit Subscription(std::shared_ptr<const Observer> observer) : _observer(std::move(observer)) {}

    std::shared_ptr<const Observer> _observer;
  };

  /// The centre that the library posts on.
  static NotificationCenter& defaultCenter();

  NotificationCenter() = default;
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;

  /// Calls the observer at every later post of that name, until the subscription ends.
  Subscription subscribe(std::string_view name, Observer observer);

  /// Calls every observer of that name, in order of subscription, and returns when all have returned.
  void post(std::string_view name);

 private:
  // The subscriptions own the observers, so an ended one is simply gone.
  std::map<std::string, std::vector<std::weak_ptr<const Observer>>, std::less<>> _observers;
};

}  // namespace velmora
