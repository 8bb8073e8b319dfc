// A window from which the file that the command line names can be dragged, as from a file manager.
// Its title tells what becomes of the drag: "Files", "Files: welcome" over a window that takes
// them.

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace {

class File final : public QLabel {
public:
  explicit File(const QString& path) : QLabel(path), url_(QUrl::fromLocalFile(path)) {
    setWindowTitle("Files");
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setMinimumSize(200, 60);
  }

protected:
  void mousePressEvent(QMouseEvent*) override {
    auto* const urls = new QMimeData;
    urls->setUrls({url_});
    auto* const drag = new QDrag(this);
    drag->setMimeData(urls);
    connect(drag, &QDrag::actionChanged, this, [this](Qt::DropAction action) {
      setWindowTitle(action == Qt::IgnoreAction ? "Files" : "Files: welcome");
    });
    drag->exec(Qt::CopyAction);
  }

private:
  const QUrl url_;
};

} // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  File file(application.arguments().value(1));
  file.show();
  return QApplication::exec();
}
