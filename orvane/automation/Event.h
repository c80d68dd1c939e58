/// Synchronous events: what an automation class raises and its owner handles.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvane::host {

/// Keeps a handler connected; destroying it disconnects the handler. It may outlive its event.
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<void> connection) : m_connection(std::move(connection)) {}

 private:
  std::shared_ptr<void> m_connection;
};

/// An event with arguments `A`. Raising it calls every handler, in order of connection, before the
/// call returns.
template <class... A>
class Event {
 public:
  using Handler = std::function<void(A...)>;

  /// Connects `handler` for as long as the returned subscription lives.
  [[nodiscard]] Subscription Connect(Handler handler) {
    auto connection = std::make_shared<Handler>(std::move(handler));
    m_handlers.push_back(connection);
    return Subscription(std::move(connection));
  }

  void operator()(A... arguments) {
    std::erase_if(m_handlers, [](const auto& handler) { return handler.expired(); });
    const auto handlers = m_handlers;  // A handler may connect or disconnect others.
    for (const auto& weak : handlers) {
      if (const auto handler = weak.lock()) (*handler)(arguments...);
    }
  }

 private:
  std::vector<std::weak_ptr<Handler>> m_handlers;
};

}  // namespace orvane::host
