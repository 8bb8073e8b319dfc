#include "desktop/RunStatus.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace TVR::Desktop {

namespace {

constexpr int barWidth = 160; // [pixel]
constexpr int secondsPerMinute = 60;

} // namespace

RunStatus::RunStatus(QWidget* parent)
    : QWidget(parent), remaining_(new QLabel(this)), bar_(new QProgressBar(this)),
      cancel_(new QToolButton(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(remaining_);
  row->addWidget(bar_);
  row->addWidget(cancel_);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  remaining_->setObjectName("run_remaining");
  remaining_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  remaining_->setMinimumWidth(
      remaining_->fontMetrics().horizontalAdvance(tr("%1 min left").arg(99)));
  bar_->setObjectName("run_progress");
  bar_->setMinimumWidth(barWidth);
  bar_->setMaximumWidth(barWidth);
  cancel_->setObjectName("run_cancel");
  cancel_->setAutoRaise(true);
  cancel_->setIcon(QIcon(":/desktop/images/cancel_run.png"));
  connect(cancel_, &QToolButton::clicked, this, &RunStatus::cancelled);
  retranslate();
  hide();
}

void RunStatus::retranslate() {
  bar_->setAccessibleName(tr("Progress of the simulation"));
  cancel_->setToolTip(tr("Cancel the simulation"));
  cancel_->setText(tr("Cancel the simulation"));
}

void RunStatus::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange)
    retranslate();
  QWidget::changeEvent(event);
}

void RunStatus::setRunning(bool isRunning) {
  if (isRunning == isRunning_)
    return;
  isRunning_ = isRunning;
  bar_->setRange(0, 0); // busy until the first step is done
  remaining_->clear();
  clock_.start();
  setVisible(isRunning_);
}

void RunStatus::setProgress(int value, int maximum) {
  if (!isRunning_ || value < 0 || value > maximum)
    return;
  bar_->setRange(0, maximum);
  bar_->setValue(value);
  remaining_->setText(remainingText(remainingSeconds(value, maximum, clock_.elapsed())));
}

int RunStatus::remainingSeconds(int value, int maximum, qint64 elapsed) {
  if (value <= 0 || value > maximum)
    return -1;
  return static_cast<int>(elapsed * (maximum - value) / value / 1000);
}

QString RunStatus::remainingText(int seconds) {
  if (seconds < 0)
    return {};
  if (seconds < secondsPerMinute)
    return tr("%1 s left").arg(seconds);
  return tr("%1 min left").arg((seconds + secondsPerMinute / 2) / secondsPerMinute);
}

} // namespace TVR::Desktop
