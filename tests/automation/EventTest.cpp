/// Events reach who is connected, in order, before the raising call returns.

#include "orvane/automation/Event.h"

#include <gtest/gtest.h>

namespace orvane::host {
namespace {

TEST(Event, ReachesHandlersInOrderUntilTheirSubscriptionEnds) {
  std::vector<int> heard;
  Event<int> event;
  auto first = event.Connect([&](int n) { heard.push_back(n); });
  {
    const auto second = event.Connect([&](int n) { heard.push_back(-n); });
    event(1);
  }
  event(2);
  first = {};
  event(3);
  EXPECT_EQ(heard, (std::vector<int>{1, -1, 2}));
}

TEST(Event, SurvivesAHandlerThatDisconnectsAnother) {
  int calls = 0;
  Subscription second, third;
  {
    Event<> event;
    const auto first = event.Connect([&] { second = {}; });
    second = event.Connect([&] { ++calls; });
    third = event.Connect([] {});
    event();
  }
  EXPECT_EQ(calls, 0);
  third = {};  // Behind its event.
}

}  // namespace
}  // namespace orvane::host
