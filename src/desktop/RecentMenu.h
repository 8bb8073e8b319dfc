#pragma once

#include <QMenu>

namespace TVR::Desktop {

/// The projects that were opened last, the youngest first. Those whose files are not there any more
/// are shown, and can't be chosen. Read from the user's settings whenever the menu opens.
class RecentMenu final : public QMenu {
  Q_OBJECT

public:
  explicit RecentMenu(QWidget* parent = nullptr);

signals:
  void chosen(const QString& file);

private:
  void fill();
};

} // namespace TVR::Desktop
