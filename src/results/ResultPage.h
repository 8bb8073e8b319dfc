#pragma once

#include "host/MapRange.h"
#include "results/PageAccess.h"

#include <QString>

namespace TVR {

/// The range of the map on a page as it is before it is dressed.
MapRange templateMap();

/// The page of a project's results: its template, the dressing of its items and its texts.
class ResultPage {
public:
  /// The observer hears of changes of the map view and the project's address.
  ResultPage(const PageAccess& page, DATA::DataObserver& observer);

  /// Fills the window with the page template, finds the items by their translated or English names
  /// and gives them their properties. `months` is the end of the time axis of the demand plots.
  /// Does nothing if the lock can't be had in time.
  void dress(int months);

  /// Writes the texts and the logo that come from the project; `summary` is HTML. Makes one attempt
  /// at the lock.
  void fillTexts(const QString& summary);

  /// Gives the items of the page their names and texts in the language of the moment; `summary` is
  /// HTML. Makes one attempt at the lock.
  void retranslate(const QString& summary);

private:
  int find(const char* name);

  PageAccess page_;
  DATA::DataObserver& observer_;
};

} // namespace TVR
