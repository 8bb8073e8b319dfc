#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace TVR::Test {

/// What is done at each window of a tour: its name, which says how one comes to it, and the window,
/// which is shown and closed afterwards.
using Visit = std::function<void(const QString& name, QWidget& window)>;

} // namespace TVR::Test
