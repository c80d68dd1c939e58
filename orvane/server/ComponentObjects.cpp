#include "orvane/server/ComponentObjects.h"

#include "orvane/automation/AutomationError.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orvane::host {
namespace {

struct Handle : orvane_object {
  std::shared_ptr<Object> object;
  std::uint32_t references = 0;
};

struct ClassHandle : orvane_class {
  std::shared_ptr<Object> (*make)() = nullptr;
  std::uint32_t references = 0;
};

/// Everything that is held outside the library.
struct Held {
  std::unordered_map<const Object*, std::unique_ptr<Handle>> objects;
  std::uint32_t classes = 0;
};

Held& AllHeld() {
  static Held held;
  return held;
}

void RequirePointer(const void* pointer, const char* description) {
  RequireForC(pointer != nullptr, ORVANE_ERROR_POINTER, description);
}

Handle& HandleOf(orvane_object* self) {
  RequirePointer(self, "The object is NULL");
  return static_cast<Handle&>(*self);
}

/// A reference to `object`, at the address that it has had for as long as it is held.
orvane_object* HandOut(const std::shared_ptr<Object>& object);

template <std::size_t N>
void Copy(std::string_view text, char (&array)[N]) {
  auto size = std::min(text.size(), N - 1);
  // A character is copied whole or not at all.
  while (size < text.size() && size > 0 && (text[size] & 0xC0) == 0x80) --size;
  std::copy_n(text.data(), size, array);
  array[size] = '\0';
}

Value ToValue(const orvane_value& value) {
  switch (value.type) {
    case ORVANE_EMPTY:
      return {};
    case ORVANE_BOOLEAN:
      return value.as.boolean != 0;
    case ORVANE_INT32:
      return value.as.int32;
    case ORVANE_SINGLE:
      return value.as.single;
    case ORVANE_DOUBLE:
      return value.as.number;
    case ORVANE_STRING:
      RequirePointer(value.as.string, "The text of an argument is NULL");
      return std::string(value.as.string, value.count);
    case ORVANE_NUMBERS:
      if (value.count == 0) return Value::Numbers();
      RequirePointer(value.as.numbers, "The numbers of an argument are NULL");
      return Value::Numbers(value.as.numbers, value.as.numbers + value.count);
    case ORVANE_OBJECT:
      if (value.as.object == nullptr) return std::shared_ptr<Object>();
      return HandleOf(value.as.object).object;
    default:
      throw AutomationError(static_cast<ErrorNumber>(ORVANE_ERROR_ARGUMENT),
                            "There is no value of type " + std::to_string(value.type));
  }
}

orvane_value ToResult(const Value& value) {
  orvane_value result{};
  if (const auto* boolean = value.If<bool>()) {
    result.type = ORVANE_BOOLEAN;
    result.as.boolean = *boolean ? 1 : 0;
  } else if (const auto* int32 = value.If<std::int32_t>()) {
    result.type = ORVANE_INT32;
    result.as.int32 = *int32;
  } else if (const auto* single = value.If<float>()) {
    result.type = ORVANE_SINGLE;
    result.as.single = *single;
  } else if (const auto* number = value.If<double>()) {
    result.type = ORVANE_DOUBLE;
    result.as.number = *number;
  } else if (const auto* string = value.If<std::string>()) {
    auto* const copy = new char[string->size() + 1];
    std::memcpy(copy, string->c_str(), string->size() + 1);
    result.type = ORVANE_STRING;
    result.count = string->size();
    result.as.string = copy;
  } else if (const auto* numbers = value.If<Value::Numbers>()) {
    auto* const copy = numbers->empty() ? nullptr : new double[numbers->size()];
    std::ranges::copy(*numbers, copy);
    result.type = ORVANE_NUMBERS;
    result.count = numbers->size();
    result.as.numbers = copy;
  } else if (const auto* object = value.If<std::shared_ptr<Object>>()) {
    result.type = ORVANE_OBJECT;
    result.as.object = *object == nullptr ? nullptr : HandOut(*object);
  }
  return result;
}

std::uint32_t AddRef(orvane_object* self) { return ++static_cast<Handle*>(self)->references; }

std::uint32_t Release(orvane_object* self) {
  auto* const handle = static_cast<Handle*>(self);
  if (--handle->references > 0) return handle->references;
  // The object itself goes last: what goes with it may be looked up meanwhile.
  const auto object = std::move(handle->object);
  AllHeld().objects.erase(object.get());
  return 0;
}

const char* ClassName(orvane_object* self) {
  return static_cast<Handle*>(self)->object->Type().Name().c_str();
}

orvane_status GetIdOfName(orvane_object* self, const char* name, int32_t* id, orvane_error* error) {
  return Guarded(error, [&] {
    RequirePointer(name, "The name of the member is NULL");
    RequirePointer(id, "There is nowhere to put the identifier");
    *id = HandleOf(self).object->Type().IdOf(name);
  });
}

Value Access(Object& object, int32_t id, int32_t access, const std::vector<Value>& arguments) {
  switch (access) {
    case ORVANE_CALL:
    case ORVANE_GET:
      return object.Get(id, arguments);
    case ORVANE_LET:
      object.Let(id, arguments);
      return {};
    default:
      throw AutomationError(static_cast<ErrorNumber>(ORVANE_ERROR_ARGUMENT),
                            "There is no access " + std::to_string(access));
  }
}

orvane_status Invoke(orvane_object* self, int32_t id, int32_t access, const orvane_value* arguments,
                     size_t count, orvane_value* result, orvane_error* error) {
  orvane_value made{};
  const auto status = Guarded(error, [&] {
    if (count > 0) RequirePointer(arguments, "The arguments are NULL");
    std::vector<Value> values;
    values.reserve(count);
    for (size_t i = 0; i < count; ++i) values.push_back(ToValue(arguments[i]));
    // Released by its own method, the object lives until that is done.
    const auto object = HandleOf(self).object;
    const Value value = Access(*object, id, access, values);
    if (result != nullptr) made = ToResult(value);
  });
  if (result != nullptr) *result = made;
  return status;
}

void ClearValue(orvane_value* result) {
  if (result == nullptr) return;
  if (result->type == ORVANE_STRING) delete[] result->as.string;
  if (result->type == ORVANE_NUMBERS) delete[] result->as.numbers;
  if (result->type == ORVANE_OBJECT && result->as.object != nullptr) Release(result->as.object);
  *result = {};
}

/// Values that a C function reads while this lives.
class Lent {
 public:
  explicit Lent(Object::Arguments values) {
    m_values.reserve(values.size());
    for (const Value& value : values) m_values.push_back(ToResult(value));
  }
  Lent(const Lent&) = delete;
  Lent& operator=(const Lent&) = delete;
  ~Lent() {
    for (orvane_value& value : m_values) ClearValue(&value);
  }

