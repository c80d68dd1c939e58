/// The one exception type of the library and the numbers that its errors carry.
#pragma once

#include "orvane/automation/Export.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace orvane::host {

/// Every error number that the library raises. The late-binding numbers are those that automation
/// hosts know; 0x80040000 is the components' own; 0x80040201 and up are the scene library's.
enum class ErrorNumber : std::uint32_t {
  Component = 0x80040000,  ///< An argument that a component rejects; the description says why.

  UnknownMember = 0x80020006,
  TypeMismatch = 0x80020005,
  Overflow = 0x8002000A,
  WrongArgumentCount = 0x8002000E,
  DivisionByZero = 0x80020012,
  ReadOnlyProperty = 0x800A017F,
  HandlerFailed = 0x80020009,  ///< A handler of an event ended with an error that has no number.
  FileAccess = 0x800A004B,     ///< A file of the host's that cannot be written.
  PathNotFound = 0x800A004C,   ///< No such folder.

  NoSubscription = 0x80040200,     ///< Unsubscribe of what is not subscribed.
  ListIndex = 0x80040201,          ///< A list index outside 1..Count.
  NodeNotInList = 0x80040202,      ///< Remove of a node that the list does not hold.
  NoNode = 0x80040203,             ///< Nothing where a node is needed.
  NotFinite = 0x80040204,          ///< NaN or infinity for a field.
  OutOfRange = 0x80040205,         ///< A number or colour that VRML97 does not let a field hold.
  UnknownType = 0x80040206,        ///< CreateNode, CreateField, CreateTraverser: no such name.
  InvalidDefName = 0x80040207,     ///< A DEF name that VRML97 cannot write.
  DuplicateDefName = 0x80040208,   ///< Two nodes of one scene with the same DEF name.
  SceneCycle = 0x80040209,         ///< A node that contains itself.
  RouteOutsideScene = 0x8004020A,  ///< A ROUTE end that is not in the scene or has no DEF name.
  UnknownEvent = 0x8004020B,       ///< A ROUTE event that its node does not have.
  EventTypeMismatch = 0x8004020C,  ///< A ROUTE between events of different types.
  SceneTooDeep = 0x8004020D,       ///< More nodes one below the other than can be written.
};

/// What every rejected call throws. The description is meant for people: it says what is wrong and
/// what is allowed.
class ORVANE_API AutomationError : public std::runtime_error {
 public:
  AutomationError(ErrorNumber number, const std::string& description,
                  std::string source = "Orvane");

  ErrorNumber Number() const { return m_number; }
  std::string Description() const { return what(); }
  /// The class that raised the error: "Orvane" for components, "Nodewright" for the scene library.
  const std::string& Source() const { return m_source; }

 private:
  ErrorNumber m_number;
  std::string m_source;
};

/// Raises a component error with `message` unless `accepted`.
ORVANE_API void Require(bool accepted, const char* message);

}  // namespace orvane::host
