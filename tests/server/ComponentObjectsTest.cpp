/// What crosses the C interface beyond what charts do: objects as arguments, and failures that are
/// no automation errors.

#include "orvane/automation/Describe.h"
#include "orvane/server/ComponentObjects.h"

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

namespace orvane::host {

namespace {

class Sample final : public Object {
 public:
  static constexpr const char* kClassName = "Sample";
  const TypeInfo& Type() const override {
    static const TypeInfo type = Describe<Sample>("For tests.")
                                     .Method("Friend", &Sample::Friend, {"other"}, {"The same"})
                                     .Method("Fail", &Sample::Fail, {"how"}, {"Throws"});
    return type;
  }

  std::shared_ptr<Sample> Friend(std::shared_ptr<Sample> other) const { return other; }
  void Fail(std::int32_t how) const {
    if (how == 0) throw std::bad_alloc();
    if (how == 1) throw std::runtime_error("broken");
    throw how;
  }
};

class Component : public testing::Test {
 protected:
  void SetUp() override {
    orvane_class* factory =
        HandOutClass([]() -> std::shared_ptr<Object> { return std::make_shared<Sample>(); });
    ASSERT_EQ(factory->calls->CreateInstance(factory, &m_object, nullptr), ORVANE_OK);
    factory->calls->Release(factory);
  }
  void TearDown() override {
    EXPECT_EQ(m_object->calls->Release(m_object), 0U);
    EXPECT_FALSE(IsAnythingHeld());
  }
  orvane_status Call(std::int32_t id, orvane_value argument) {
    return m_object->calls->Invoke(m_object, id, ORVANE_CALL, &argument, 1, &m_result, &m_error);
  }

  orvane_object* m_object = nullptr;
  orvane_value m_result{};
  orvane_error m_error{};
};

TEST_F(Component, PassesObjectsAndNoObject) {
  orvane_value other{ORVANE_OBJECT, 0, {}};
  other.as.object = m_object;
  ASSERT_EQ(Call(0, other), ORVANE_OK);
  EXPECT_EQ(m_result.as.object, m_object);
  EXPECT_EQ(m_object->calls->AddRef(m_object), 3U) << "the result has a reference of its own";
  m_object->calls->Release(m_object);
  m_object->calls->ClearValue(&m_result);
  EXPECT_EQ(m_result.type, ORVANE_EMPTY);
  other.as.object = nullptr;
  ASSERT_EQ(Call(0, other), ORVANE_OK);
  EXPECT_EQ(m_result.type, ORVANE_OBJECT);
  EXPECT_EQ(m_result.as.object, nullptr);
}

TEST_F(Component, LetsNoExceptionOut) {
  const std::pair<orvane_status, const char*> failures[] = {
      {ORVANE_ERROR_MEMORY, "Out of memory"},
      {ORVANE_ERROR_FAILED, "broken"},
      {ORVANE_ERROR_FAILED, "Unknown failure"}};
  for (std::int32_t how = 0; how < 3; ++how) {
    orvane_value argument{ORVANE_INT32, 0, {}};
    argument.as.int32 = how;
    EXPECT_EQ(Call(1, argument), failures[how].first);
    EXPECT_EQ(m_error.number, failures[how].first);
    EXPECT_STREQ(m_error.description, failures[how].second);
  }
}

}  // namespace
}  // namespace orvane::host
