#include "orvane/tables/layout/PieLayout.h"

#include "orvane/components/NumberPicture.h"
#include "orvane/tables/layout/Texts.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace orvane::tables {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

/// Steep enough for the labels in front to stand below the pie and those at the back above it.
constexpr double kAbovePitch = -45 * kDegree;
constexpr double kTopPitch = -75 * kDegree;
constexpr double kFrontPitch = -20 * kDegree;

std::string Percent(double part) {
  if (part > 0 && part < 0.0005) return "< 0.1 %";
  return FormatNumber(static_cast<float>(100 * part), "0.0") + " %";
}

/// A label as seen from `pitch`, so far away that nothing is foreshortened: its middle and extents.
struct Box {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  bool Overlaps(const Box& other) const {
    return std::abs(x - other.x) < (width + other.width) / 2 &&
           std::abs(y - other.y) < (height + other.height) / 2;
  }
};

Box Seen(const PieLabel& label, double textHeight, double pitch) {
  const double z = label.distance * std::sin(label.angle);
  return {label.distance * std::cos(label.angle), label.y * std::cos(pitch) + z * std::sin(pitch),
          TextWidth(label.text, textHeight) + 0.3 * textHeight, 1.1 * textHeight};
}

/// Empties the labels that would run into those of larger slices in one of the views.
void DropCrowdedLabels(const std::vector<PieShare>& shares, PieLayout& layout) {
  std::vector<std::size_t> order(shares.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](auto a, auto b) { return shares[a].part > shares[b].part; });
  constexpr double kPitches[] = {kAbovePitch, kFrontPitch, kTopPitch};
  std::vector<Box> taken[std::size(kPitches)];
  for (const std::size_t i : order) {
    PieLabel& label = layout.labels[i];
    Box boxes[std::size(kPitches)];
    bool isFree = shares[i].part > 0;
    for (std::size_t k = 0; k < std::size(kPitches); ++k) {
      boxes[k] = Seen(label, layout.textHeight, kPitches[k]);
      isFree = isFree && std::none_of(taken[k].begin(), taken[k].end(),
                                      [&](const Box& box) { return box.Overlaps(boxes[k]); });
    }
    if (!isFree) {
      label.text.clear();
      continue;
    }
    for (std::size_t k = 0; k < std::size(kPitches); ++k) taken[k].push_back(boxes[k]);
  }
}

/// Labels that are always shown say how large a part the slice is, those of a slice that is touched
/// its value; which slice it is, the legend says.
void LayOutLabels(const std::vector<PieShare>& shares, const ChartOptions& options,
                  PieLayout& layout) {
  const double text = layout.textHeight;
  double before = 0;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    PieLabel label;
    const bool isShort = options.sliceLabels == SliceLabels::Always;
    label.text = isShort ? Percent(shares[i].part) : Label(shares[i].value);
    label.angle = 2 * std::numbers::pi * (before + shares[i].part / 2);
    before += shares[i].part;
    // A label that is turned about the axis may come to lie in any direction.
    const double sideways = options.useSpinAxis ? 1 : std::abs(std::cos(label.angle));
    const double half = TextWidth(label.text, text) / 2;
    label.distance = 1.08 * layout.radius + sideways * half +
                     0.27 * layout.radius * std::abs(std::sin(label.angle));
    // Low in front and high at the back, so that they keep clear of the pie also when seen from
    // the front.
    label.y = layout.height * (0.5 - 0.5 * std::sin(label.angle));
    layout.labels.push_back(label);
  }
  if (options.sliceLabels == SliceLabels::Always) DropCrowdedLabels(shares, layout);
}

/// To the right of all labels, its middle level with the pie.
void LayOutLegend(const std::vector<PieShare>& shares, PieLayout& layout) {
  for (const PieShare& share : shares) {
    layout.legend.push_back(Label(share.label) + ", " + Percent(share.part));
  }
  const double pitch = 2.2 * layout.radius / static_cast<double>(shares.size());
  layout.legendTextHeight = std::min(layout.textHeight, pitch / kLegendPitch);
  double right = 1.1 * layout.radius;
  for (const PieLabel& label : layout.labels) {
    const double half = TextWidth(label.text, layout.textHeight) / 2;
    right = std::max(right, label.distance * std::cos(label.angle) + half);
  }
  // What is nearer than the legend looks larger.
  layout.placement.legendX = {0, 1.08 * right + layout.textHeight};
  layout.placement.legendY = {0.5, -layout.LegendHeight() / 2};
}

