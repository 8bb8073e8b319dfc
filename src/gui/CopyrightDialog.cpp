#include "gui/CopyrightDialog.h"

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace TVR::GUI {

namespace {

constexpr QSize formSize(400, 300);

} // namespace

CopyrightDialog::CopyrightDialog(QWidget* parent) : QDialog(parent), label_(new QLabel) {
  setWindowTitle(tr("Copyright information"));
  resize(formSize);
  QPalette colours = palette();
  colours.setBrush(backgroundRole(), QBrush(Qt::white, Qt::SolidPattern));
  colours.setColor(foregroundRole(), Qt::black); // a dark theme writes in white
  setPalette(colours);

  label_->setObjectName("label");
  label_->setTextFormat(Qt::RichText);
  label_->setTextInteractionFlags(Qt::TextBrowserInteraction);
  label_->setOpenExternalLinks(true);
  label_->setWordWrap(true);
  label_->setAlignment(Qt::AlignTop);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(label_);

  auto* const timer = new QTimer(this);
  timer->setSingleShot(true);
  connect(timer, &QTimer::timeout, this, &QDialog::accept);
  timer->start(duration);
}

void CopyrightDialog::setLabel(const QString& html) {
  label_->setText(html);
  resize(formSize.width(), qMax(formSize.height(), layout()->heightForWidth(formSize.width())));
}

} // namespace TVR::GUI
