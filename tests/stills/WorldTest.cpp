/// Worlds read and run without a browser: what reaches the eye, and what hostile worlds come to.
#include "stills/Still.h"
#include "stills/output/Model.h"
#include "stills/output/Picture.h"

#include <algorithm>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace orvane::stills {
namespace {

World Read(const std::string& body) {
  Options options;
  options.limits = {0.5, std::size_t{64} << 20};
  return World::Parse("#VRML V2.0 utf8\n" + body, "w.wrl", options);
}

std::string Script(const std::string& code) {
  return "DEF S Script { directOutput TRUE field SFNode g Group { } eventOut MFVec3f p eventOut "
         "SFTime t "
         "eventIn SFTime back url \"javascript:\n function initialize() {\n" +
         code + " }\" }";
}

struct Broken {
  const char* name;
  std::string world;
  const char* error;
};
std::ostream& operator<<(std::ostream& out, const Broken& row) { return out << row.name; }

class BrokenWorld : public testing::TestWithParam<Broken> {};

TEST_P(BrokenWorld, EndsWithAnErrorThatSaysWhatIsWrong) {
  try {
    Read(GetParam().world).From("");
    FAIL() << "no error";
  } catch (const Error& error) {
    EXPECT_NE(std::string(error.what()).find(GetParam().error), std::string::npos) << error.what();
  }
}

std::string Doubling(const std::string& first, const std::string& step) {
  std::string text = first;
  for (int i = 1; i < 60; ++i) {
    std::string next = step;
    for (auto at = next.find('%'); at != std::string::npos; at = next.find('%'))
      next.replace(at, 1, std::to_string(i));
    for (auto at = next.find('@'); at != std::string::npos; at = next.find('@'))
      next.replace(at, 1, std::to_string(i - 1));
    text += next;
  }
  return text;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BrokenWorld,
    testing::Values(
        Broken{"unknown field", "Group {\n childern [ ] }",
               "w.wrl:3: Group has no field \"childern\""},
        Broken{"missing PROTO file", "EXTERNPROTO X [ ] \"gone.wrl\"\nX { }",
               "w.wrl:2: there is no PROTO X"},
        Broken{"index without a point",
               "Shape { geometry IndexedFaceSet { coordIndex [ 0 1 2 ] coord "
               "Coordinate { point 0 0 0 } } }",
               "w.wrl:2: coordIndex"},
        Broken{"error in a script", Script("var a;\n a.b = 1;"), "w.wrl:5: TypeError"},
        Broken{"loop", Script("while (true) {}"), "takes longer"},
        Broken{"loop without a condition", Script("for (;;) ;"), "takes longer"},
        Broken{"loop behind a function", Script("for (var f = function () { 1; }; ; ) ;"),
               "takes longer"},
        Broken{"loop that is caught", Script("for (;;) try { for (;;) {} } catch (e) {}"),
               "takes longer"},
        Broken{"calls without end",
               Script("function f(n) { if (n) { f(n - 1); f(n - 1); } } f(99);"), "takes longer"},
        Broken{"recursion", Script("function f() { return f() + 1; } f();"), "callstack"},
        Broken{"terabyte", Script("p.length = 1e12;"), "w.wrl:4: RangeError"},
        Broken{"points that never end", Script("for (var i = 0; ; ++i) p[i] = new SFVec3f();"),
               " take"},
        Broken{"nodes that never end",
               Script("for (;;) g.addChildren = Browser.createVrmlFromString('Group { }');"),
               "the world takes"},
        Broken{"events that never end",
               Script("t = 1; } function eventsProcessed() { t = 1; } function back() {") +
                   " ROUTE S.t TO S.back",
               "takes longer"},
        Broken{
            "file",
            Script("Browser.createVrmlFromString('EXTERNPROTO X [ ] \\\"/etc/passwd\\\" X { }');"),
            "there is no PROTO X"},
        Broken{"text as script", Script("(function () {}).constructor('1');"),
               "may not make scripts"},
        Broken{"PROTOs that double",
               Doubling("PROTO A0 [ ] { Group { } }",
                        "PROTO A% [ ] { Group { children [ A@ { } A@ { } ] } }") +
                   "A59 { }",
               "the world takes"},
        Broken{"USEs that double",
               Doubling("DEF G0 Group { }", "DEF G% Group { children [ USE G@ USE G@ ] }"),
               "takes longer"},
        Broken{"node within itself", "DEF G Group { children USE G }", "within itself"}));

/// A PROTO whose script makes a square of a size that comes through IS, and again when it is set.
constexpr const char* kSquare = R"(
PROTO Square [ exposedField SFFloat size 1 exposedField SFColor color 1 0 0 ] {
  Shape {
    appearance Appearance { material Material { diffuseColor 0 0 0 emissiveColor IS color } }
    geometry DEF F IndexedFaceSet { coord DEF C Coordinate { } coordIndex [ 0 1 2 3 ] }
  }
  DEF Store CylinderSensor { offset IS size }
  DEF S Script {
    field SFNode store USE Store
    eventIn SFFloat set_size
    eventOut MFVec3f points
    url "javascript:
      function initialize() { set_size(store.offset); }
      function set_size(s) {
        var p = new MFVec3f();
        p.length = 4;
        for (var i = 0; i < 4; ++i) p[i] = new SFVec3f(i % 3 ? s : -s, i > 1 ? s : -s, 0);
        points = p;
      }"
  }
  ROUTE Store.offset_changed TO S.set_size
  ROUTE S.points TO C.set_point
}
)";