void LayOutTitle(const std::string& title, PieLayout& layout) {
  layout.title = title;
  layout.titleHeight = 1.6 * layout.textHeight;
  if (const double width = TextWidth(title, 1); width > 0) {
    const double fitting = 3 * layout.radius / width;
    layout.titleHeight = std::clamp(fitting, 1.1 * layout.textHeight, layout.titleHeight);
  }
  double back = layout.radius;
  for (const PieLabel& label : layout.labels) {
    back = std::max(back, -label.distance * std::sin(label.angle));
  }
  layout.placement.titleY = {1, 0.27 * layout.radius};
  // Behind the pie, so that it stands above it also when seen from above.
  layout.placement.titleZ = -back - 1.2 * layout.textHeight;
}

Subject SubjectOf(const PieLayout& layout) {
  Subject subject;
  constexpr int kSides = 16;
  for (int i = 0; i < kSides; ++i) {
    const double angle = 2 * std::numbers::pi * i / kSides;
    for (const double y : {0.0, layout.height}) {
      subject.points.push_back(
          {layout.radius * std::cos(angle), y, layout.radius * std::sin(angle)});
    }
  }
  for (const PieLabel& label : layout.labels) {
    const double half = TextWidth(label.text, layout.textHeight) / 2;
    const Point anchor{label.distance * std::cos(label.angle), label.y,
                       label.distance * std::sin(label.angle)};
    subject.signs.push_back({anchor, -half, half, -0.25 * layout.textHeight, layout.textHeight});
  }
  if (!layout.title.empty()) {
    const double half = TextWidth(layout.title, layout.titleHeight) / 2;
    subject.signs.push_back(
        {layout.TitlePlace(), -half, half, -0.25 * layout.titleHeight, layout.titleHeight});
  }
  // Check box, key and text stand side by side.
  double width = 0;
  for (const std::string& text : layout.legend) {
    width = std::max(width, TextWidth(text, layout.legendTextHeight));
  }
  subject.signs.push_back(
      {layout.LegendPlace(), 0, width + 2.3 * layout.legendTextHeight, 0, layout.LegendHeight()});
  return subject;
}

}  // namespace

double PieLayout::LegendHeight() const {
  return kLegendPitch * legendTextHeight * static_cast<double>(legend.size());
}

Point PieLayout::TitlePlace() const {
  return {0, placement.titleY.Of(height), placement.titleZ.value_or(0)};
}

Point PieLayout::LegendPlace() const {
  return {placement.legendX.Of(radius), placement.legendY.Of(height), 0};
}

PieLayout LayOutPie(const std::vector<PieShare>& shares, const ChartOptions& options) {
  // A slice of height 0 is drawn as a plate.
  constexpr double kLeastRise = 0.03;
  PieLayout layout;
  const bool isLevel = std::all_of(shares.begin(), shares.end(),
                                   [](const PieShare& share) { return share.rise == 1; });
  layout.height = (isLevel ? 0.27 : 0.7) * layout.radius;
  for (const PieShare& share : shares) {
    layout.heights.push_back(layout.height * std::max(share.rise, kLeastRise));
  }
  layout.textHeight = 0.12 * layout.radius;
  LayOutLabels(shares, options, layout);
  LayOutLegend(shares, layout);
  LayOutTitle(options.title, layout);
  return layout;
}

std::vector<View> ViewsOf(const PieLayout& layout) {
  const Subject subject = SubjectOf(layout);
  return {ViewOf("Above", kAbovePitch, 0, subject), ViewOf("Front", kFrontPitch, 0, subject),
          ViewOf("Top", kTopPitch, 0, subject)};
}

}  // namespace orvane::tables
