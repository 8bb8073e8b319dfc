#include "xml/GuardedXml.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace TVR {
namespace {

bool parses(const QByteArray& bytes, const XmlLimits& limits = {}) {
  QDomDocument document;
  return parseGuarded(bytes, document, limits);
}

QString textOf(const QByteArray& bytes) {
  QDomDocument document;
  EXPECT_TRUE(parseGuarded(bytes, document));
  return document.documentElement().text();
}

QByteArray nested(int depth) {
  return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

TEST(GuardedXmlTest, anOrdinaryDocumentIsTaken) {
  EXPECT_TRUE(parses("<?xml version=\"1.0\"?><!-- <b> --><!DOCTYPE a><a b='>' c=\"'\"><![CDATA[<x>"
                     "]]><d/><?pi <e> ?></a>"));
}

TEST(GuardedXmlTest, whatIsNotWellFormedIsRefused) {
  for (const char* const text :
       {"", " ", "<", "<a", "<a b='", "<!--", "<![CDATA[", "<?", "<!DOCTYPE", "<!DOCTYPE a [",
        "<a></b>", "<a>", "</a>", "<a/><a/>", "\0x"})
    EXPECT_FALSE(parses(text)) << text;
}

TEST(GuardedXmlTest, aRefusedDocumentIsEmpty) {
  QDomDocument document;
  ASSERT_TRUE(parseGuarded("<a/>", document));
  EXPECT_FALSE(parseGuarded(nested(1000), document));
  EXPECT_TRUE(document.documentElement().isNull());
}

TEST(GuardedXmlTest, depthIsLimited) {
  EXPECT_TRUE(parses(nested(256)));
  EXPECT_FALSE(parses(nested(257)));
  EXPECT_FALSE(parses(nested(100'000)));
}

TEST(GuardedXmlTest, depthWithoutEndTagsIsLimited) {
  EXPECT_FALSE(parses(QByteArray("<a>").repeated(100'000)));
}

TEST(GuardedXmlTest, elementsBesideEachOtherAreNotDeep) {
  EXPECT_TRUE(parses("<a>" + QByteArray("<b><c/></b>").repeated(10'000) + "</a>"));
}

TEST(GuardedXmlTest, theNumberOfMarksIsLimited) {
  XmlLimits limits;
  limits.marks = 10;
  EXPECT_TRUE(parses("<a>" + QByteArray("<b/>").repeated(8) + "</a>", limits));
  EXPECT_FALSE(parses("<a>" + QByteArray("<b/>").repeated(9) + "</a>", limits));
}

TEST(GuardedXmlTest, theNumberOfAttributesIsLimited) {
  XmlLimits limits;
  limits.attributes = 3;
  EXPECT_TRUE(parses("<a b='' c=''><d e=''/></a>", limits));
  EXPECT_FALSE(parses("<a b='' c=''><d e='' f=''/></a>", limits));
}

TEST(GuardedXmlTest, theSizeIsLimited) {
  XmlLimits limits;
  limits.bytes = 6;
  EXPECT_TRUE(parses("<abc/>", limits));
  EXPECT_FALSE(parses("<abcd/>", limits));
}

TEST(GuardedXmlTest, anAttributeOf64MebibytesIsTaken) {
  EXPECT_TRUE(parses("<a b=\"" + QByteArray(64 << 20, 'x') + "\"/>"));
}

TEST(GuardedXmlTest, aSimpleEntityIsExpanded) {
  EXPECT_EQ(textOf("<!DOCTYPE a [<!ENTITY e 'text'>]><a>&e;</a>"), "text");
}

TEST(GuardedXmlTest, theFiveKnownEntitiesMayStandAsOftenAsTheyLike) {
  EXPECT_EQ(textOf("<a>" + QByteArray("&amp;").repeated(100'000) + "</a>").size(), 100'000);
}

TEST(GuardedXmlTest, anEntityOfEntitiesIsRefused) {
  EXPECT_FALSE(parses("<!DOCTYPE a [<!ENTITY e 'x'><!ENTITY f '&e;&e;'>]><a>&f;</a>"));
  EXPECT_FALSE(parses("<!DOCTYPE a [<!ENTITY e 'x'><!ENTITY f '&#38;e;'>]><a>&f;</a>"));
}

TEST(GuardedXmlTest, aThousandMillionLaughsAreRefused) {
  QByteArray text = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
  for (int i = 1; i < 30; ++i)
    text += "<!ENTITY e" + QByteArray::number(i) + " '" +
            ("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "'>";
  EXPECT_FALSE(parses(text + "]><a>&e29;</a>"));
}

TEST(GuardedXmlTest, anEntityThatHoldsElementsIsRefused) {
  EXPECT_FALSE(parses("<!DOCTYPE a [<!ENTITY e '<b><c/></b>'>]><a>&e;</a>"));
}

TEST(GuardedXmlTest, aLongEntityIsRefused) {
  EXPECT_FALSE(parses("<!DOCTYPE a [<!ENTITY e '" + QByteArray(1025, 'x') + "'>]><a>&e;</a>"));
}

TEST(GuardedXmlTest, anEntityThatIsUsedTooOftenIsRefused) {
  const QByteArray type = "<!DOCTYPE a [<!ENTITY e '" + QByteArray(1000, 'x') + "'>]>";
  EXPECT_TRUE(parses(type + "<a>" + QByteArray("&e;").repeated(1000) + "</a>"));
  EXPECT_FALSE(parses(type + "<a>" + QByteArray("&e;").repeated(20'000) + "</a>"));
  EXPECT_FALSE(parses(type + "<a b='" + QByteArray("&e;").repeated(20'000) + "'/>"));
}

TEST(GuardedXmlTest, anEntityOfTheDeclarationItselfIsRefused) {
  EXPECT_FALSE(parses("<!DOCTYPE a [<!ENTITY % p \"<!ENTITY q 'zz'>\"> %p;]><a>&q;</a>"));
}

TEST(GuardedXmlTest, aFileThatAnEntityNamesIsNotRead) {
  const QTemporaryDir directory;
  QFile secret(directory.filePath("secret"));
  ASSERT_TRUE(secret.open(QIODevice::WriteOnly));
  secret.write("secret");
  secret.close();
  QDomDocument document;
  parseGuarded("<!DOCTYPE a [<!ENTITY e SYSTEM \"file://" + secret.fileName().toUtf8() +
                   "\">]><a>&e;</a>",
               document);
  EXPECT_FALSE(document.toString().contains("<a>secret"));
}

TEST(GuardedXmlTest, aMarkInACommentOrInQuotesCountsOnce) {
  EXPECT_TRUE(parses("<!DOCTYPE a [<!-- ' <!ENTITY e '&x;'> -->]><a/>"));
  EXPECT_TRUE(parses("<a><!-- " + QByteArray("<b>").repeated(1000) + " --></a>"));
  EXPECT_TRUE(parses("<a b='" + QByteArray(">").repeated(1000) + "'/>"));
}

TEST(GuardedXmlTest, depthIsSeenInEveryEncoding) {
  const QString deep = QString::fromLatin1(nested(1000));
  const QByteArray utf16(reinterpret_cast<const char*>(deep.utf16()), deep.size() * 2);
  EXPECT_FALSE(parses("\xff\xfe" + utf16));
  const QString flat = QStringLiteral("<a>\u00fc</a>");
  EXPECT_EQ(
      textOf("\xff\xfe" + QByteArray(reinterpret_cast<const char*>(flat.utf16()), flat.size() * 2)),
      QStringLiteral("\u00fc"));
}

TEST(GuardedXmlTest, theDeclaredEncodingIsUsed) {
  EXPECT_EQ(textOf("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xfc</a>"),
            QStringLiteral("\u00fc"));
  EXPECT_EQ(textOf("<?xml version='1.0' encoding='unheard-of'?><a>\xc3\xbc</a>"),
            QStringLiteral("\u00fc"));
  EXPECT_EQ(textOf("\xef\xbb\xbf<a>\xc3\xbc</a>"), QStringLiteral("\u00fc"));
}

TEST(GuardedXmlTest, bytesThatAreNoTextAreTakenAsFarAsTheParserDoes) {
  EXPECT_TRUE(parses("<a>\xfc</a>"));
}

TEST(GuardedXmlTest, aFileWithoutEndIsNotReadToItsEnd) {
  QDomDocument document;
  EXPECT_FALSE(readGuarded("/dev/zero", document));
}

TEST(GuardedXmlTest, aMissingFileIsRefused) {
  QDomDocument document;
  EXPECT_FALSE(readGuarded("/no/such/file.tvr", document));
}

} // namespace
} // namespace TVR
