#include "gui/EveryPage.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QTabBar>

namespace TVR::GUI {
namespace {

/// Each page at the size and with the letters that a test asks for.
class Guidance : public EveryPage {
protected:
  ~Guidance() override { QApplication::setFont(font_); }

  void enlargeLetters(double factor) {
    QFont font = font_;
    font.setPointSizeF(font.pointSizeF() * factor);
    QApplication::setFont(font);
  }

  /// What the Tab key stops at, in its order, whether or not it is enabled.
  static QList<QWidget*> stops(const QWizardPage& page) {
    QList<QWidget*> stops;
    for (QWidget* w = page.nextInFocusChain(); w != &page; w = w->nextInFocusChain())
      if (page.isAncestorOf(w) && w->isVisible() && w->focusPolicy() & Qt::TabFocus &&
          !w->focusProxy())
        stops << w;
    return stops;
  }

private:
  const QFont font_ = QApplication::font();
};

TEST_F(Guidance, whateverTakesInputHasANameAndSaysWhatItIs) {
  onEachPage([](const QWizardPage& page) {
    for (QWidget* stop : stops(page)) {
      SCOPED_TRACE(qPrintable(stop->objectName()));
      EXPECT_NE(QAccessible::queryAccessibleInterface(stop)->text(QAccessible::Name), "");
      EXPECT_NE(stop->toolTip(), "");
      EXPECT_NE(stop->whatsThis(), "");
      if (const auto* edit = qobject_cast<QLineEdit*>(stop); edit && edit->validator()) {
        EXPECT_TRUE(edit->toolTip().contains(edit->accessibleDescription()));
        const auto* range = qobject_cast<const QDoubleValidator*>(edit->validator());
        EXPECT_TRUE(edit->accessibleDescription().startsWith(
            QString("%1 to %2").arg(range->bottom(), 0, 'g', 15).arg(range->top(), 0, 'g', 15)));
      }
    }
  });
}

QString spokenName(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

TEST_F(Guidance, aReaderOfTheScreenKnowsWhatStandsInADisabledBox) {
  onEachPage([](const QWizardPage& page) {
    for (QWidget* stop : stops(page)) {
      SCOPED_TRACE(qPrintable(stop->objectName()));
      if (!qobject_cast<QAbstractScrollArea*>(stop)) {
        EXPECT_NE(QAccessible::queryAccessibleInterface(stop)->role(), QAccessible::Client);
      }
    }
  });
}

TEST_F(Guidance, aGroupIsCalledByItsTitle) {
  onEachPage([](const QWizardPage& page) {
    for (auto* group : page.findChildren<QGroupBox*>())
      EXPECT_EQ(spokenName(group).toStdString(), group->title().remove('&').toStdString());
  });
}

TEST_F(Guidance, aValueIsReadAsItStands) {
  onEachPage([](const QWizardPage& page) {
    for (auto* label : page.findChildren<QLabel*>())
      if (label->textFormat() != Qt::RichText && !label->text().isEmpty() && !label->buddy()) {
        EXPECT_EQ(spokenName(label).toStdString(), label->text().toStdString());
      }
  });
}

TEST_F(Guidance, aScrolledPageIsAskedInVainForAPartThatHasGone) {
  onEachPage([](const QWizardPage& page) {
    for (auto* area : page.findChildren<QScrollArea*>()) {
      const QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(area);
      EXPECT_EQ(face->child(face->childCount()), nullptr);
    }
  });
}

TEST_F(Guidance, theTabKeyGoesAsOneReads) {
  onEachPage([](const QWizardPage& page) {
    QPoint before;
    for (const QWidget* stop : stops(page)) {
      const QPoint here = stop->mapTo(const_cast<QWizardPage*>(&page), QPoint());
      const bool isBelow = here.y() > before.y();
      const bool isBeside = here.y() >= before.y() - stop->height() / 2 && here.x() >= before.x();
      EXPECT_TRUE(isBelow || isBeside) << qPrintable(stop->objectName());
      before = here;
    }
  });
}

TEST_F(Guidance, nothingIsCutOffWithUsualOrLargeLetters) {
  for (const double letters : {1.0, 1.5}) {
    enlargeLetters(letters);
    onEachPage([this](const QWizardPage& page) {
      EXPECT_LE(wizard.width(), 400);
      EXPECT_LE(wizard.height(), 620);
      for (const QWidget* child : page.findChildren<QWidget*>()) {
        const bool isHeading = qobject_cast<const QHeaderView*>(child); // as high as its lines
        if (!child->isVisible() || isHeading || child->objectName().startsWith("qt_"))
          continue;
        SCOPED_TRACE(qPrintable(child->objectName()));
        EXPECT_GE(child->width(), child->minimumSizeHint().width());
        EXPECT_GE(child->height(), child->minimumSizeHint().height());
        if (child->hasHeightForWidth()) {
          EXPECT_GE(child->height(), child->heightForWidth(child->width()));
        }
        if (const auto* area = qobject_cast<const QScrollArea*>(child)) {
          EXPECT_LE(area->widget()->width(), area->viewport()->width());
        }
      }
    });
  }
}

} // namespace
} // namespace TVR::GUI
