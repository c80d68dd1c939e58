/// A host's own services are used while it keeps them, the platform's otherwise.

#include "support/HostRecorder.h"

#include <gtest/gtest.h>

namespace orvane::host {
namespace {

TEST(HostServices, AreTheHostsOwnWhileItKeepsThem) {
  const auto settings = [] { return Services().settings.InUse(); };
  const auto standard = settings();
  EXPECT_NE(std::dynamic_pointer_cast<UserSettings>(standard), nullptr);
  auto first = std::make_shared<tests::MemorySettings>();
  auto second = std::make_shared<tests::MemorySettings>();
  Services().settings.Use(first);
  Services().settings.Use(second);
  Services().settings->Save("a", "s", "k", "v");
  EXPECT_EQ(second->saved["a/s/k"], "v");
  second.reset();
  EXPECT_EQ(settings(), first);
  first.reset();
  EXPECT_EQ(settings(), standard);
}

TEST(HostServices, WriteMessagesToStandardErrorWhereNobodyShowsThem) {
  testing::internal::CaptureStderr();
  Services().messages->Show("The text.", MessageIcon::Exclamation, "Title");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Title: The text.\n");
  const tests::HostRecorder recorder;
  testing::internal::CaptureStderr();
  Services().messages->Show("The text.", MessageIcon::Exclamation, "Title");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(recorder.messages->shown, std::vector<std::string>{"48 Title: The text."});
}

}  // namespace
}  // namespace orvane::host
