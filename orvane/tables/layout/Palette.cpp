#include "orvane/tables/layout/Palette.h"

#include <array>

namespace orvane::tables {

HostColor SeriesColor(std::size_t index) {
  constexpr HostColor kBlack = 0x000000;
  constexpr HostColor kWhite = 0xFFFFFF;
  // Okabe and Ito, Color Universal Design (2002), in the order in which neighbours differ most,
  // with a dark grey in the place of black, which the outlines have.
  constexpr std::array<HostColor, 8> kColors = {
      0xB27200,  // blue
      0x009FE6,  // orange
      0x739E00,  // bluish green
      0xA779CC,  // reddish purple
      0xE9B456,  // sky blue
      0x005ED5,  // vermilion
      0x42E4F0,  // yellow
      0x5A5A5A,  // dark grey
  };
  const HostColor color = kColors[index % kColors.size()];
  switch (index / kColors.size() % 3) {
    case 1:
      return Mix(color, kBlack, 0.55);
    case 2:
      return Mix(color, kWhite, 0.5);
    default:
      return color;
  }
}

}  // namespace orvane::tables
