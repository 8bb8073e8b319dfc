#pragma once

#include "ui_DesignPropertyEditor.h"

#include <QTimer>
#include <QWidget>

namespace TVR::Data {
class Manager;
}

namespace TVR::GUI {

/// The panel of the project: the file that it lies in, its main parameters, and how a running
/// simulation goes on.
class DesignPropertyEditor : public QWidget, public Ui::DesignPropertyEditor {
  Q_OBJECT

public:
  /// Shows the project of `store`, which outlives the panel.
  explicit DesignPropertyEditor(const Data::Manager& store, QWidget* parent = nullptr);

  /// Names the file of the project; an empty name stands for a project that was never saved.
  void showFile(const QString& fileName);
  /// The file that the panel names; empty for a project that was never saved.
  QString shownFile() const;

  /// Sets all texts in the language of the moment.
  void retranslate();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

signals:
  void processCanceled();

public slots:
  /// Shows or hides the progress of a run.
  void showProgress(bool visible);
  /// Reads all values anew.
  void updatePropertyView();
  void cancelProcess();

protected:
  void changeEvent(QEvent* event) override;

private:
  const Data::Manager& store_;
  QTimer refresh_;
  QString fileName_;
};

} // namespace TVR::GUI
