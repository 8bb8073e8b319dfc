#include "study/plan/CsvReader.h"

#include "support/TestDirectory.h"

#include <gtest/gtest.h>

using namespace TVR::Study;

namespace {

class CsvReaderTest : public testing::Test, protected TestDirectory {
protected:
  /// The cells of each line of a table.
  QList<QStringList> read(const QByteArray& content) const {
    QFile file(path("t.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    CsvReader reader(path("t.csv"));
    EXPECT_TRUE(reader.open(1000));
    QList<QStringList> lines;
    while (!reader.atEnd())
      lines << reader.next();
    return lines;
  }
};

} // namespace

TEST_F(CsvReaderTest, spacesAndQuotesAroundACellDoNotBelongToIt) {
  EXPECT_EQ(read("kf, \"aquifer_h\" ,\"\"\n\r\n0.1,\"0.2\",x\r\n"),
            (QList<QStringList>{{"kf", "aquifer_h", ""}, {}, {"0.1", "0.2", "x"}}));
}

TEST_F(CsvReaderTest, withinQuotesSeparatorsAndDoubledQuotesBelongToTheCell) {
  EXPECT_EQ(read("a,\"b, \"\"c\"\"\",d"), (QList<QStringList>{{"a", "b, \"c\"", "d"}}));
}

TEST_F(CsvReaderTest, theFirstLineTellsTheSeparator) {
  EXPECT_EQ(read("a;b\n1,5;2\n"), (QList<QStringList>{{"a", "b"}, {"1,5", "2"}}));
  EXPECT_EQ(read("a,b\n1;5,2\n"), (QList<QStringList>{{"a", "b"}, {"1;5", "2"}}));
}

TEST_F(CsvReaderTest, theMarkThatSpreadsheetsBeginWithIsNoText) {
  EXPECT_EQ(read("\xEF\xBB\xBFkf\n"), QList<QStringList>{{"kf"}});
}

TEST_F(CsvReaderTest, aFileThatIsTooLargeOrNotThereIsNotOpened) {
  read("kf\n0.001\n");
  EXPECT_FALSE(CsvReader(path("t.csv")).open(8));
  EXPECT_FALSE(CsvReader(path("none.csv")).open(1000));
}
