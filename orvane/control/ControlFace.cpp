#include "orvane/control/ControlFace.h"

#include <array>
#include <string_view>

namespace orvane {
namespace {

/// A pixel is a character, a row a line: this is the picture to edit.
constexpr std::array<std::string_view, 41> kRows = {
    "##########################################", "#                                        #",
    "#                                        #", "#                                        #",
    "#         :............................  #", "#        :-----------------------------  #",
    "#       :-:............................  #", "#      --::............................  #",
    "#     --:::............................  #", "#    --::::........4444446.............  #",
    "#   --:::::.......44444466.............  #", "#  --:::::-------444444666-------------  #",
    "#  -:::::-:.....5555556666.............  #", "#  ::::--::.....5555556666.............  #",
    "#  :::--:::.....5555556666.............  #", "#  ::--::::.....5555556666.7777779.....  #",
    "#  :--:::::.....555555666677777799.....  #", "#  --:::::------555555666777777999-----  #",
    "#  -:::::-:.....555555668888889999.....  #", "#  ::::--::11111555555668888889999.....  #",
    "#  :::--::111111555555668888889999.....  #", "#  ::--::1111113555555668888889999.....  #",
    "#  :--::22222233555555668888889999.....  #", "#  --:::22222233555555668888889999-----  #",
    "#  -::::22222233555555668888889999.....  #", "#  ::::-22222233555555668888889999.....  #",
    "#  :::--22222233555555668888889999.....  #", "#  ::--:22222233555555668888889999.....  #",
    "#  :--::22222233555555668888889999.....  #", "#  --:::22222233555555668888889999____   #",
    "#  -::::22222233555555668888889999___    #", "#  :::::2222223355555566888888999___     #",
    "#  ::::_222222335555556688888899___      #", "#  :::__2222223_5555556_8888889___       #",
    "#  ::____________________________        #", "#  :____________________________         #",
    "#                                        #", "#                                        #",
    "#                                        #", "#                                        #",
    "##########################################",
};

/// 0xBBGGRR, as everywhere in the object model.
constexpr std::int32_t ColorOf(char pixel) {
  switch (pixel) {
    case ' ':
      return 0xFFFFFF;  // Paper.
    case '#':
      return 0xAEA39A;  // Frame.
    case '.':
      return 0xF6F0EA;  // Back wall.
    case ':':
      return 0xEAE1D8;  // Side wall.
    case '-':
      return 0xCFC2B6;  // Grid lines.
    case '_':
      return 0xDAD0C7;  // Floor.
    case '1':
      return 0xF0C47F;  // The blue column: top, front, side.
    case '2':
      return 0xD08F2E;
    case '3':
      return 0x99621B;
    case '4':
      return 0x8AC9FF;  // Orange.
    case '5':
      return 0x2B8EF2;
    case '6':
      return 0x1A65B8;
    case '7':
      return 0xA0DB9A;  // Green.
    case '8':
      return 0x4DA33F;
    case '9':
      return 0x35732A;
    default:
      return 0;
  }
}

}  // namespace

const host::Picture& ControlFace() {
  static const host::Picture face = [] {
    host::Picture picture{static_cast<std::int32_t>(kRows.front().size()),
                          static_cast<std::int32_t>(kRows.size()),
                          {}};
    for (const auto row : kRows) {
      for (const char pixel : row) picture.pixels.push_back(ColorOf(pixel));
    }
    return picture;
  }();
  return face;
}

}  // namespace orvane
