#pragma once

#include "host/ApplicationInterface.h"
#include "ui_WelcomeWindow.h"

#include <QImage>
#include <QWidget>

namespace TVR {

/// The first window that the user sees: what the program is for, its version, and the projects that
/// were opened last.
class WelcomeWindow : public QWidget,
                      public BrenvikApp::WorkspaceWindow,
                      private Ui::WelcomeWindow {
  Q_OBJECT
  Q_INTERFACES(BrenvikApp::WorkspaceWindow)

public:
  WelcomeWindow(const QString& title, QWidget* parent = nullptr);

  /// What the plug-in calls the window, in the language of the moment.
  static QString translatedTitle();

  QWidget* widget() override { return this; }
  QString windowType() const override { return QStringLiteral("WelcomeWindow"); }

signals:
  void modified();
  void newProject();
  void openProject(QString file);

public slots:
  void startNewProject();
  void openProjectOfItem(QListWidgetItem* item);
  /// Reads the projects from the user's settings.
  void updateProjectEntries();

protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

private:
  void openCurrentProject();
  void showInformation();
  void showVersion();
  void fitPicture();

  const QImage picture_;
};

} // namespace TVR
