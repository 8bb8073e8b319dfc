#include "xml/XmlGuard.h"

#include <QDomDocument>

#include <gtest/gtest.h>

namespace {

using namespace TVR;

TEST(KeepsLimits, countsDepthAndElementsOfATree) {
  QDomDocument document;
  document.setContent(QByteArray("<a><b><c/></b><d/></a>"));
  EXPECT_TRUE(keepsLimits(document.documentElement(), {.depth = 3, .elements = 4}));
  EXPECT_FALSE(keepsLimits(document.documentElement(), {.depth = 2, .elements = 4}));
  EXPECT_FALSE(keepsLimits(document.documentElement(), {.depth = 3, .elements = 3}));
}

TEST(KeepsLimits, looksAtTheElementAndNotBeyondIt) {
  QDomDocument document;
  document.setContent(QByteArray("<a><b/><c/><d/></a>"));
  EXPECT_TRUE(keepsLimits(document.documentElement().firstChildElement("b"), {.elements = 1}));
}

TEST(KeepsLimits, countsDepthAndElementsOfAText) {
  const QString text = "<a><b><c/></b><d/></a>";
  EXPECT_TRUE(keepsLimits(text, {.depth = 3, .elements = 4}));
  EXPECT_FALSE(keepsLimits(text, {.depth = 2, .elements = 4}));
  EXPECT_FALSE(keepsLimits(text, {.depth = 3, .elements = 3}));
}

TEST(KeepsLimits, countsTheAttributesOfEachElement) {
  const QString text = "<a b='' c=''><d e='' f=''/></a>";
  EXPECT_TRUE(keepsLimits(text, {.attributesOfElement = 2}));
  EXPECT_FALSE(keepsLimits(text, {.attributesOfElement = 1}));
}

} // namespace
