#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <velmora/platform/ui/AccessibilityElement.h>
#include <velmora/platform/ui/Announcements.h>

namespace velmora {
namespace {

class ChoosingAction : public AccessibilityCustomAction {
 public:
  ChoosingAction(int which, Handler handler) : AccessibilityCustomAction("Choose", handler), choice(which) {}
  int choice;
};

TEST(AccessibilityCustomAction, ItsHandlerIsGivenTheActionWithWhatADerivedClassAdds) {
  int chosen = 0;
  const ChoosingAction action(7, [&](const AccessibilityCustomAction& activated) {
    if (const auto* choosing = dynamic_cast<const ChoosingAction*>(&activated)) chosen = choosing->choice;
  });
  EXPECT_EQ(action.name(), "Choose");
  action.activate();
  EXPECT_EQ(chosen, 7);
}

TEST(AccessibilityCustomAction, WithoutAHandlerActivatingDoesNothing) {
  const AccessibilityCustomAction action("Choose", nullptr);
  EXPECT_NO_THROW(action.activate());
}

TEST(AccessibilityElement, StartsWithoutTextsTraitsAndActions) {
  const AccessibilityElement element;
  EXPECT_EQ(element.frame, Rect());
  EXPECT_EQ(element.label + element.value + element.hint, "");
  EXPECT_EQ(element.traits, AccessibilityTraits::none);
  EXPECT_TRUE(element.customActions.empty());
}

TEST(Announcements, GoToTheSinkInPlace) {
  std::vector<std::string> heard;
  {
    const ScopedAnnouncementSink sink([&](const std::string& text) { heard.push_back(text); });
    Announcements::post("Mar 25, 2024");
    {
      const ScopedAnnouncementSink silence(nullptr);
      Announcements::post("nobody hears this");
    }
    Announcements::post("Mar 26, 2024");
  }
  Announcements::post("nobody hears this either");
  EXPECT_EQ(heard, (std::vector<std::string>{"Mar 25, 2024", "Mar 26, 2024"}));
}

TEST(Announcements, ASinkMayReplaceItself) {
  std::string heard;
  const ScopedAnnouncementSink sink([&](const std::string& text) {
    Announcements::setSink(nullptr);
    heard += text;
  });
  Announcements::post("once");
  Announcements::post("twice");
  EXPECT_EQ(heard, "once");
}

}  // namespace
}  // namespace velmora
