/// Relative paths between folders, and what cannot have one.

#include "support/Raises.h"

#include "orvane/control/MakeRelativePath.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

struct Way {
  const char* source;
  const char* dest;
  const char* path;  ///< Or why there is none.
};

constexpr Way kWays[] = {
    {R"(C:\Out\)", R"(C:\Protos\)", R"(..\Protos\)"},
    {R"(C:\Web\Charts\2024\)", R"(C:\Web\Protos\)", R"(..\..\Protos\)"},
    {R"(C:\A)", R"(C:\A\P)", R"(P\)"},
    {R"(C:\A\B\)", R"(C:\A\)", R"(..\)"},
    {R"(C:\A\B\)", R"(C:\A\B\)", ""},
    {R"(C:\a\)", R"(C:\A\p\)", R"(..\A\p\)"},
    {R"(C:\Prot\)", R"(C:\Protos\)", R"(..\Protos\)"},
    // Root directories, with and without their backslash.
    {R"(C:\)", R"(C:\)", ""},
    {R"(C:\)", R"(C:\A\B\C)", R"(A\B\C\)"},
    // Up, down, and both.
    {R"(C:\A)", R"(C:\A\)", ""},
    {R"(C:\A\B\C)", R"(C:\A\D\E\F)", R"(..\..\D\E\F\)"},
    // Segments that are prefixes of others.
    {R"(C:\Protos)", R"(C:\Prot)", R"(..\Prot\)"},
    {R"(C:\AB)", R"(C:\A\B)", R"(..\A\B\)"},
    // Other characters; only the backslash parts segments, and no segment has a meaning.
    {R"(C:\Größe\x)", R"(C:\Größe\ÿ)", R"(..\ÿ\)"},
    {R"(C:\a/b)", R"(C:\a/c)", R"(..\a/c\)"},
    {R"(C:\A\..)", R"(C:\B)", R"(..\..\B\)"},
    {R"(C:\A\\B)", R"(C:\A\\C)", R"(..\C\)"},
    {R"(C:A)", R"(C:B)", R"(..\C:B\)"},
};

TEST(MakeRelativePath, LeadsFromOneFolderToTheOther) {
  for (const auto& [source, dest, path] : kWays) {
    EXPECT_EQ(MakeRelativePath(source, dest), path) << source << " to " << dest;
  }
}

TEST(MakeRelativePath, RefusesWhatHasNoDriveOrAnother) {
  const char* const source = "Invalid source drive";
  const char* const dest = "Invalid destination drive";
  const char* const match = "Source and destination drives must match";
  const Way refused[] = {
      {"", R"(C:\)", source},
      {R"(C:\)", "", dest},
      {":", R"(C:\)", source},
      {R"(C:\)", R"(\)", dest},
      {R"(C:\)", R"(\\server\share)", dest},
      {"/srv/out", "/srv/protos", source},
      {R"(C:\)", R"(D:\)", match},
      {R"(C:\A)", R"(c:\A)", match},
  };
  for (const Way& way : refused) {
    EXPECT_EQ(tests::ErrorOf([&] { MakeRelativePath(way.source, way.dest); }),
              tests::ComponentError(std::string("Error making relative path : ") + way.path))
        << way.source << " to " << way.dest;
  }
}

}  // namespace
}  // namespace orvane
