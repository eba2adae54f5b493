#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/support/RecordingCanvas.h"

namespace velmora::testing {

/// Whether the canvas holds exactly the operations that tests/recorded/NAME.txt lists, one a line. With
/// VELMORA_UPDATE_GOLDEN set in the environment the file is written anew, which fails once so that somebody
/// reads it.
::testing::AssertionResult drawsAsRecorded(const RecordingCanvas& canvas, const std::string& name);

}  // namespace velmora::testing
