/// What late binding costs: a let of a number by identifier against the same let early bound. It
/// may take 20 times as long and must allocate nothing. A let by name is printed beside it.

#include "Rounds.h"

#include "orvane/components/TextInfo.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>

namespace {

std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

constexpr int kLets = 200'000;
constexpr int kRounds = 25;
constexpr double kLimit = 20;

}  // namespace

int main() {
  using namespace orvane;
  const auto text = std::make_shared<TextInfo>();
  const std::string_view name = "TextHeight";
  const int id = text->Type().IdOf(name);

  // The numbers differ and each let writes into the scene behind a library's boundary, so that none
  // can be left out.
  const auto number = [](int i) { return 1 + static_cast<float>(i % 8) / 8; };
  const auto early = [&] {
    for (int i = 0; i < kLets; ++i) text->TextHeight(number(i));
  };
  const auto byId = [&] {
    for (int i = 0; i < kLets; ++i) text->Let(id, number(i));
  };
  const auto byName = [&] {
    for (int i = 0; i < kLets; ++i) text->Let(name, number(i));
  };

  const std::size_t before = allocations;
  byId();
  const std::size_t idAllocations = allocations - before;
  byName();
  const std::size_t nameAllocations = allocations - before - idAllocations;

  const auto [earlyBest, idBest] = bench::BestOf(kRounds, early, byId);
  const auto [sameEarlyBest, nameBest] = bench::BestOf(kRounds, early, byName);
  const auto print = [](const char* what, double best) {
    std::printf("%-22s %6.2f ns a let\n", what, 1e6 * best / kLets);
  };
  print("early bound", earlyBest);
  print("by identifier", idBest);
  std::printf("  allocations: %zu\n", idAllocations);
  print("by name", nameBest);
  std::printf("  allocations: %zu, ratio %.1f\n", nameAllocations, nameBest / sameEarlyBest);
  const int judgement = bench::Judge(idBest / earlyBest, kLimit);
  return idAllocations == 0 ? judgement : 1;
}
