/// The one exception of the stills library, and the bounds that keep hostile worlds in check.
#pragma once

#include <chrono>
#include <cstddef>
#include <stdexcept>
#include <string>

namespace orvane::stills {

/// What is wrong, as "file:line: message" where a place in a file is to blame.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What reading and running a world may take.
struct Limits {
  double seconds = 30;  ///< for reading and for all scripts together, > 0
  std::size_t bytes = std::size_t{1024}
                      << 20;  ///< for the scene, and as much again for its scripts
};

/// Keeps account of what a world takes; whoever goes over a limit raises an Error.
class Budget {
 public:
  explicit Budget(const Limits& limits)
      : m_limits(limits),
        m_deadline(Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                      std::chrono::duration<double>(limits.seconds))) {}

  std::size_t Bytes() const { return m_limits.bytes; }
  bool IsLate() const { return Clock::now() > m_deadline; }

  /// Raises an Error once the time is up. Cheap enough for a loop: the clock is read now and then.
  void CheckTime() {
    if (m_isUp || (++m_steps % 256 == 0 && IsLate())) {
      m_isUp = true;
      throw Error("the world takes longer than " + std::to_string(int(m_limits.seconds)) +
                  " s to read and to run");
    }
  }

  void Take(std::size_t bytes) {
    m_taken += bytes;
    if (m_taken > m_limits.bytes) {
      throw Error("the world takes more than " + std::to_string(m_limits.bytes >> 20) +
                  " MB of memory");
    }
  }

  void GiveBack(std::size_t bytes) { m_taken -= bytes; }

 private:
  using Clock = std::chrono::steady_clock;

  Limits m_limits;
  Clock::time_point m_deadline;
  std::size_t m_taken = 0;
  unsigned m_steps = 0;
  bool m_isUp = false;
};

}  // namespace orvane::stills
