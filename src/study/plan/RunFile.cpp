#include "study/plan/RunFile.h"

#include "study/plan/Plan.h"

namespace TVR::Study {

QByteArray runFile(const QByteArray& baseContent, const std::vector<StudyKey>& keys,
                   const std::vector<double>& values) {
  QByteArray content = baseContent;
  for (std::size_t i = 0; i < keys.size(); ++i)
    content += QStringLiteral("\n[%1]\n%2=%3\n")
                   .arg(keys[i].section, keys[i].name, exactText(values[i]))
                   .toUtf8();
  return content;
}

} // namespace TVR::Study
