#include "core/record.h"
#include "core/misc.h"
#include "platform/error.h"
#include "tests/support/scriptedtest.h"

using namespace umbrith;

namespace {

QList<Value> readAll(const QString& text) {
    RecordReader reader(text);
    QList<Value> fields;
    while (!reader.atEnd())
        fields.append(reader.next());
    return fields;
}

} // namespace

TEST(RecordTest, writesEachKindInItsOwnForm) {
    QList<Value> fields = {Value("a,b"), Value(12), Value(0.5), Value(-3), Value(true), Value(false), Value(), Value("")};
    EXPECT_EQ(writeRecord(fields), "\"a,b\",12,0.5,-3,#TRUE#,#FALSE#,,\"\"\r\n");
    QList<Value> back = readAll(writeRecord(fields));
    ASSERT_EQ(back.size(), fields.size());
    EXPECT_EQ(back[0], Value("a,b"));
    EXPECT_EQ(back[1], Value(12));
    EXPECT_EQ(back[2], Value(0.5));
    EXPECT_EQ(back[4], Value(true));
    EXPECT_EQ(back[5], Value(false));
    EXPECT_TRUE(back[6].isEmpty());
    EXPECT_EQ(back[7], Value(""));
}

TEST(RecordTest, aQuoteEndsTheTextAndTheRestUpToTheCommaIsDropped) {
    QList<Value> back = readAll("\"He said \"hello\" twice\",7\r\n");
    ASSERT_EQ(back.size(), 2);
    EXPECT_EQ(back[0], Value("He said "));
    EXPECT_EQ(back[1], Value(7));
    // Written as it stands, cut when read.
    EXPECT_EQ(writeRecord({Value("a\"b")}), "\"a\"b\"\r\n");
}

TEST(RecordTest, lineBreaksAndCommasInsideQuotesBelongToTheText) {
    QString text = "line one\r\nline two, with a comma";
    QList<Value> back = readAll(writeRecord({Value(text), Value(3)}));
    ASSERT_EQ(back.size(), 2);
    EXPECT_EQ(back[0], Value(text));
}

TEST(RecordTest, aLineBreakBetweenItemsReadsLikeAComma) {
    QList<Value> back = readAll("\"a\"\r\n\"b\"\n12\r\n#TRUE#\r\n");
    ASSERT_EQ(back.size(), 4);
    EXPECT_EQ(back[1], Value("b"));
    EXPECT_EQ(back[2], Value(12));
    EXPECT_EQ(back[3], Value(true));
}

TEST(RecordTest, emptyFieldsStandBetweenCommasAndAtTheEndOfALine) {
    QList<Value> back = readAll(",,\"x\",\r\n");
    ASSERT_EQ(back.size(), 4);
    EXPECT_TRUE(back[0].isEmpty());
    EXPECT_TRUE(back[1].isEmpty());
    EXPECT_EQ(back[2], Value("x"));
    EXPECT_TRUE(back[3].isEmpty());
}

TEST(RecordTest, unquotedFieldsAreNumbersWhenTheyAreWhollyNumbers) {
    QList<Value> back = readAll(" 007 ,12ab, abc\r\n");
    ASSERT_EQ(back.size(), 3);
    EXPECT_EQ(back[0], Value(7));
    EXPECT_EQ(back[1], Value("12ab"));
    EXPECT_EQ(back[2], Value("abc"));
}

TEST(RecordTest, readingPastTheEndIsAnErrorTheCallerTraps) {
    RecordReader reader("\"only\"\r\n");
    EXPECT_EQ(reader.next(), Value("only"));
    EXPECT_TRUE(reader.atEnd());
    try {
        reader.next();
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), err::InputPastEnd);
        EXPECT_EQ(error.text(), "Input past end of file");
    }
    EXPECT_THROW(RecordReader("").next(), RuntimeError);
}

TEST(RecordTest, aMegabyteLineReadsInOnePiece) {
    QString big;
    for (int i = 0; i < 200000; ++i)
        big += QStringLiteral(":1|2;");
    QList<Value> back = readAll(writeRecord({Value(big), Value(1)}));
    ASSERT_EQ(back.size(), 2);
    EXPECT_EQ(back[0].text().size(), big.size());
}

class RecordFileTest : public ScriptedTest {};

TEST_F(RecordFileTest, everyByteOfTheCodePageRoundTrips) {
    QByteArray bytes;
    for (int b = 0; b < 256; ++b)
        if (b != '"' && b != '\r' && b != '\n')
            bytes += char(b);
    writeFile("\\all.ubc", "\"" + bytes + "\"\r\n");
    QList<Value> fields = readRecordFile(AppPath() + "\\all.ubc", 1);
    QString text = fields[0].text();
    EXPECT_TRUE(text.contains(QStringLiteral("ƒ")));
    EXPECT_EQ(text.indexOf(QStringLiteral("ƒ")), bytes.indexOf('\x83'));
    for (const char* sample : {"Ü", "£", "¥", "Ä", "§", "×", "Ö", "ô"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(sample))) << sample;
    writeRecordFile(AppPath() + "\\copy.ubc", fields);
    EXPECT_EQ(readFile("\\copy.ubc"), readFile("\\all.ubc"));
}

TEST_F(RecordFileTest, fewerFieldsThanAskedForFailWithTheReadError) {
    writeFile("\\short.ubc", "\"a\",1\r\n");
    EXPECT_THROW(readRecordFile(AppPath() + "\\short.ubc", 3), RuntimeError);
    EXPECT_EQ(readRecordFile(AppPath() + "\\short.ubc", 2).size(), 2);
    EXPECT_THROW(readRecordFile(AppPath() + "\\missing.ubc", 1), RuntimeError);
}
