#pragma once

#include <velmora/platform/graphics/Color.h>

namespace velmora {

/// Colours of controls that the library offers to applications; no view of the library reads them. A plain
/// value: every call below makes a new one, which the caller may change.
struct UIColorTheme {
  /// What each colours.
  Color borderColor;
  Color backgroundColor;
  Color selectedBackgroundColor;
  Color darkTextColor;
  Color defaultTextColor;
  Color lightTextColor;
  Color selectedForegroundColor;

  /// For controls that are not named below.
  static UIColorTheme defaultTheme();
  /// For dialogs: another background.
  static UIColorTheme dialogTheme();
  /// For paged segmented controls: the default one.
  static UIColorTheme pagingSegmentedControlTheme();
  /// For drop-down lists: another border and other backgrounds.
  static UIColorTheme dropDownListControlTheme();

  friend bool operator==(const UIColorTheme&, const UIColorTheme&) = default;
};

}  // namespace velmora
