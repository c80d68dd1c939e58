#include "pages/Page.h"

#include "pages/Assets.h"
#include "pages/Html.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace orvane::pages {
namespace {

using Row = std::vector<std::string>;

bool IsNumber(const std::string& cell) {
  const std::string_view text = tables::WithoutBlanks(cell);
  return !text.empty() && text.find_first_not_of("+-.0123456789eE") == std::string_view::npos;
}

std::string CsvText(const std::vector<Row>& table) {
  std::string text;
  for (const Row& row : table) {
    const char* comma = "";
    for (const std::string& cell : row) {
      text += comma;
      comma = ",";
      if (cell.find_first_of("\",\r\n") == std::string::npos) {
        text += cell;
      } else {
        text += '"';
        for (const char c : cell) text += c == '"' ? "\"\"" : std::string(1, c);
        text += '"';
      }
    }
    text += "\r\n";
  }
  return text;
}

/// The number of rows, the header not counted, that stand in the page.
std::size_t ShownRows(const std::vector<Row>& table) {
  const std::size_t columns = std::max<std::size_t>(1, table.front().size());
  return std::min(table.size() - 1, std::max<std::size_t>(1, kMostPageCells / columns));
}

std::string HtmlTable(const std::vector<Row>& table) {
  std::string html = "<table>\n<thead><tr>";
  for (const std::string& name : table.front())
    html += "<th scope=\"col\">" + (name.empty() ? "&#160;" : HtmlText(name)) + "</th>";
  html += "</tr></thead>\n<tbody>\n";
  const std::size_t shown = ShownRows(table);
  for (std::size_t i = 1; i <= shown; ++i) {
    html += "<tr>";
    const char* tag = "<th scope=\"row\">";
    const char* end = "</th>";
    for (const std::string& cell : table[i]) {
      const bool isNumber = IsNumber(cell);
      if (tag[2] == 'd' || isNumber) {
        tag = isNumber ? "<td class=\"number\">" : "<td>";
        end = "</td>";
      }
      html += tag + HtmlText(cell) + end;
      tag = "<td>";
      end = "</td>";
    }
    html += "</tr>\n";
  }
  return html + "</tbody>\n</table>";
}

std::string CutNote(const std::vector<Row>& table) {
  if (table.empty() || ShownRows(table) + 1 == table.size()) return "";
  return "<p class=\"note\">The first " + std::to_string(ShownRows(table)) + " of " +
         std::to_string(table.size() - 1) + " rows; the CSV file has all of them.</p>\n";
}

std::string Script(const char* id, std::string_view content) {
  return "<script type=\"text/plain\" id=\"" + std::string(id) + "\">" + std::string(content) +
         "</script>\n";
}

std::string WorldsJson(const std::vector<PageWorld>& worlds, const std::vector<Row>& table) {
  std::string json = "{\"worlds\":{";
  const char* comma = "";
  for (const auto& [name, text] : worlds) {
    json += comma + JsonText(name) + ":" + JsonText(text);
    comma = ",";
  }
  const bool isCut = !CutNote(table).empty();
  return json + "},\"csv\":" + (isCut ? JsonText(CsvText(table)) : "null") + "}";
}

std::string Data(const std::vector<Row>& table) {
  const bool hasData = !table.empty();
  return "<details id=\"data\"" + std::string(hasData ? "" : " hidden") +
         "><summary>Data</summary>\n<div class=\"group tools\"></div>\n" + CutNote(table) +
         "<div class=\"scroll\" tabindex=\"0\" role=\"region\" aria-label=\"Data of the chart\">" +
         (hasData ? HtmlTable(table) : "<table></table>") + "</div>\n</details>\n";
}

/// A column of numbers, or all of them: where its least and its greatest stand.
struct Extremes {
  const std::string* least = nullptr;
  const std::string* greatest = nullptr;
  std::string leastPlace, greatestPlace;
  double low = std::numeric_limits<double>::infinity();
  double high = -low;

