#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Verification {

/// A line of a chart; x and y have the same length. `marks` draws points instead of a line.
struct Curve {
  std::string name;
  std::vector<double> x;
  std::vector<double> y;
  bool marks = false;
};

/// A plot of curves over common axes. Values that a logarithmic axis cannot show are left out.
struct Chart {
  std::string xLabel;
  std::string yLabel;
  std::vector<Curve> curves;
  bool logX = false;
  bool logY = false;
};

/// The chart as an SVG document.
std::string svgOf(const Chart& chart);

/// A number with so many significant digits, decimals with a point.
std::string number(double value, int digits = 3);

/// Collects the verification report as Markdown and its figures as SVG files.
class Report {
public:
  /// The quick form leaves rows of tables out, and no figure.
  enum class Form { Quick, Full };

  /// `folder` receives verification.md and the figures in a folder verification/ beside it.
  explicit Report(std::filesystem::path folder, Form form = Form::Full);

  /// The levels of a refinement, ascending in cost: in the quick form without the last one.
  template <class Level>
  std::vector<Level> levels(std::vector<Level> all) const {
    if (form_ == Form::Quick)
      all.pop_back();
    return all;
  }

  void section(const std::string& title);
  /// A paragraph of Markdown.
  void text(const std::string& paragraph);
  /// Each row has as many entries as the header.
  void table(const std::vector<std::string>& header,
             const std::vector<std::vector<std::string>>& rows);
  /// Writes verification/NAME.svg and refers to it. Throws std::runtime_error if it cannot.
  void figure(const std::string& name, const std::string& caption, const Chart& chart);
  /// Writes verification.md. Throws std::runtime_error if it cannot.
  void save() const;

private:
  std::filesystem::path folder_;
  Form form_;
  std::string text_;
};

} // namespace Verification
