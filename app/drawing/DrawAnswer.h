#pragma once

#include <app/answers/Query.h>

namespace velmora::app {

/// A view drawn into a file.
extern const Answer drawAnswer;

}  // namespace velmora::app
