#pragma once

#include "keeping/AutosaveFolder.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace TVR {

namespace GUI {
class RecoveryDialog;
}

/// Offers what programs that ended without notice have left unsaved. A leftover stays until it is
/// recovered or discarded, and nobody else is offered it meanwhile.
class ProjectRecovery : public QObject {
  Q_OBJECT

public:
  /// What became of a leftover that is to be recovered.
  enum class Outcome {
    Refused, ///< nothing, and the user knows why
    Opened,  ///< it is the open project, but not yet saved automatically
    Kept     ///< it is, and lies in the folder of this program too
  };
  using Recover = std::function<Outcome(const AutosaveFolder& leftover)>;

  ProjectRecovery(Recover recover, QObject* parent);
  ~ProjectRecovery() override;

  /// Shows the dialog if there is something to recover; does not wait for its answer.
  void offer(QWidget* window);
  /// Closes the dialog; what it shows is left for later.
  void withdraw();

private:
  void recover(int row);
  void discard(int row);
  /// The leftover is dealt with.
  void removeRow(int row);

  const Recover recover_;
  std::vector<std::unique_ptr<AutosaveFolder>> leftovers_;
  QPointer<GUI::RecoveryDialog> dialog_;
};

} // namespace TVR
