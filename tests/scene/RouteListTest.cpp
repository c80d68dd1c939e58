/// ROUTEs are held against the interfaces of the nodes that they join.

#include "support/Raises.h"

#include "orvane/scene/GroupingNodes.h"
#include "orvane/scene/RouteList.h"
#include "orvane/scene/SensorNodes.h"
#include "orvane/scene/UiProtos.h"
#include "orvane/scene/frmMain.h"

#include <gtest/gtest.h>

namespace orvane::scene {
namespace {

using host::ErrorNumber;
using tests::ErrorOf;
using tests::Raised;

TEST(RouteList, TakesEventsAndWhatExposedFieldsImply) {
  RouteList routes;
  const auto box = Create<CheckBox>();
  const auto toggle = Create<ContentToggle>();
  const auto timer = Create<TimeSensor>();
  const auto mover = Create<CoordinateInterpolator>();
  routes.AddRoute(box, "value_changed", toggle, "set_contentsExist");
  routes.AddRoute(toggle, "contentsExist_changed", toggle, "contentsExist");
  routes.AddRoute(timer, "fraction_changed", mover, "set_fraction");
  EXPECT_EQ(routes.Routes().size(), 3U);
}

TEST(RouteList, RefusesWhatABrowserWould) {
  RouteList routes;
  const auto box = Create<CheckBox>();
  const auto toggle = Create<ContentToggle>();
  const auto timer = Create<TimeSensor>();
  EXPECT_EQ(ErrorOf([&] { routes.AddRoute(box, "clicked", toggle, "set_contentsExist"); }),
            (Raised{ErrorNumber::UnknownEvent, "qm4_CheckBox has no eventOut \"clicked\""}));
  EXPECT_EQ(ErrorOf([&] { routes.AddRoute(box, "value_changed", toggle, "set_value"); }),
            (Raised{ErrorNumber::UnknownEvent, "qm4_ContentToggle has no eventIn \"set_value\""}));
  EXPECT_EQ(ErrorOf([&] { routes.AddRoute(timer, "time", toggle, "set_contentsExist"); }),
            (Raised{ErrorNumber::EventTypeMismatch,
                    "TimeSensor.time sends SFTime, qm4_ContentToggle.set_contentsExist takes "
                    "SFBool"}));
  EXPECT_EQ(ErrorOf([&] { routes.AddRoute(nullptr, "time", toggle, "set_contentsExist"); }),
            (Raised{ErrorNumber::NoNode, "A ROUTE leads from a node to a node"}));
  EXPECT_TRUE(routes.Routes().empty());
}

}  // namespace
}  // namespace orvane::scene
