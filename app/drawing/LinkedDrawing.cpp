#include <app/drawing/Drawing.h>

namespace velmora::app {

const Drawing& drawing() { return velmoraDrawing; }

}  // namespace velmora::app
