/// Worlds of whatever origin: each is seen, drawn and turned into models, or is a complaint.
#include "Fuzz.h"
#include "stills/Still.h"
#include "stills/output/Model.h"
#include "stills/output/Picture.h"

#include <string>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orvane;
  stills::Options options;
  options.limits = {2, std::size_t{64} << 20};
  try {
    auto world = stills::World::Parse("#VRML V2.0 utf8\n" + std::string(fuzz::Text(data, size)),
                                      "world.wrl", options);
    world.Turn(0.25F);
    const auto still = world.From("");
    stills::PictureSize small;
    small.width = small.height = 40;
    const auto picture = stills::Draw(still, small);
    fuzz::Require(picture.pixels.size() == 40 * 40 * 4, "a picture has the size asked for");
    stills::Glb(world, "", {});
    stills::Stl(still, {});
  } catch (const stills::Error& error) {
    fuzz::Require(*error.what() != '\0', "a complaint says something");
  }
  return 0;
}
