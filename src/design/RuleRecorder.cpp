#include "design/RuleRecorder.h"

#include <cmath>

namespace TVR {

bool RecordedWrite::isSame(const RecordedWrite& other) const {
  const bool isSameNumber =
      number == other.number || (std::isnan(number) && std::isnan(other.number));
  return id == other.id && isSameNumber && text == other.text;
}

RuleRecorder::RuleRecorder(const RuleTarget& project, std::span<const double> filters,
                           const std::optional<Alteration>& alteration)
    : project_(project), filters_(filters), alteration_(alteration) {}

void RuleRecorder::note(int id) const {
  reads_.set(static_cast<std::size_t>(id));
  hasReadMore_ = true;
}

double RuleRecorder::altered(int id, double number) const {
  if (!isAltered(id))
    return number;
  return number == 0.0 ? alteration_->factor : number * alteration_->factor;
}

double RuleRecorder::number(int id) const {
  note(id);
  return altered(id, project_.number(id));
}

bool RuleRecorder::flag(int id) const {
  note(id);
  return project_.flag(id) != isAltered(id);
}

double RuleRecorder::storedNumber(int id) const {
  note(id);
  return altered(id, project_.storedNumber(id));
}

std::string RuleRecorder::text(int id) const {
  note(id);
  return isAltered(id) ? project_.text(id) + 'x' : project_.text(id);
}

double RuleRecorder::providedFilterDiameter(int row) const {
  const auto index = static_cast<std::size_t>(row - 1);
  return index < filters_.size() ? filters_[index] : 0.0;
}

void RuleRecorder::writeReferenceValue(int id, int column, int row) {
  record(id, 0.0, std::to_string(column) + ' ' + std::to_string(row));
}

void RuleRecorder::record(int id, double number, const std::string& text) {
  writes_.push_back({id, number, text, reads_, !hasReadMore_});
  hasReadMore_ = false;
}

} // namespace TVR
