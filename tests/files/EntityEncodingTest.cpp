#include "files/EntityEncoding.h"

#include "store/Manager.h"
#include "store/StoreTest.h"

#include <gtest/gtest.h>

namespace TVR {
namespace {

QString bytesOf(const QString& text) {
  return QString::fromLatin1(text.toUtf8());
}

TEST(EntityEncodingTest, everyLetterOfTheTableHasItsEntity) {
  const QString letters = QStringLiteral("äöüÄÖÜßàÀÁáâÂÃÇçÈèÉéÊêÅå");
  const QStringList entities{"&auml;",   "&ouml;",   "&uuml;",   "&Auml;",   "&Ouml;",   "&Uuml;",
                             "&szlig;",  "&agrave;", "&Agrave;", "&Aacute;", "&aacute;", "&Acirc;",
                             "&Acirc;",  "&Atilde;", "&Ccedil;", "&ccedil;", "&Egrave;", "&egrave;",
                             "&Eacute;", "&eacute;", "&Ecirc;",  "&ecirc;",  "&Aring;",  "&aring;"};
  EXPECT_EQ(encodeEntities(letters), entities.join(""));
}

TEST(EntityEncodingTest, decodingGivesTheLettersBack) {
  const QString letters = QStringLiteral("äöüÄÖÜßàÀÁáâÃÇçÈèÉéÊêÅå");
  EXPECT_EQ(decodeEntities(encodeEntities(letters)), letters);
}

TEST(EntityEncodingTest, capitalAWithCircumflexBecomesTheSmallOne) {
  EXPECT_EQ(decodeEntities(encodeEntities(QStringLiteral("Âge"))), QStringLiteral("âge"));
}

TEST(EntityEncodingTest, asciiStaysAsItIs) {
  const QString text = "a < b & \"c\" > 'd' \t\n 100%";
  EXPECT_EQ(encodeEntities(text), text);
  EXPECT_EQ(decodeEntities(text), text);
}

TEST(EntityEncodingTest, aLetterWithoutEntityBecomesTheBytesOfItsUtf8) {
  EXPECT_EQ(encodeEntities(QStringLiteral("ñ")), QStringLiteral("\u00c3\u00b1"));
  EXPECT_EQ(encodeEntities(QStringLiteral("°")).size(), 2);
  EXPECT_EQ(encodeEntities(QStringLiteral("€")).size(), 3);
}

TEST(EntityEncodingTest, aLetterWithoutEntityGrowsWithEachRoundTrip) {
  const QString once = decodeEntities(encodeEntities(QStringLiteral("ñ")));
  EXPECT_EQ(once.size(), 2);
  // The first of the two, Ã, has an entity of its own; the other one grows.
  const QString twice = decodeEntities(encodeEntities(once));
  EXPECT_EQ(twice, QStringLiteral("Ã") + bytesOf(QStringLiteral("\u00b1")));
}

TEST(EntityEncodingTest, theTextEndsAtTheFirstNul) {
  EXPECT_EQ(encodeEntities(QString("ab") + QChar(0) + "cd"), "ab");
}

TEST(EntityEncodingTest, anEntityThatWasInTheTextBecomesTheLetter) {
  EXPECT_EQ(decodeEntities(encodeEntities("K&auml;se")), QStringLiteral("Käse"));
}

TEST(EntityEncodingTest, namesAreCaseSensitiveAndOthersStay) {
  EXPECT_EQ(decodeEntities("&AUML;&amp;&auml"), "&AUML;&amp;&auml");
}

TEST(EntityEncodingTest, theStoreOffersBothDirections) {
  EXPECT_EQ(Data::Manager::decodeEntities(QStringLiteral("é"), false), "&eacute;");
  EXPECT_EQ(Data::Manager::decodeEntities("&eacute;", true), QStringLiteral("é"));
}

} // namespace
} // namespace TVR
