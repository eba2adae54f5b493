#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <velmora/platform/graphics/Geometry.h>

namespace velmora {

/// What an element is, for a screen reader.
enum class AccessibilityTraits {
  none,
  button,
  allowsDirectInteraction,  ///< touches go to the view itself while the screen reader runs
};

/// How the elements of a view belong together.
enum class AccessibilityContainerType {
  none = 0,
  semanticGroup = 4,
};

/// Something that a screen reader offers to do with an element. Derived classes add what the handler needs.
class AccessibilityCustomAction : public std::enable_shared_from_this<AccessibilityCustomAction> {
 public:
  /// Is given the action that was activated.
  using Handler = std::function<void(const AccessibilityCustomAction& action)>;

  /// An action of that name; without a handler it does nothing.
  AccessibilityCustomAction(std::string name, Handler handler)
      : _name(std::move(name)), _handler(std::move(handler)) {}
  virtual ~AccessibilityCustomAction() = default;
  AccessibilityCustomAction(const AccessibilityCustomAction&) = delete;
  AccessibilityCustomAction& operator=(const AccessibilityCustomAction&) = delete;

  /// The text that the user chooses the action by.
  const std::string& name() const { return _name; }

  /// Runs the handler: the host calls this when the user chose the action. The action lives until the handler
  /// has returned, even if that releases the element.
  void activate() const {
    const auto self = weak_from_this().lock();
    if (_handler) _handler(*this);
  }

 private:
  std::string _name;
  Handler _handler;
};

/// One thing on a view that a screen reader can stop at.
struct AccessibilityElement {
  Rect frame{};         ///< in the coordinates of the view that lists it
  std::string label{};  ///< what it is
  std::string value{};  ///< its present state
  std::string hint{};   ///< what activating it does
  AccessibilityTraits traits = AccessibilityTraits::none;
  std::vector<std::shared_ptr<const AccessibilityCustomAction>> customActions{};

  friend bool operator==(const AccessibilityElement&, const AccessibilityElement&) = default;
};

}  // namespace velmora
