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

TEST(XmlBytes, charactersThatXmlCanNotHoldAreLeftOut) {
  QDomDocument document;
  QDomElement root = document.createElement("a");
  document.appendChild(root);
  const QString odd = QString("1\x01\x0b\x1f") + QChar(0) + "2" + QChar(0xfffe) + QChar(0xffff) +
                      QChar(0xd800) + "3" + QChar(0xdc00) + "\t4";
  root.setAttribute("b", odd);
  root.appendChild(document.createTextNode(odd));
  root.appendChild(document.createComment("5\x02"));
  const auto read = parseStrictly(xmlBytes(document));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->documentElement().attribute("b"), "123\t4");
  EXPECT_EQ(read->documentElement().text(), "123\t4");
}

TEST(XmlBytes, carriageReturnsStay) {
  QDomDocument document;
  QDomElement root = document.createElement("a");
  document.appendChild(root);
  root.setAttribute("b", "1\r2\r\n");
  root.appendChild(document.createTextNode("3\r4\r\n5"));
  const auto read = parseStrictly(xmlBytes(document));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->documentElement().attribute("b"), "1\r2\r\n");
  EXPECT_EQ(read->documentElement().text(), "3\r4\r\n5");
}

TEST(XmlBytes, charactersBeyondTheBasicPlaneStay) {
  QDomDocument document;
  document.setContent(QStringLiteral("<a>\U0001F30D ü</a>"), false);
  EXPECT_EQ(parseStrictly(xmlBytes(document))->documentElement().text(),
            QStringLiteral("\U0001F30D ü"));
}

} // namespace