  const std::vector<orvane_value>& Values() const { return m_values; }

 private:
  std::vector<orvane_value> m_values;
};

/// Calls `handler`, and raises the error that it returns.
void CallHandler(orvane_handler handler, void* context, Object::Arguments arguments) {
  const Lent lent(arguments);
  orvane_error error{};
  const auto status = handler(context, lent.Values().data(), lent.Values().size(), &error);
  if (status == ORVANE_OK) return;
  error.source[sizeof error.source - 1] = error.description[sizeof error.description - 1] = '\0';
  throw AutomationError(static_cast<ErrorNumber>(status), error.description, error.source);
}

orvane_status Subscribe(orvane_object* self, const char* event, orvane_handler handler,
                        void* context, int32_t* subscription, orvane_error* error) {
  return Guarded(error, [&] {
    RequirePointer(event, "The name of the event is NULL");
    RequireForC(handler != nullptr, ORVANE_ERROR_POINTER, "The handler is NULL");
    RequirePointer(subscription, "There is nowhere to put the subscription");
    *subscription = HandleOf(self).object->Subscribe(
        event, [=](Object::Arguments arguments) { CallHandler(handler, context, arguments); });
  });
}

orvane_status Unsubscribe(orvane_object* self, int32_t subscription, orvane_error* error) {
  return Guarded(error, [&] { HandleOf(self).object->Unsubscribe(subscription); });
}

constexpr orvane_object_calls kObjectCalls = {AddRef, Release,    ClassName, GetIdOfName,
                                              Invoke, ClearValue, Subscribe, Unsubscribe};

orvane_object* HandOut(const std::shared_ptr<Object>& object) {
  auto& held = AllHeld().objects;
  auto found = held.find(object.get());
  if (found == held.end()) {
    auto handle = std::make_unique<Handle>();
    handle->calls = &kObjectCalls;
    handle->object = object;
    found = held.emplace(object.get(), std::move(handle)).first;
  }
  AddRef(found->second.get());
  return found->second.get();
}

std::uint32_t AddRefToClass(orvane_class* self) {
  ++AllHeld().classes;
  return ++static_cast<ClassHandle*>(self)->references;
}

std::uint32_t ReleaseClass(orvane_class* self) {
  auto* const handle = static_cast<ClassHandle*>(self);
  --AllHeld().classes;
  const auto references = --handle->references;
  if (references == 0) delete handle;
  return references;
}

orvane_status CreateInstance(orvane_class* self, orvane_object** object, orvane_error* error) {
  return Guarded(error, [&] {
    RequirePointer(object, "There is nowhere to put the object");
    *object = nullptr;
    RequirePointer(self, "The class object is NULL");
    *object = HandOut(static_cast<ClassHandle*>(self)->make());
  });
}

constexpr orvane_class_calls kClassCalls = {AddRefToClass, ReleaseClass, CreateInstance};

orvane_status Fill(orvane_error* error, orvane_status number, std::string_view description,
                   std::string_view source) {
  if (error != nullptr) {
    error->number = number;
    Copy(description, error->description);
    Copy(source, error->source);
  }
  return number;
}

}  // namespace

orvane_class* HandOutClass(std::shared_ptr<Object> (*make)()) {
  auto handle = std::make_unique<ClassHandle>();
  handle->calls = &kClassCalls;
  handle->make = make;
  AddRefToClass(handle.get());
  return handle.release();
}

bool IsAnythingHeld() { return !AllHeld().objects.empty() || AllHeld().classes > 0; }

orvane_status StatusOfException(orvane_error* error) noexcept {
  try {
    throw;
  } catch (const AutomationError& raised) {
    return Fill(error, static_cast<orvane_status>(raised.Number()), raised.what(), raised.Source());
  } catch (const std::bad_alloc&) {
    return Fill(error, ORVANE_ERROR_MEMORY, "Out of memory", "Orvane");
  } catch (const std::exception& raised) {
    return Fill(error, ORVANE_ERROR_FAILED, raised.what(), "Orvane");
  } catch (...) {
    return Fill(error, ORVANE_ERROR_FAILED, "Unknown failure", "Orvane");
  }
}

}  // namespace orvane::host
