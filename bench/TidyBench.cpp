/// How fast a long table becomes a chart: 1,000,000 rows of month, region and amount as an area
/// chart of sums, against `sqlite3 :memory:` that imports the same file and groups it alike. The
/// chart may take 1.5 times as long, in memory that does not go with the rows.

#include "Rounds.h"

#include "orvane/tables/ChartKinds.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include <sys/resource.h>

namespace {

constexpr int kRows = 1'000'000;
constexpr int kRounds = 5;
constexpr double kLimit = 1.5;

void WriteRows(const std::string& path, int rows) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> month(1, 36);
  std::uniform_int_distribution<int> region(0, 7);
  std::uniform_int_distribution<int> cents(-100000, 10000000);
  std::ofstream file(path);
  file << "month,region,amount\n";
  for (int i = 0; i < rows; ++i) {
    const int number = month(random);
    char line[64];
    std::snprintf(line, sizeof line, "%d-%02d,Region %d,%.2f\n", 2021 + (number - 1) / 12,
                  (number - 1) % 12 + 1, region(random), cents(random) / 100.0);
    file << line;
  }
}

std::size_t ChartSize(const std::string& path) {
  using namespace orvane::tables;
  const ChartKind& kind = ChartKindOf("area");
  ChartOptions options;
  options.category = "month";
  options.series = "region";
  options.value = "amount";
  options.aggregate = Aggregate::Sum;
  options.sort = Sort::Label;
  return kind.make(TableFile(path), options).chart->ExportToString(true, true).size();
}

/// Processor time of `command`, in ms.
double MillisecondsOfCommand(const std::string& command) {
  const auto spent = [] {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return 1000.0 * static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000.0;
  };
  const double before = spent();
  if (std::system(command.c_str()) != 0) {
    std::fprintf(stderr, "this does not run: %s\n", command.c_str());
    std::exit(2);
  }
  return spent() - before;
}

/// The most memory that this program had so far, in MB.
double PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

}  // namespace

int main() {
  namespace fs = std::filesystem;
  const fs::path folder = fs::temp_directory_path() / "orvane-bench-tidy";
  fs::create_directories(folder);
  const std::string file = (folder / "million.csv").string();
  const std::string small = (folder / "few.csv").string();
  WriteRows(file, kRows);
  WriteRows(small, kRows / 10);
  const std::string sqlite = "sqlite3 :memory: '.mode csv' '.import " + file +
                             " t' 'select month, region, sum(amount) from t group by 1, 2' > " +
                             (folder / "sums.csv").string();

  ChartSize(small);
  const double smallPeak = PeakMegabytes();
  double chart = 1e9;
  double peer = 1e9;
  std::size_t size = 0;
  for (int round = 0; round < kRounds; ++round) {
    peer = std::min(peer, MillisecondsOfCommand(sqlite));
    chart = std::min(chart, orvane::bench::MillisecondsOf([&] { size = ChartSize(file); }));
  }
  const double peak = PeakMegabytes();
  fs::remove_all(folder);
  std::printf("sqlite3 .import and group by  %8.2f ms\n", peer);
  std::printf("area chart of the sums        %8.2f ms  %zu characters\n", chart, size);
  std::printf("peak memory of 100,000 rows %.1f MB, of 1,000,000 rows %.1f MB\n", smallPeak, peak);
  const int status = orvane::bench::Judge(chart / peer, kLimit);
  return peak > 1.2 * smallPeak ? 1 : status;
}
