/// Late binding: what a scripting host may hand in, and what it is told when it may not.

#include "support/Raises.h"

#include "orvane/automation/Describe.h"

#include <functional>
#include <limits>

#include <gtest/gtest.h>

namespace orvane::host {

enum class Fruit : std::int32_t { APPLE = 0, PEAR = 1 };

template <>
const EnumInfo& Enumeration<Fruit>() {
  static const EnumInfo info("Fruit", {{"APPLE", 0}, {"PEAR", 1}});
  return info;
}

namespace {

using tests::ErrorOf;
using tests::Raised;

/// One member of every type that crosses.
class Basket final : public Object {
 public:
  static constexpr const char* kClassName = "Basket";
  const TypeInfo& Type() const override {
    static const TypeInfo type =
        Describe<Basket>("Holds one value of every type.")
            .Property<bool>("Open", &Basket::Open, &Basket::Open, {})
            .Property<std::int16_t>("Count", &Basket::Count, &Basket::Count, {})
            .Color("Color", &Basket::Color, &Basket::Color, {})
            .Property<float>("Weight", &Basket::Weight, &Basket::Weight, {})
            .Property<std::string>("Label", &Basket::Label, &Basket::Label, {})
            .Property<Fruit>("Kind", &Basket::Kind, &Basket::Kind, {})
            .Property<std::string>("Maker", &Basket::Maker, {})
            .Method("Sum", &Basket::Sum, {"a", {"b", 10}}, {})
            .Method("Take", &Basket::Take, {"other"}, {})
            .Indexed<float>("Item", &Basket::Item, &Basket::Item, {})
            .Event("Filled", &Basket::Filled, {"count"}, "A let of Count");
    return type;
  }

  bool Open() const { return m_open; }
  void Open(bool open) { m_open = open; }
  std::int16_t Count() const { return m_count; }
  void Count(std::int16_t count) {
    m_count = count;
    Filled(count);
  }
  host::Event<std::int16_t> Filled;
  std::int32_t Color() const { return m_color; }
  void Color(std::int32_t color) { m_color = color; }
  float Weight() const { return m_weight; }
  void Weight(float weight) { m_weight = weight; }
  std::string Label() const { return m_label; }
  void Label(const std::string& label) { m_label = label; }
  Fruit Kind() const { return m_kind; }
  void Kind(Fruit kind) { m_kind = kind; }
  std::string Maker() const { return "us"; }
  std::int32_t Sum(std::int32_t a, std::int32_t b) const { return a + b; }
  void Take(const std::shared_ptr<Basket>& other) { m_count = other->m_count; }
  float Item(std::int32_t index) const { return m_items.at(static_cast<std::size_t>(index)); }
  void Item(std::int32_t index, float value) {
    m_items.at(static_cast<std::size_t>(index)) = value;
  }

