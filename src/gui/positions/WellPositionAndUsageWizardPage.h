#pragma once

#include "gui/positions/WellPlacing.h"
#include "gui/wizard/PageFields.h"
#include "gui/wizard/PageSurroundings.h"
#include "ui_WellPositionAndUsageWizardPage.h"

#include <QWizardPage>

namespace TVR::GUI {

/// Number, places and rates of the wells, and what each of them does in each demand period. Edits
/// the tables of the store at once; only the two counts can be reset.
class WellPositionAndUsageWizardPage : public QWizardPage,
                                       private Ui::WellPositionAndUsageWizardPage {
  Q_OBJECT

public:
  explicit WellPositionAndUsageWizardPage(const PageSurroundings& surroundings,
                                          QWidget* parent = nullptr);

  void initializePage() override;
  void cleanupPage() override;
  bool validatePage() override;

public slots:
  /// Wells have been moved elsewhere, as on the map: shows where they are.
  void update();
  void wellRatesModified();
  void changeWellCount(int count);
  void changeDemandStepNumber(int count);
  void demandModelChanged(const QModelIndex& from, const QModelIndex& to);
  /// Changes between the simple and the extended view.
  void showExtendTableView();
  /// Shows the demand periods of the well in the row of `index`.
  void wellSelected(const QModelIndex& index);
  void emitGraphicsUpdate();

signals:
  /// The wells on the map have to be drawn again.
  void updateGraphics();

protected:
  void changeEvent(QEvent* event) override;

private:
  void connectWidgets();
  void connectTables();
  void paste(ProjectTable table, const std::vector<TableCell>& cells);
  void showDistances();
  void showWells();
  void showPeriods();
  void makeTimeUnitActions(QObject* delegate);
  void setDynamicTexts();
  void setExtended(bool isExtended);
  bool isExtended() const { return !extendTableView->isHidden(); }
  void sayRefusal(const QString& reason);
  void showFeedback(const QString& text);

  QString missingCoordinates() const;
  bool passes();
  void storeDerivedCells();
  void designForLargestRate();

  void placeWells();
  void undoPlacing();
  void showWhetherPlacingCanBeUndone();

  Data::Manager& store_;
  QMap<int, QVariant> savedValues;
  WellPlacing placing_;
};

} // namespace TVR::GUI