TEST(World, PassesEventsThroughScriptsAndProtosToTheShape) {
  World world = Read(std::string(kSquare) + R"(
    DEF Q Square { size 2 }
    DEF Setter Script { eventOut SFFloat size
      url "javascript: function initialize() { size = new SFNode('Sphere { radius 3 }').radius; }" }
    ROUTE Setter.size TO Q.size
    Switch { choice Square { } } Shape { geometry Box { } appearance Appearance { material Material { transparency 1 } } })");
  const Still still = world.From("");
  ASSERT_EQ(still.parts.size(), 1U) << "what is switched off or invisible is left out";
  EXPECT_EQ(still.parts[0].mesh->points[2], (Vec3{3, 3, 0}));
  EXPECT_EQ(still.parts[0].mesh->indices.size(), 6U);
}

TEST(World, IsDrawnWithDepthTransparencyAndBillboardsTowardsTheViewer) {
  World world = Read(std::string(kSquare) + R"(
    NavigationInfo { headlight FALSE } Background { skyColor 0 0 1 }
    Viewpoint { position 10 0 0 orientation 0 1 0 1.5708 description "Side" }
    Billboard { axisOfRotation 0 0 0 children Square { } }
    Transform { translation 2 0 0 rotation 0 1 0 1.5708 scale 0.5 0.5 0.5 children Shape {
      appearance Appearance { material Material { diffuseColor 0 0 0 emissiveColor 0 1 0 transparency 0.5 } }
      geometry IndexedFaceSet { solid FALSE coord Coordinate { point [ -1 -1 0, 0 -1 0, 0 1 0, -1 1 0 ] } coordIndex [ 0 1 2 3 ] } } })");
  PictureSize size;
  size.width = size.height = 100;
  const Picture picture = Draw(world.From("side"), size);
  const auto at = [&picture](int x) {
    return std::vector<int>(&picture.pixels[static_cast<std::size_t>(4 * (5000 + x))],
                            &picture.pixels[static_cast<std::size_t>(4 * (5000 + x) + 4)]);
  };
  EXPECT_EQ(at(2), (std::vector<int>{0, 0, 255, 255})) << "sky";
  EXPECT_EQ(std::max(at(47), at(53)), (std::vector<int>{255, 0, 0, 255}))
      << "the square faces the viewer";
  EXPECT_EQ(std::min(at(47), at(53)), (std::vector<int>{128, 128, 0, 255}))
      << "and is seen through the pane";
}

TEST(World, BecomesAModelWithNamesAndCameras) {
  World world = Read(std::string(kSquare) + "Viewpoint { description \"Near\" } Square { }");
  const std::string glb = Glb(world, "", {});
  EXPECT_EQ(glb.substr(0, 4), "glTF");
  for (const char* part : {"\"name\":\"Square\"", "\"name\":\"Near\"", "KHR_materials_unlit"}) {
    EXPECT_NE(glb.find(part), std::string::npos) << part;
  }
}

}  // namespace
}  // namespace orvane::stills