 private:
  bool m_open = false;
  std::int16_t m_count = 0;
  std::int32_t m_color = 0;
  float m_weight = 0;
  std::string m_label;
  Fruit m_kind = Fruit::APPLE;
  std::array<float, 3> m_items{};
};

TEST(LateBinding, ConvertsWhatItAccepts) {
  const struct {
    const char* member;
    Value in, out;
  } cases[] = {
      {"open", true, true},
      {"OPEN", 2, true},
      {"Open", "False", false},
      {"Count", 2.5, 2},
      {"Count", 3.5, 4},
      {"Count", -2.5, -2},
      {"Count", 32767, 32767},
      {"Count", -32768, -32768},
      {"Count", true, -1},
      {"Count", "12", 12},
      {"Weight", 0.5, 0.5F},
      {"Weight", "1e3", 1000.0F},
      {"Color", 16777215.0, 16777215},
      {"Color", "#12aBff", 0xFFAB12},
      {"Label", 2024, "2024"},
      {"Label", 0.25, "0.25"},
      {"Kind", "pear", 1},
      {"Kind", 7, 7},
      {"Kind", "1", 1},
  };
  for (const auto& [member, in, out] : cases) {
    const auto basket = std::make_shared<Basket>();
    basket->Let(member, in);
    EXPECT_EQ(basket->Get(member), out) << member << " := " << in.Describe();
  }
}

TEST(LateBinding, SaysWhatIsWrongAndChangesNothing) {
  const auto basket = std::make_shared<Basket>();
  Basket& o = *basket;
  o.Count(5);
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  using enum ErrorNumber;
  const struct {
    std::function<void()> call;
    ErrorNumber number;
    const char* message;
  } cases[] = {
      {[&] { o.Get("Colour"); }, UnknownMember, "Basket has no member \"Colour\""},
      {[&] { o.Get(99); }, UnknownMember, "Basket has no member number 99"},
      {[&] { o.Let("Count", 32768); }, Overflow,
       "Overflow: Basket.Count: 32768 is not in the range [-32768..32767]"},
      {[&] { o.Let("Count", kNaN); }, Overflow,
       "Overflow: Basket.Count: nan is not in the range [-32768..32767]"},
      {[&] { o.Let("Weight", 1e39); }, Overflow,
       "Overflow: Basket.Weight: 1e+39 does not fit a 32-bit float"},
      {[&] { o.Let("Weight", kInfinity); }, Overflow,
       "Overflow: Basket.Weight: inf does not fit a 32-bit float"},
      {[&] { o.Let("Weight", "heavy"); }, TypeMismatch,
       "Type mismatch: Basket.Weight expects a number, got String \"heavy\""},
      {[&] { o.Let("Kind", "FIG"); }, TypeMismatch,
       "Type mismatch: Basket.Kind expects one of APPLE PEAR, got String \"FIG\""},
      {[&] { o.Let("Color", "#12345"); }, TypeMismatch,
       "Type mismatch: Basket.Color expects a colour (#rrggbb), got String \"#12345\""},
      {[&] { (void)o.Subscribe("Color", {}); }, UnknownMember, "Basket has no event \"Color\""},
      {[&] { o.Unsubscribe(1); }, NoSubscription, "Basket has no subscription 1"},
      {[&] { o.Let("Label", o.Self()); }, TypeMismatch,
       "Type mismatch: Basket.Label expects a String, got an object of class Basket"},
      {[&] { o.Call("Take", {3}); }, TypeMismatch,
       "Type mismatch: argument 1 (other) of Basket.Take expects an object of class Basket, got "
       "number 3"},
      {[&] { o.Let("Maker", "them"); }, ReadOnlyProperty, "Basket.Maker is read-only"},
      {[&] { o.Let("Sum", 1); }, ReadOnlyProperty, "Basket.Sum is a method"},
      {[&] { o.Call("Sum"); }, WrongArgumentCount, "Basket.Sum takes 1 to 2 argument(s), got 0"},
      {[&] {
         o.Call("Sum", {1, 2, 3});
       },
       WrongArgumentCount, "Basket.Sum takes 1 to 2 argument(s), got 3"},
      {[&] { o.Let("Item", 1.0); }, WrongArgumentCount, "Basket.Item takes 2 argument(s), got 1"},
  };
  for (const auto& [call, number, message] : cases) {
    EXPECT_EQ(ErrorOf(call), (Raised{number, message}));
    EXPECT_EQ(o.Count(), 5);
    EXPECT_EQ(o.Weight(), 0);
  }
}

TEST(LateBinding, FillsOptionalArgumentsAndIndexes) {
  const auto basket = std::make_shared<Basket>();
  EXPECT_EQ(basket->Call("Sum", {1}), Value(11));
  EXPECT_EQ(basket->Call("Sum", {1, 2}), Value(3));
  basket->Let("Item", {2, 1.5});
  EXPECT_EQ(basket->Get("Item", {2}), Value(1.5F));
  const int id = basket->Type().IdOf("count");
  basket->Let(id, 9);
  EXPECT_EQ(basket->Get(id), Value(9));
}

TEST(LateBinding, CallsHandlersUntilTheyAreUnsubscribedAndPassesTheirErrorsOn) {
  const auto basket = std::make_shared<Basket>();
  std::vector<Value> heard;
  const int all = basket->Subscribe("FILLED", [&](Object::Arguments arguments) {
    heard.insert(heard.end(), arguments.begin(), arguments.end());
  });
  const int strict = basket->Subscribe("Filled", [](Object::Arguments arguments) {
    Require(arguments[0] == Value(1), "One at most");
  });
  basket->Let("Count", 1);
  EXPECT_EQ(ErrorOf([&] { basket->Let("Count", 2); }), tests::ComponentError("One at most"));
  basket->Unsubscribe(strict);
  basket->Let("Count", 3);
  basket->Unsubscribe(all);
  basket->Let("Count", 4);
  EXPECT_EQ(heard, (std::vector<Value>{1, 2, 3}));
}

}  // namespace
}  // namespace orvane::host
