#include "verification/Report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <utility>

namespace Verification {

namespace {

constexpr double left = 70.0;
constexpr double right = 670.0;
constexpr double top = 20.0;
constexpr double bottom = 330.0;

/// One axis of a chart: its range of values and the range of the drawing they fall on.
struct Axis {
  double low;
  double high;
  double from;
  double to;
  bool logarithmic;

  bool shows(double value) const { return !logarithmic || value > 0.0; }
  double scaled(double value) const { return logarithmic ? std::log10(value) : value; }
  double position(double value) const {
    return from + (to - from) * (scaled(value) - low) / (high - low);
  }
  std::vector<double> ticks() const {
    std::vector<double> values;
    if (logarithmic) {
      const double step = std::max(1.0, std::ceil((high - low) / 8.0));
      for (double e = std::ceil(low - 1e-9); e <= high + 1e-9; e += step)
        values.push_back(std::pow(10.0, e));
      return values;
    }
    const double raw = (high - low) / 6.0;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    double step = 10.0 * power;
    for (const double candidate : {5.0, 2.0, 1.0})
      if (candidate * power >= raw)
        step = candidate * power;
    for (double k = std::ceil(low / step - 1e-9); k * step <= high + 1e-9 * step; k += 1.0)
      values.push_back(k * step + 0.0); // never minus zero
    return values;
  }
};

Axis axisOver(const Chart& chart, bool alongX, double from, double to) {
  const bool logarithmic = alongX ? chart.logX : chart.logY;
  Axis axis{std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest(), from, to,
            logarithmic};
  for (const Curve& curve : chart.curves)
    for (const double value : alongX ? curve.x : curve.y)
      if (axis.shows(value)) {
        axis.low = std::min(axis.low, axis.scaled(value));
        axis.high = std::max(axis.high, axis.scaled(value));
      }
  if (!(axis.low < axis.high)) {
    axis.low -= 0.5;
    axis.high += 0.5;
  }
  if (!alongX) {
    const double margin = 0.04 * (axis.high - axis.low);
    axis.low -= margin;
    axis.high += margin;
  }
  return axis;
}

std::string place(double value) {
  std::array<char, 32> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.1f", value);
  return buffer.data();
}

std::string label(double x, double y, const std::string& anchor, const std::string& content) {
  return "<text x=\"" + place(x) + "\" y=\"" + place(y) + "\" text-anchor=\"" + anchor + "\">" +
         content + "</text>\n";
}

std::string grid(const Axis& x, const Axis& y) {
  std::string svg;
  for (const double tick : y.ticks()) {
    const double at = y.position(tick);
    svg += "<path d=\"M" + place(left) + " " + place(at) + "H" + place(right) +
           "\" stroke=\"#ddd\"/>\n" + label(left - 8, at + 4, "end", number(tick, 4));
  }
  for (const double tick : x.ticks()) {
    const double at = x.position(tick);
    svg += "<path d=\"M" + place(at) + " " + place(top) + "V" + place(bottom) +
           "\" stroke=\"#eee\"/>\n" + label(at, bottom + 18, "middle", number(tick, 4));
  }
  return svg;
}

/// A mark, as a ring of its own size, so that marks on one another can be told apart.
std::string ring(const std::string& x, const std::string& y, std::size_t index,
                 const std::string& colour) {
  return "<circle cx=\"" + x + "\" cy=\"" + y + "\" r=\"" + (index % 4 < 2 ? "2.5" : "4.5") +
         "\" fill=\"none\" stroke-width=\"1.6\" stroke=\"" + colour + "\"/>\n";
}

std::string drawn(const Curve& curve, std::size_t index, const Axis& x, const Axis& y,
                  const std::string& colour) {
  std::string marks;
  std::string line =
      "<polyline fill=\"none\" stroke-width=\"1.8\" stroke=\"" + colour + "\" points=\"";
  for (std::size_t i = 0; i < curve.x.size(); ++i) {
    if (!x.shows(curve.x[i]) || !y.shows(curve.y[i]))
      continue;
    const std::string px = place(x.position(curve.x[i]));
    const std::string py = place(y.position(curve.y[i]));
    marks += ring(px, py, index, colour);
    line += px + "," + py + " ";
  }
  return curve.marks ? marks : line + "\"/>\n";
}

} // namespace

std::string number(double value, int digits) {
  std::array<char, 48> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.*g", digits, value);
  return buffer.data();
}

std::string svgOf(const Chart& chart) {
  constexpr std::array<const char*, 6> colours{"#1b6ca8", "#c8553d", "#4f8a5b",
                                               "#8b5a9e", "#a08a2c", "#3a9c9c"};
  const double height = 406.0 + 18.0 * static_cast<double>((chart.curves.size() + 1) / 2);
  const Axis x = axisOver(chart, true, left, right);
  const Axis y = axisOver(chart, false, bottom, top);
  std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 700 " + place(height) +
                    "\" font-family=\"sans-serif\" font-size=\"13\">\n" +
                    "<rect width=\"700\" height=\"" + place(height) + "\" fill=\"white\"/>\n";
  svg += grid(x, y);
  svg += "<rect x=\"" + place(left) + "\" y=\"" + place(top) + "\" width=\"" + place(right - left) +
         "\" height=\"" + place(bottom - top) + "\" fill=\"none\" stroke=\"#888\"/>\n";
  for (std::size_t i = 0; i < chart.curves.size(); ++i) {
    const Curve& curve = chart.curves[i];
    const std::string colour = colours[i % colours.size()];
    svg += drawn(curve, i, x, y, colour);
    const double keyX = left + 300.0 * static_cast<double>(i % 2);
    const double keyY = 392.0 + 18.0 * static_cast<double>(i / 2);
    svg += curve.marks ? ring(place(keyX + 12), place(keyY - 4), i, colour)
                       : "<path d=\"M" + place(keyX) + " " + place(keyY - 4) +
                             "h24\" stroke-width=\"1.8\" stroke=\"" + colour + "\"/>\n";
    svg += label(keyX + 30, keyY, "start", curve.name);
  }
  svg += label(0.5 * (left + right), bottom + 38, "middle", chart.xLabel);
  svg += "<text transform=\"translate(16 " + place(0.5 * (top + bottom)) +
         ") rotate(-90)\" text-anchor=\"middle\">" + chart.yLabel + "</text>\n</svg>\n";
  return svg;
}

namespace {

void writeFile(const std::filesystem::path& path, const std::string& content) {
  std::ofstream file(path, std::ios::binary);
  file << content;
  file.close();
  if (!file)
    throw std::runtime_error("cannot write " + path.string());
}

std::string tableRow(const std::vector<std::string>& entries) {
  std::string row = "|";
  for (const std::string& entry : entries)
    row += " " + entry + " |";
  return row + "\n";
}

} // namespace

Report::Report(std::filesystem::path folder, Form form) : folder_(std::move(folder)), form_(form) {
  std::filesystem::create_directories(folder_ / "verification");
}

void Report::section(const std::string& title) {
  text_ += (text_.empty() ? "# " : "\n## ") + title + "\n";
}

void Report::text(const std::string& paragraph) {
  text_ += "\n" + paragraph + "\n";
}

void Report::table(const std::vector<std::string>& header,
                   const std::vector<std::vector<std::string>>& rows) {
  text_ += "\n" + tableRow(header) +
           tableRow(std::vector<std::string>(header.size(), std::string("---")));
  for (const auto& row : rows)
    text_ += tableRow(row);
}

void Report::figure(const std::string& name, const std::string& caption, const Chart& chart) {
  const std::string file = "verification/" + name + ".svg";
  writeFile(folder_ / file, svgOf(chart));
  text_ += "\n![" + caption + "](" + file + ")\n\n*" + caption + "*\n";
}

void Report::save() const {
  writeFile(folder_ / "verification.md", text_);
}

} // namespace Verification
