#include "stills/scene/ScriptValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace orvane::stills {

namespace {

/// What the numbers of one element are called in a script; null for an element that is a number.
const char* const* PartsOf(FieldType type) {
  static constexpr std::array<const char*, 4> kVector = {"x", "y", "z", "angle"};
  static constexpr std::array<const char*, 3> kColor = {"r", "g", "b"};
  if (type == FieldType::SFColor || type == FieldType::MFColor) return kColor.data();
  return Arity(type) > 1 ? kVector.data() : nullptr;
}

/// The single type of a multiple one.
const char* ElementName(FieldType type) {
  static thread_local std::array<char, 16> name;
  const std::string_view full = NameOf(type);
  *std::copy(full.begin(), full.end(), name.begin()) = '\0';
  name[0] = 'S';
  return name.data();
}

/// Leaves the prototype of a type's objects on the stack.
void PushPrototype(duk_context* context, const char* type) {
  duk_get_global_string(context, type);
  duk_get_prop_string(context, -1, "prototype");
  duk_remove(context, -2);
}

void PushNumbers(duk_context* context, FieldType type, const float* numbers, duk_idx_t prototype) {
  const char* const* parts = PartsOf(type);
  if (!parts) {
    duk_push_number(context, static_cast<double>(numbers[0]));
    return;
  }
  duk_push_object(context);
  duk_dup(context, prototype);
  duk_set_prototype(context, -2);
  for (std::size_t i = 0; i < Arity(type); ++i) {
    duk_push_number(context, static_cast<double>(numbers[i]));
    duk_put_prop_string(context, -2, parts[i]);
  }
}

/// Text that the engine cannot take for a name of its own.
void PushText(duk_context* context, const std::string& text) {
  const bool isOwn = !text.empty() && (text[0] & 0xC0) == 0x80;
  const bool isHidden = !text.empty() && text[0] == '\xFF';
  if (isOwn || isHidden)
    duk_push_string(context, "?");
  else
    duk_push_lstring(context, text.data(), text.size());
}

struct Pusher {
  duk_context* context;
  FieldType type;
  duk_idx_t prototype;
  void (*pushNode)(duk_context*, Node*);

  void operator()(const std::vector<std::int32_t>& list, std::size_t i) const {
    if (type == FieldType::SFBool)
      duk_push_boolean(context, list[i] != 0);
    else
      duk_push_int(context, list[i]);
  }
  void operator()(const std::vector<float>& list, std::size_t i) const {
    PushNumbers(context, type, list.data() + i * Arity(type), prototype);
  }
  void operator()(const std::vector<double>& list, std::size_t i) const {
    duk_push_number(context, list[i]);
  }
  void operator()(const std::vector<std::string>& list, std::size_t i) const {
    PushText(context, list[i]);
  }
  void operator()(const std::vector<Node*>& list, std::size_t i) const {
    pushNode(context, list[i]);
  }
};

/// Takes one element from the top of the stack.
struct Taker {
  duk_context* context;
  FieldType type;
  Node* (*nodeAt)(duk_context*, duk_idx_t);

  double Number(duk_idx_t index) const {
    if (duk_is_undefined(context, index)) return 0;  // a list's element that was never set
    const double number = duk_to_number(context, index);
    if (!std::isfinite(number)) {
      duk_error(context, DUK_ERR_RANGE_ERROR, "a field takes no number that is not finite");
    }
    return number;
  }
  float Single(duk_idx_t index) const {
    constexpr double kMost = 3.4028234e38;
    return static_cast<float>(std::clamp(Number(index), -kMost, kMost));
  }
  void operator()(std::vector<std::int32_t>& list) const {
    if (type == FieldType::SFBool)
      list.push_back(duk_to_boolean(context, -1) ? 1 : 0);
    else
      list.push_back(
          static_cast<std::int32_t>(std::clamp(Number(-1), -2147483648.0, 2147483647.0)));
  }
  void operator()(std::vector<float>& list) const {
    const char* const* parts = PartsOf(type);
    if (!parts) {
      list.push_back(Single(-1));
      return;
    }
    const std::size_t arity = Arity(type);
    if (duk_is_undefined(context, -1)) {
      list.resize(list.size() + arity);
      if (arity == 4) list[list.size() - 2] = 1;  // a rotation by nothing is about z
      return;
    }
    duk_require_object(context, -1);
    for (std::size_t i = 0; i < arity; ++i) {
      duk_get_prop_string(context, -1, parts[i]);
      list.push_back(Single(-1));
      duk_pop(context);
    }
  }
  void operator()(std::vector<double>& list) const { list.push_back(Number(-1)); }
  void operator()(std::vector<std::string>& list) const {
    if (duk_is_undefined(context, -1)) {
      list.emplace_back();
      return;
    }
    duk_size_t size = 0;
    const char* text = duk_to_lstring(context, -1, &size);
    list.emplace_back(text, size);
  }
  void operator()(std::vector<Node*>& list) const { list.push_back(nodeAt(context, -1)); }
};

/// More elements than memory could ever hold are not even begun.
constexpr duk_size_t kMostElements = 20'000'000;

}  // namespace

