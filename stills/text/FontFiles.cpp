#include "stills/text/FontFiles.h"

#include <array>
#include <cstddef>

// One font file as it is, between two names.
#define ORVANE_FONT(name, file)                                                                \
  asm(".pushsection .rodata\n" #name "Begin: .incbin \"" ORVANE_FONT_DIR "/" file "\"\n" #name \
      "End: .byte 0\n.popsection");                                                            \
  extern "C" __attribute__((visibility("hidden"))) const char name##Begin[];                   \
  extern "C" __attribute__((visibility("hidden"))) const char name##End[]

ORVANE_FONT(orvaneSansPlain, "Ubuntu-R.woff2");
ORVANE_FONT(orvaneSansBold, "Ubuntu-B.woff2");
ORVANE_FONT(orvaneSansItalic, "Ubuntu-RI.woff2");
ORVANE_FONT(orvaneSansBoldItalic, "Ubuntu-BI.woff2");
ORVANE_FONT(orvaneSerifPlain, "DroidSerif-Regular.woff2");
ORVANE_FONT(orvaneSerifBold, "DroidSerif-Bold.woff2");
ORVANE_FONT(orvaneSerifItalic, "DroidSerif-Italic.woff2");
ORVANE_FONT(orvaneSerifBoldItalic, "DroidSerif-BoldItalic.woff2");
ORVANE_FONT(orvaneMonoPlain, "UbuntuMono-R.woff2");
ORVANE_FONT(orvaneMonoBold, "UbuntuMono-B.woff2");
ORVANE_FONT(orvaneMonoItalic, "UbuntuMono-RI.woff2");
ORVANE_FONT(orvaneMonoBoldItalic, "UbuntuMono-BI.woff2");

namespace orvane::stills {

std::string_view FontFile(std::string_view family, bool isBold, bool isItalic) {
  struct File {
    const char* begin;
    const char* end;
  };
  static const std::array<File, 12> files = {{
      {orvaneSerifPlainBegin, orvaneSerifPlainEnd},
      {orvaneSerifBoldBegin, orvaneSerifBoldEnd},
      {orvaneSerifItalicBegin, orvaneSerifItalicEnd},
      {orvaneSerifBoldItalicBegin, orvaneSerifBoldItalicEnd},
      {orvaneSansPlainBegin, orvaneSansPlainEnd},
      {orvaneSansBoldBegin, orvaneSansBoldEnd},
      {orvaneSansItalicBegin, orvaneSansItalicEnd},
      {orvaneSansBoldItalicBegin, orvaneSansBoldItalicEnd},
      {orvaneMonoPlainBegin, orvaneMonoPlainEnd},
      {orvaneMonoBoldBegin, orvaneMonoBoldEnd},
      {orvaneMonoItalicBegin, orvaneMonoItalicEnd},
      {orvaneMonoBoldItalicBegin, orvaneMonoBoldItalicEnd},
  }};
  const std::size_t first = family == "SANS" ? 4 : family == "TYPEWRITER" ? 8 : 0;
  const File& file = files[first + (isBold ? 1 : 0) + (isItalic ? 2 : 0)];
  return {file.begin, static_cast<std::size_t>(file.end - file.begin)};
}

}  // namespace orvane::stills