  void Take(const std::string& cell, const std::string& place) {
    const double number = std::strtod(cell.c_str(), nullptr);
    if (!std::isfinite(number)) return;
    if (number < low) low = number, least = &cell, leastPlace = place;
    if (number > high) high = number, greatest = &cell, greatestPlace = place;
  }
};

std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string Range(const Extremes& range, const char* between) {
  const auto with = [](const std::string& text, const std::string& place) {
    return text + (place.empty() ? "" : " (" + place + ")");
  };
  return with(*range.least, range.leastPlace) + between +
         with(*range.greatest, range.greatestPlace);
}

/// Categories down and series across: the extremes of all values, each with its place.
std::string LabelledSummary(const std::vector<Row>& table) {
  const Row& header = table.front();
  Extremes all;
  for (std::size_t i = 1; i < table.size(); ++i) {
    for (std::size_t j = 1; j < table[i].size(); ++j) {
      if (!IsNumber(table[i][j])) continue;
      all.Take(table[i][j],
               table[i].front() + (header.size() > 2 ? ", " + header[j] : std::string()));
    }
  }
  std::string text = Counted(table.size() - 1, "row", "rows") + " of " +
                     Counted(header.size() - 1, "series", "series");
  if (all.least) text += ", from " + Range(all, " to ");
  return text;
}

/// Points: the range of each column of numbers.
std::string PointsSummary(const std::vector<Row>& table) {
  std::string text = Counted(table.size() - 1, "point", "points");
  for (std::size_t j = 0; j < table.front().size(); ++j) {
    Extremes column;
    for (std::size_t i = 1; i < table.size(); ++i) {
      if (IsNumber(table[i][j])) column.Take(table[i][j], "");
    }
    if (column.least) text += "; " + table.front()[j] + " from " + Range(column, " to ");
  }
  return text;
}

}  // namespace

std::string Page(const std::vector<PageWorld>& worlds, const PageFacts& facts) {
  if (worlds.empty()) throw std::invalid_argument("a page needs a world");
  const std::string title = HtmlText(facts.title.empty() ? "Chart" : facts.title);
  const std::string alt = HtmlText(facts.summary.empty() ? "Picture of the chart" : facts.summary);
  const std::string picture = facts.picture.empty() ? ""
                                                    : "<img class=\"still\" alt=\"" + alt +
                                                          "\" src=\"data:image/png;base64," +
                                                          Base64(facts.picture) + "\">";
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"";
  html += Policy();
  html +=
      "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"generator\" content=\"Orvane\">\n<title>" +
      title + "</title>\n<style>";
  html += Style();
  html += "</style>\n</head>\n<body>\n<main>\n<h1 dir=\"auto\">" + title +
          "</h1>\n<p class=\"summary\" dir=\"auto\" id=\"summary\">" + HtmlText(facts.summary) +
          "</p>\n<figure aria-describedby=\"summary\">\n<div class=\"chart\" id=\"chart\">\n"
          "<div class=\"stage\" id=\"stage\"><div class=\"player\"></div>" +
          picture +
          "<p class=\"state\" id=\"state\" role=\"status\"></p></div>\n"
          "<fieldset class=\"key\" id=\"key\" "
          "hidden><legend>Shown</legend><div></div></fieldset>\n</div>\n"
          "<p class=\"value\" id=\"value\" aria-live=\"polite\"></p>\n"
          "<div class=\"bar\" id=\"bar\" hidden><div class=\"group\" id=\"back\" hidden></div>"
          "<div class=\"group\" id=\"views\" role=\"group\" aria-label=\"Views\"></div>"
          "<div class=\"group push\" id=\"tools\"></div></div>\n"
          "<img class=\"print\" id=\"print\" alt=\"" +
          alt + "\">\n</figure>\n" + Data(facts.table) + "</main>\n";
  html += Script("worlds", Base64(Deflated(WorldsJson(worlds, facts.table))));
  html += Script("script", PlayerScript());
  html += "<script>" + std::string(StartScript()) + "</script>\n</body>\n</html>\n";
  return html;
}

std::string Page(Chart& chart) {
  PageFacts facts;
  facts.title = chart.TitleProps()->Text();
  return Page({{"chart.wrl", chart.ExportToString(true, true)}}, facts);
}

PageFacts FactsOf(std::string_view kind, tables::Rows& rows) {
  PageFacts facts;
  for (std::vector<tables::Cell> cells; rows.Next(cells);) {
    Row& row = facts.table.emplace_back();
    for (const auto& cell : cells) row.emplace_back(cell.text);
    row.resize(facts.table.front().size());
  }
  if (facts.table.size() < 2) return facts;
  const bool isPoints = kind == "scatter" || kind == "density";
  std::string name(kind);
  std::ranges::replace(name, '-', ' ');
  name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
  facts.summary = name + " chart of " +
                  (isPoints ? PointsSummary(facts.table) : LabelledSummary(facts.table)) + ".";
  return facts;
}

}  // namespace orvane::pages
