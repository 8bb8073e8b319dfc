#pragma once

#include <QCoreApplication>
#include <QString>

namespace TVR::Study {

/// Translation context of what stands on the page of a study.
class StudyPageText {
  Q_DECLARE_TR_FUNCTIONS(StudyPage)
};

} // namespace TVR::Study
