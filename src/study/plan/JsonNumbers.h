#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

#include <vector>

namespace TVR::Study {

/// Numbers as JSON, each with all its bits; what is not finite is null.
QJsonArray jsonOf(const std::vector<double>& numbers);
/// The other way; what is no number becomes not-a-number.
std::vector<double> numbersFrom(const QJsonValue& json);

/// An object on one line.
QByteArray compactJson(const QJsonObject& object);

} // namespace TVR::Study
