#include "orvane/components/NumberPicture.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <vector>

namespace orvane {
namespace {

/// Digits d1 d2 d3 ... of the number 0.d1d2d3... x 10^exponent, without sign.
struct Decimal {
  std::string digits;
  int exponent = 0;

  char DigitAt(int place) const {  // place 0 is the first digit behind the point, -1 the units.
    const int index = place + exponent;
    if (index < 0 || index >= static_cast<int>(digits.size())) return '0';
    return digits[static_cast<std::size_t>(index)];
  }

  /// Rounds half away from zero to `decimals` digits behind the point.
  void Round(int decimals) {
    const int kept = exponent + decimals;
    if (kept >= static_cast<int>(digits.size())) return;
    const bool goesUp = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
    digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
    if (!goesUp) return;
    auto digit = digits.rbegin();
    while (digit != digits.rend() && *digit == '9') *digit++ = '0';
    if (digit != digits.rend()) {
      ++*digit;
    } else {
      digits.insert(digits.begin(), '1');
      ++exponent;
    }
  }

  bool IsZero() const { return digits.find_first_not_of('0') == std::string::npos; }
};

/// The shortest decimal that reads back to `value`.
Decimal ToDecimal(float value) {
  char buffer[32];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, std::abs(value), std::chars_format::scientific)
          .ptr;
  const auto* mark = std::find(buffer, end, 'e');
  Decimal decimal;
  std::copy_if(static_cast<const char*>(buffer), mark, std::back_inserter(decimal.digits),
               [](char c) { return c != '.'; });
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, decimal.exponent);
  if (decimal.IsZero()) {
    decimal.digits.clear();
    decimal.exponent = 0;
  } else {
    ++decimal.exponent;  // d.ddd becomes 0.dddd
  }
  return decimal;
}

struct Token {
  enum class Kind { Literal, Digit, Significant, Point };
  Kind kind;
  char text;
};

/// One section of a picture.
struct Section {
  std::vector<Token> tokens;
  bool isGrouped = false;
  bool isPercent = false;
  int wholePlaces = 0;
  int decimals = 0;
};

bool IsPlace(const Token& token) {
  return token.kind == Token::Kind::Digit || token.kind == Token::Kind::Significant;
}

/// Reads the sections of `picture`, at most three.
std::vector<Section> Parse(std::string_view picture) {
  std::vector<Section> sections(1);
  bool isQuoted = false;
  bool hasPoint = false;
  for (std::size_t i = 0; i < picture.size(); ++i) {
    const char c = picture[i];
    Section& section = sections.back();
    const auto add = [&section](Token::Kind kind, char text) {
      section.tokens.push_back({kind, text});
    };
    if (c == '"') {
      isQuoted = !isQuoted;
    } else if (isQuoted) {
      add(Token::Kind::Literal, c);
    } else if (c == '\\' && i + 1 < picture.size()) {
      add(Token::Kind::Literal, picture[++i]);
    } else if (c == ';') {
      if (sections.size() == 3) break;
      sections.emplace_back();
      hasPoint = false;
    } else if (c == '0' || c == '#') {
      add(c == '0' ? Token::Kind::Digit : Token::Kind::Significant, c);
      ++(hasPoint ? section.decimals : section.wholePlaces);
    } else if (c == '.' && !hasPoint) {
      add(Token::Kind::Point, c);
      hasPoint = true;
    } else if (c == ',' && !hasPoint && section.wholePlaces > 0 && i + 1 < picture.size() &&
               (picture[i + 1] == '0' || picture[i + 1] == '#')) {
      section.isGrouped = true;
    } else {
      section.isPercent = section.isPercent || c == '%';
      add(Token::Kind::Literal, c);
    }
  }
  return sections;
}

/// Writes the whole digits that belong to the next whole place of the picture.
void PutWholePlace(std::string& text, const Decimal& number, const Section& section, int place,
                   bool isRequired) {
  // The first place also takes all digits to its left.
  const bool isFirst = place == section.wholePlaces - 1;
  const int highest = isFirst ? std::max(place, number.exponent - 1) : place;
  for (int p = highest; p >= place; --p) {
    const bool isSignificant = p < number.exponent && !number.IsZero();
    if (!isSignificant && !(isRequired && p == place)) continue;
    text += number.DigitAt(-p - 1);
    if (section.isGrouped && p > 0 && p % 3 == 0) text += ',';
  }
}

std::string Apply(const Section& section, Decimal number, bool isNegative) {
  if (section.isPercent) number.exponent += number.IsZero() ? 0 : 2;
  number.Round(section.decimals);
  const bool isZero = number.IsZero();
  // Decimals behind the last one that shows: trailing zeros under "#".
  int shown = 0;
  int place = 0;
  for (const auto& token : section.tokens) {
    if (token.kind == Token::Kind::Point) place = 1;
    if (place == 0 || !IsPlace(token)) continue;
    if (token.kind == Token::Kind::Digit || number.DigitAt(place - 1) != '0') shown = place;
    ++place;
  }
  std::string text =
      isNegative && !(isZero && section.wholePlaces + section.decimals > 0) ? "-" : "";
  int whole = section.wholePlaces;
  int decimal = 0;
  bool isBehindPoint = false;
  bool seenRequired = false;
  for (const auto& token : section.tokens) {
    if (token.kind == Token::Kind::Literal) {
      text += token.text;
    } else if (token.kind == Token::Kind::Point) {
      isBehindPoint = true;
      if (section.wholePlaces == 0) {  // ".00" still shows what stands before the point.
        for (int p = number.exponent - 1; p >= 0 && !isZero; --p) text += number.DigitAt(-p - 1);
      }
      if (shown > 0) text += '.';
    } else if (isBehindPoint) {
      if (decimal < shown) text += number.DigitAt(decimal);
      ++decimal;
    } else {
      seenRequired = seenRequired || token.kind == Token::Kind::Digit;
      PutWholePlace(text, number, section, --whole, seenRequired);
    }
  }
  return text;
}

}  // namespace

std::string FormatNumber(float value, std::string_view picture) {
  if (picture.empty()) {
    char buffer[32];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
  }
  const auto sections = Parse(picture);
  const auto has = [&](std::size_t i) {
    return sections.size() > i && !sections[i].tokens.empty();
  };
  const Decimal number = ToDecimal(value);
  if (value < 0 && has(1)) return Apply(sections[1], number, false);
  if (value == 0 && has(2)) return Apply(sections[2], number, false);
  return Apply(sections[0], number, value < 0);
}

}  // namespace orvane
