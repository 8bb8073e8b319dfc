#pragma once

#include "gui/PageTest.h"
#include "gui/wizard/LimitedQDoubleValidator.h"

#include <QLabel>
#include <QSpinBox>

#include <functional>
#include <vector>

namespace TVR::GUI {

/// Presses the space bar on a button, a check mark or the one of a group.
inline void toggle(QWizardPage& page, const char* name) {
  QTest::keyClick(in<QWidget>(page, name), Qt::Key_Space);
}

/// Types a number over the one in a spin box.
inline void count(QWizardPage& page, const char* box, int number) {
  QTest::keyClick(in<QSpinBox>(page, box), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(in<QSpinBox>(page, box), QString::number(number));
}

/// What may be typed into an edit.
struct Typeable {
  const char* edit;
  double least;
  double most;
  int decimals;
};

inline void expectTypeable(QWizardPage& page, const std::vector<Typeable>& edits) {
  for (const Typeable& expected : edits) {
    const auto* const validator = qobject_cast<const BrenvikTools::LimitedQDoubleValidator*>(
        in<QLineEdit>(page, expected.edit)->validator());
    ASSERT_TRUE(validator) << expected.edit;
    EXPECT_EQ(validator->bottom(), expected.least) << expected.edit;
    EXPECT_EQ(validator->top(), expected.most) << expected.edit;
    EXPECT_EQ(validator->decimals(), expected.decimals) << expected.edit;
    EXPECT_EQ(validator->notation(), QDoubleValidator::ScientificNotation) << expected.edit;
  }
}

/// Something wrong on a page, and what the page says of it.
struct Mistake {
  std::function<void()> make;
  const char* message;
};

/// Makes each mistake on a page as it was entered, and each pair of them: the later one of the list
/// has to be named, and the store to stay as it is.
inline void expectLastMistakeNamed(QWizardPage& page, const char* feedback,
                                   const std::vector<Mistake>& mistakes,
                                   const Data::Manager& store) {
  for (std::size_t first = 0; first < mistakes.size(); ++first)
    for (std::size_t last = first; last < mistakes.size(); ++last) {
      page.initializePage();
      const Project before = store.project();
      mistakes[first].make();
      mistakes[last].make();
      EXPECT_FALSE(page.validatePage()) << mistakes[last].message;
      EXPECT_EQ(in<QLabel>(page, feedback)->text(), red(mistakes[last].message))
          << first << " and " << last;
      EXPECT_EQ(store.project(), before);
    }
}

} // namespace TVR::GUI
