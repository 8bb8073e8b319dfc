#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

#include <functional>

/// Sits before the screen and answers the next file dialog.
class DialogUser {
public:
  using Answer = std::function<void(QFileDialog&)>;

  explicit DialogUser(Answer answer) : answer_(std::move(answer)) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (!dialog)
        return;
      sawDialog_ = true;
      answer_(*dialog);
      if (dialog->isVisible())
        dialog->reject();
    });
    timer_.start(0);
  }

  bool sawDialog() const { return sawDialog_; }

private:
  Answer answer_;
  bool sawDialog_ = false;
  QTimer timer_;
};

inline void giveUp(QFileDialog& dialog) {
  QTest::keyClick(&dialog, Qt::Key_Escape);
}

/// Types a file name and presses the button that ends the dialog.
inline void choose(QFileDialog& dialog, const QString& fileName) {
  auto* const field = dialog.findChild<QLineEdit*>("fileNameEdit");
  field->clear();
  field->setText(fileName);
  const auto buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
  for (QAbstractButton* button : buttons->buttons())
    if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
      QTest::mouseClick(button, Qt::LeftButton);
}
