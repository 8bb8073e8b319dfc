// The pictures that windows ask for by name: that they are there, sharp, and seen on any theme.

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QStringList>

#include <gtest/gtest.h>

#include <cmath>

namespace {

const QStringList icons = {
    "edit_manuell", "nok",         "tvr",     "tvr_borehole",    "tvr_close", "tvr_energy",
    "tvr_generall", "tvr_graphic", "tvr_new", "tvr_newgraphics", "tvr_open",  "tvr_save",
};

QString fileOf(const QString& name) {
  return ":/TVR/images/" + name + ".png";
}

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// The contrast of two colours, 1 to 21, as the guidelines for accessible web pages define it (W3C,
/// WCAG 2.1, 2018).
double contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
  };
  const double a = luminance(one) + 0.05;
  const double b = luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

/// The share of an image's solid pixels that stand out from a background by at least `least`.
double shareThatStandsOut(const QImage& image, const QColor& background, double least) {
  int solid = 0;
  int standOut = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour = image.pixelColor(x, y);
      if (colour.alpha() < 200)
        continue;
      ++solid;
      standOut += contrast(colour, background) >= least ? 1 : 0;
    }
  }
  return solid == 0 ? 0.0 : double(standOut) / solid;
}

} // namespace

TEST(PicturesTest, iconsAreThereInThreeSizes) {
  for (const QString& name : icons) {
    const QImage once(fileOf(name));
    ASSERT_FALSE(once.isNull()) << name.toStdString();
    EXPECT_EQ(QImage(fileOf(name + "@2x")).size(), 2 * once.size()) << name.toStdString();
    EXPECT_EQ(QImage(fileOf(name + "@3x")).size(), 3 * once.size()) << name.toStdString();
  }
}

TEST(PicturesTest, otherPicturesAreThere) {
  for (const char* const name : {"compass_rose", "norvalt_logo", "smiley_done"}) {
    const QImage image(fileOf(name));
    ASSERT_FALSE(image.isNull()) << name;
    EXPECT_EQ(image.width(), image.height()) << name;
  }
  EXPECT_GE(QImage(fileOf("welcome")).width(), 1920);
}

TEST(PicturesTest, iconsStandOutFromLightAndDarkThemes) {
  for (const QString& name : icons) {
    const QImage image(fileOf(name + "@3x"));
    EXPECT_GT(shareThatStandsOut(image, QColor("#fcfcfc"), 2.7), 0.7) << name.toStdString();
    EXPECT_GT(shareThatStandsOut(image, QColor("#2b2b2b"), 2.7), 0.7) << name.toStdString();
  }
}

TEST(PicturesTest, whiteTextIsLegibleOnTheWelcomePicture) {
  EXPECT_GT(shareThatStandsOut(QImage(fileOf("welcome")), Qt::white, 4.5), 0.97);
}
