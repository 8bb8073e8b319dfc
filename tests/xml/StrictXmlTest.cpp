#include "xml/GuardedXml.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace {

using namespace TVR;

TEST(StrictXml, readsElementsAttributesTextsAndComments) {
  const auto document =
      parseStrictly("<a b=\"1\"> <c>text &amp; <![CDATA[<more>]]></c><!--d--></a>");
  ASSERT_TRUE(document);
  const QDomElement root = document->documentElement();
  EXPECT_EQ(root.attribute("b"), "1");
  EXPECT_EQ(root.firstChildElement("c").text(), "text & <more>");
  EXPECT_TRUE(root.lastChild().isComment());
}

TEST(StrictXml, acceptsADocumentTypeWithoutDeclarations) {
  EXPECT_TRUE(parseStrictly("<?xml version=\"1.0\"?><!DOCTYPE GraphicWidgetExport><a/>"));
}

TEST(StrictXml, refusesWhatIsNotWellFormed) {
  for (const char* text : {"", "a", "<a>", "<a></b>", "<a/><b/>", "<a b='1' b='2'/>", "<a b=1/>",
                           "<a>&nosuch;</a>", "<a><!-- -- --></a>", "<a"})
    EXPECT_FALSE(parseStrictly(text)) << text;
}

TEST(StrictXml, refusesDeclarations) {
  for (const char* text : {"<!DOCTYPE a [<!ENTITY b 'x'>]><a>&b;</a>", "<!DOCTYPE a []><a/>",
                           "<!DOCTYPE a [<!ATTLIST a b CDATA 'x'>]><a/>",
                           "<!DOCTYPE a SYSTEM 'file' [<!ENTITY % b 'x'> %b;]><a/>"})
    EXPECT_FALSE(parseStrictly(text)) << text;
}

TEST(StrictXml, refusesAnEntityBombAtOnce) {
  QByteArray bomb = "<!DOCTYPE a [<!ENTITY e0 'xxxxxxxxxx'>";
  for (int level = 1; level < 12; ++level)
    bomb += "<!ENTITY e" + QByteArray::number(level) + " '" +
            QByteArray("&e" + QByteArray::number(level - 1) + ";").repeated(10) + "'>";
  QElapsedTimer time;
  time.start();
  EXPECT_FALSE(parseStrictly(bomb + "]><a>&e11;</a>"));
  EXPECT_LT(time.elapsed(), 1000);
}

TEST(StrictXml, refusesADepthOfAHundredThousand) {
  EXPECT_FALSE(
      parseStrictly(QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000)));
}

TEST(StrictXml, readsADepthOfAHundred) {
  EXPECT_TRUE(parseStrictly(QByteArray("<a>").repeated(100) + QByteArray("</a>").repeated(100)));
}

TEST(StrictXml, refusesMoreElementsThanAllowed) {
  EXPECT_FALSE(parseStrictly("<a>" + QByteArray("<b/>").repeated(11) + "</a>", {.elements = 11}));
  EXPECT_TRUE(parseStrictly("<a>" + QByteArray("<b/>").repeated(10) + "</a>", {.elements = 11}));
}

TEST(StrictXml, refusesMoreBytesThanAllowed) {
  EXPECT_FALSE(parseStrictly("<a>1234</a>", {.bytes = 10}));
  EXPECT_TRUE(parseStrictly("<a>123</a>", {.bytes = 10}));
}

TEST(StrictXml, refusesATagWithVeryManyAttributesAtOnce) {
  QByteArray tag = "<a";
  for (int index = 0; index < 200000; ++index)
    tag += " b" + QByteArray::number(index) + "='>'";
  QElapsedTimer time;
  time.start();
  EXPECT_FALSE(parseStrictly(tag + "/>", {.attributesOfElement = 1000}));
  EXPECT_LT(time.elapsed(), 1000);
}

TEST(StrictXml, countsNoEqualsSignsOfTextsAndComments) {
  const QByteArray signs = QByteArray("=").repeated(5000);
  EXPECT_TRUE(parseStrictly("<a b='" + signs + "'>" + signs + "<!-- '<a " + signs +
                                "' --><![CDATA[<c " + signs + "]]></a>",
                            {.attributesOfElement = 1000}));
}

TEST(StrictXml, readsAnAttributeOfTenMegabytes) {
  const auto document = parseStrictly("<a b='" + QByteArray(10'000'000, 'x') + "'/>");
  ASSERT_TRUE(document);
  EXPECT_EQ(document->documentElement().attribute("b").size(), 10'000'000);
}

} // namespace
