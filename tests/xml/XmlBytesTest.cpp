#include "xml/XmlBytes.h"

#include "xml/GuardedXml.h"

#include <gtest/gtest.h>

namespace {

using namespace TVR;

TEST(XmlBytes, writesAttributesInAFixedOrder) {
  QDomDocument document;
  document.setContent(QByteArray("<a z='1' b='2' id='3' Type='4' c='5'/>"));
  EXPECT_TRUE(xmlBytes(document).startsWith("<a id=\"3\" Type=\"4\" b=\"2\" c=\"5\" z=\"1\"/>"));
}

TEST(XmlBytes, readsWhatItWrites) {
  const QByteArray text = "<a b=\"1 &lt; &quot;2&quot;\">\n <c>x &amp; y</c>\n <!--d-->\n</a>\n";
  EXPECT_EQ(xmlBytes(*parseStrictly(text)).toStdString(), text.toStdString());
}

} // namespace
