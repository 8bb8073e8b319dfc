#pragma once

#include <QObject>

namespace TVR {

class MainWindowParts;
class OutdatedResults;
class ResultGraphic;

/// Says in the panel of the project and on its page, as its window shows it, that the results are
/// outdated, and since what change.
class OutdatedSign : public QObject {
  Q_OBJECT

public:
  /// Everything that is given outlives this object.
  OutdatedSign(const OutdatedResults& results, MainWindowParts& parts, ResultGraphic& graphic);

  /// Shows or hides the sign, in the language of the moment.
  void update();

private:
  const OutdatedResults& results_;
  MainWindowParts& parts_;
  ResultGraphic& graphic_;
};

} // namespace TVR
