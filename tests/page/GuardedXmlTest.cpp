#include "page/GuardedXml.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace {

using namespace TVR::Page;

TEST(GuardedXml, readsElementsAttributesTextsAndComments) {
  const auto document = parseXml("<a b=\"1\"> <c>text &amp; <![CDATA[<more>]]></c><!--d--></a>");
  ASSERT_TRUE(document);
  const QDomElement root = document->documentElement();
  EXPECT_EQ(root.attribute("b"), "1");
  EXPECT_EQ(root.firstChildElement("c").text(), "text & <more>");
  EXPECT_TRUE(root.lastChild().isComment());
}

TEST(GuardedXml, acceptsADocumentTypeWithoutDeclarations) {
  EXPECT_TRUE(parseXml("<?xml version=\"1.0\"?><!DOCTYPE GraphicWidgetExport><a/>"));
}

TEST(GuardedXml, refusesWhatIsNotWellFormed) {
  for (const char* text : {"", "a", "<a>", "<a></b>", "<a/><b/>", "<a b='1' b='2'/>", "<a b=1/>",
                           "<a>&nosuch;</a>", "<a><!-- -- --></a>", "<a"})
    EXPECT_FALSE(parseXml(text)) << text;
}

TEST(GuardedXml, refusesDeclarations) {
  for (const char* text : {"<!DOCTYPE a [<!ENTITY b 'x'>]><a>&b;</a>", "<!DOCTYPE a []><a/>",
                           "<!DOCTYPE a [<!ATTLIST a b CDATA 'x'>]><a/>",
                           "<!DOCTYPE a SYSTEM 'file' [<!ENTITY % b 'x'> %b;]><a/>"})
    EXPECT_FALSE(parseXml(text)) << text;
}

TEST(GuardedXml, refusesAnEntityBombAtOnce) {
  QByteArray bomb = "<!DOCTYPE a [<!ENTITY e0 'xxxxxxxxxx'>";
  for (int level = 1; level < 12; ++level)
    bomb += "<!ENTITY e" + QByteArray::number(level) + " '" +
            QByteArray("&e" + QByteArray::number(level - 1) + ";").repeated(10) + "'>";
  QElapsedTimer time;
  time.start();
  EXPECT_FALSE(parseXml(bomb + "]><a>&e11;</a>"));
  EXPECT_LT(time.elapsed(), 1000);
}

TEST(GuardedXml, refusesADepthOfAHundredThousand) {
  EXPECT_FALSE(parseXml(QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000)));
}

TEST(GuardedXml, readsADepthOfAHundred) {
  EXPECT_TRUE(parseXml(QByteArray("<a>").repeated(100) + QByteArray("</a>").repeated(100)));
}

TEST(GuardedXml, refusesMoreElementsThanAllowed) {
  EXPECT_FALSE(parseXml("<a>" + QByteArray("<b/>").repeated(11) + "</a>", {.elements = 11}));
  EXPECT_TRUE(parseXml("<a>" + QByteArray("<b/>").repeated(10) + "</a>", {.elements = 11}));
}

TEST(GuardedXml, refusesMoreBytesThanAllowed) {
  EXPECT_FALSE(parseXml("<a>1234</a>", {.bytes = 10}));
  EXPECT_TRUE(parseXml("<a>123</a>", {.bytes = 10}));
}

TEST(GuardedXml, refusesATagWithVeryManyAttributesAtOnce) {
  QByteArray tag = "<a";
  for (int index = 0; index < 200000; ++index)
    tag += " b" + QByteArray::number(index) + "='>'";
  QElapsedTimer time;
  time.start();
  EXPECT_FALSE(parseXml(tag + "/>"));
  EXPECT_LT(time.elapsed(), 1000);
}

TEST(GuardedXml, countsNoEqualsSignsOfTextsAndComments) {
  const QByteArray signs = QByteArray("=").repeated(5000);
  EXPECT_TRUE(parseXml("<a b='" + signs + "'>" + signs + "<!-- '<a " + signs + "' --><![CDATA[<c " +
                       signs + "]]></a>"));
}

TEST(GuardedXml, readsAnAttributeOfTenMegabytes) {
  const auto document = parseXml("<a b='" + QByteArray(10'000'000, 'x') + "'/>");
  ASSERT_TRUE(document);
  EXPECT_EQ(document->documentElement().attribute("b").size(), 10'000'000);
}

TEST(GuardedXml, writesAttributesInAFixedOrder) {
  QDomDocument document;
  document.setContent(QByteArray("<a z='1' b='2' id='3' Type='4' c='5'/>"));
  EXPECT_TRUE(xmlBytes(document).startsWith("<a id=\"3\" Type=\"4\" b=\"2\" c=\"5\" z=\"1\"/>"));
}

TEST(GuardedXml, readsWhatItWrites) {
  const QByteArray text = "<a b=\"1 &lt; &quot;2&quot;\">\n <c>x &amp; y</c>\n <!--d-->\n</a>\n";
  EXPECT_EQ(xmlBytes(*parseXml(text)).toStdString(), text.toStdString());
}

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

} // namespace