void PushValue(duk_context* context, FieldType type, const Value& value,
               void (*pushNode)(duk_context*, Node*)) {
  const duk_idx_t base = duk_get_top(context);
  const bool isVector = PartsOf(type) != nullptr;
  if (isVector) PushPrototype(context, ElementName(type));
  const Pusher push{context, type, base, pushNode};
  std::visit(
      [&](const auto& list) {
        if (!IsMultiple(type) && type != FieldType::SFImage) {
          push(list, 0);
          return;
        }
        const duk_idx_t made = duk_push_array(context);
        if (IsMultiple(type)) {
          const std::string name(NameOf(type));  // short: nothing is lost when the engine jumps
          PushPrototype(context, name.c_str());
          duk_set_prototype(context, made);
        }
        const std::size_t count = list.size() / Arity(type);
        for (std::size_t i = 0; i < count; ++i) {
          push(list, i);
          duk_put_prop_index(context, made, static_cast<duk_uarridx_t>(i));
        }
      },
      value);
  if (isVector) duk_remove(context, base);
}

void TakeValue(duk_context* context, duk_idx_t index, FieldType type, Value& value,
               Node* (*nodeAt)(duk_context*, duk_idx_t)) {
  index = duk_normalize_index(context, index);
  value = DefaultOf(type);
  const Taker take{context, type, nodeAt};
  std::visit(
      [&](auto& list) {
        list.clear();
        if (!IsMultiple(type) && type != FieldType::SFImage) {
          duk_dup(context, index);
          take(list);
          duk_pop(context);
          return;
        }
        duk_require_object(context, index);
        const duk_size_t count = duk_get_length(context, index);
        if (count > kMostElements) {
          duk_error(context, DUK_ERR_RANGE_ERROR, "a list of %lu elements is too long",
                    static_cast<unsigned long>(count));
        }
        for (duk_size_t i = 0; i < count; ++i) {
          duk_get_prop_index(context, index, static_cast<duk_uarridx_t>(i));
          take(list);
          duk_pop(context);
        }
      },
      value);
}

void PushFloatText(duk_context* context, duk_idx_t index) {
  index = duk_require_normalize_index(context, index);
  const duk_size_t count = duk_get_length(context, index);
  if (count > kMostElements) duk_error(context, DUK_ERR_RANGE_ERROR, "a list is too long");
  constexpr std::size_t kRoom = 28;
  auto* buffer = static_cast<char*>(duk_push_dynamic_buffer(context, kRoom * (count + 1)));
  std::size_t size = 0;
  for (duk_size_t i = 0; i < count; ++i) {
    duk_get_prop_index(context, index, static_cast<duk_uarridx_t>(i));
    const double number = duk_is_undefined(context, -1) ? 0 : duk_to_number(context, -1);
    duk_pop(context);
    if (i > 0) buffer[size++] = ' ';
    const auto [end, fault] =
        std::to_chars(buffer + size, buffer + size + kRoom - 1, static_cast<float>(number));
    size = static_cast<std::size_t>(end - buffer);
  }
  duk_push_lstring(context, buffer, size);
}

}  // namespace orvane::stills
