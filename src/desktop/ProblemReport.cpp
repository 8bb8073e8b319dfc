#include "desktop/ProblemReport.h"

#include "desktop/LogKeeper.h"
#include "messages/UserMessages.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSysInfo>
#include <QVBoxLayout>

namespace TVR::Desktop {

namespace {

constexpr QSize usualSize(640, 480);

/// The screens as a report tells them: size and scale of each.
QString screens() {
  QStringList texts;
  for (const QScreen* screen : QGuiApplication::screens())
    texts.append(QStringLiteral("%1x%2 at %3")
                     .arg(screen->size().width())
                     .arg(screen->size().height())
                     .arg(screen->devicePixelRatio()));
  return texts.join(", ");
}

} // namespace

ProblemReport::ProblemReport(QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Report a Problem"));
  auto* introduction =
      new QLabel(tr("Tell what you did, what you expected and what happened instead, and add the "
                    "text below. It holds the names of files that you opened."));
  introduction->setWordWrap(true);
  auto* report = new QPlainTextEdit(text());
  report->setObjectName("report");
  report->setReadOnly(true);
  report->setLineWrapMode(QPlainTextEdit::NoWrap);
  report->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  report->setAccessibleName(tr("Text of the report"));
  auto* buttons = new QDialogButtonBox;
  QPushButton* const copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
  buttons->addButton(QDialogButtonBox::Close);
  copy->setObjectName("copy_report");
  connect(copy, &QPushButton::clicked, report,
          [report] { QApplication::clipboard()->setText(report->toPlainText()); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addWidget(introduction);
  column->addWidget(report);
  column->addWidget(buttons);
  resize(usualSize);
}

/// English, as whoever reads it may have another language than the user.
QString ProblemReport::text() {
  const QStringList facts = {
      QStringLiteral("%1 %2").arg(programTitle, TEVRANE_VERSION),
      QStringLiteral("Qt %1 (built with %2)").arg(qVersion(), QT_VERSION_STR),
      QStringLiteral("System: %1, %2, %3")
          .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion(),
               QSysInfo::currentCpuArchitecture()),
      QStringLiteral("Windows: %1, screens: %2").arg(QGuiApplication::platformName(), screens()),
      QStringLiteral("Locale: %1").arg(QLocale::system().name()),
      QString(),
      QStringLiteral("Log:"),
  };
  return (facts + LogKeeper::lines()).join('\n');
}

} // namespace TVR::Desktop
