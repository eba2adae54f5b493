#include <velmora/platform/ui/Touch.h>

#include <velmora/platform/ui/View.h>

namespace velmora {

Point Touch::locationIn(const View& view) const {
  const View* superview = view.superview();
  return superview == nullptr ? _location : view.convertFromSuperview(locationIn(*superview));
}

}  // namespace velmora
