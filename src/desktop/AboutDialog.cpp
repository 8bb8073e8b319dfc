#include "desktop/AboutDialog.h"

#include "messages/UserMessages.h"

#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace TVR::Desktop {

namespace {

constexpr QSize usualSize(560, 480);

} // namespace

AboutDialog::AboutDialog(const QString& copyright, const QString& build, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(tr("About %1").arg(programTitle));
  auto* text = new QTextBrowser;
  text->setObjectName("about");
  text->setOpenExternalLinks(true);
  text->setAccessibleName(windowTitle());
  QString html = QStringLiteral("<h2>%1 %2</h2><p>%3</p>%4")
                     .arg(programTitle, TEVRANE_VERSION,
                          tr("Planning of the thermal use of groundwater"), copyright);
  if (!build.isEmpty())
    html += QStringLiteral("<h3>%1</h3><table>%2</table>").arg(tr("Build"), build);
  text->setHtml(html);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* column = new QVBoxLayout(this);
  column->addWidget(text);
  column->addWidget(buttons);
  resize(usualSize);
}

} // namespace TVR::Desktop
