#include "core/value.h"
#include "platform/error.h"
#include "tests/support/errorof.h"
#include "tests/support/qtprint.h"

#include <gtest/gtest.h>

using namespace umbrith;

TEST(ValTest, readsTheNumericPrefixAndNeverFails) {
    EXPECT_EQ(Val("007"), 7);
    EXPECT_EQ(Val("1e3"), 1000);
    EXPECT_EQ(Val("1D2"), 100);
    EXPECT_EQ(Val("1,000"), 1);
    EXPECT_EQ(Val(" 12"), 12);
    EXPECT_EQ(Val("\t\n12"), 12);
    EXPECT_EQ(Val("12ab"), 12);
    EXPECT_EQ(Val("1 2 3"), 123);
    EXPECT_EQ(Val("-3.5e-1"), -0.35);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("+4"), 4);
    EXPECT_EQ(Val("1e"), 1);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("-"), 0);
    EXPECT_EQ(Val("."), 0);
}

TEST(ValTest, readsHexAndOctalAsTheOldRuntimeDid) {
    EXPECT_EQ(Val("&H10"), 16);
    EXPECT_EQ(Val("&O10"), 8);
    EXPECT_EQ(Val("&hff"), 255);
    EXPECT_EQ(Val("&HFFFF"), -1);
    EXPECT_EQ(Val("&H10000"), 65536);
    EXPECT_EQ(Val("&H"), 0);
}

TEST(ValueTextTest, numbersShowInShortestFormAndFlagsAsWords) {
    EXPECT_EQ(numberText(12), "12");
    EXPECT_EQ(numberText(0.5), "0.5");
    EXPECT_EQ(numberText(1000000), "1000000");
    EXPECT_EQ(numberText(-2.25), "-2.25");
    EXPECT_EQ(numberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(numberText(1e16), "1E+16");
    EXPECT_EQ(numberText(-0.0), "0");
    EXPECT_EQ(Value(true).text(), "True");
    EXPECT_EQ(Value(false).text(), "False");
    EXPECT_EQ(Value().text(), "");
    EXPECT_EQ(Value("5abc").num(), 5);
    EXPECT_EQ(Value(true).num(), -1);
}

TEST(IntegerConversionTest, roundsHalvesToEvenAndOverflowsOutOfRange) {
    EXPECT_EQ(toInt16(Value(0.5)), 0);
    EXPECT_EQ(toInt16(Value(1.5)), 2);
    EXPECT_EQ(toInt16(Value(2.5)), 2);
    EXPECT_EQ(toInt16(Value(3.5)), 4);
    EXPECT_EQ(toInt16(Value(-0.5)), 0);
    EXPECT_EQ(toInt16(Value(-1.5)), -2);
    EXPECT_EQ(toInt16(Value(2.6)), 3);
    EXPECT_EQ(toInt16(Value(" 12 ")), 12);
    EXPECT_EQ(toInt16(Value(true)), -1);
    EXPECT_EQ(toInt16(Value(-32768.5)), -32768);
    EXPECT_EQ(errorOf([] { toInt16(Value(32767.5)); }), err::Overflow);
    EXPECT_EQ(errorOf([] { toInt16(Value(40000)); }), err::Overflow);
    EXPECT_EQ(toInt32(Value(40000)), 40000);
    EXPECT_EQ(errorOf([] { toInt32(Value(2147483648.0)); }), err::Overflow);
    EXPECT_EQ(errorOf([] { toInt16(Value("12ab")); }), err::TypeMismatch);
    EXPECT_EQ(errorOf([] { toInt16(Value("")); }), err::TypeMismatch);
    EXPECT_EQ(Int(2.7), 2);
    EXPECT_EQ(Int(-2.1), -3);
}

TEST(CompareTest, numbersSortBelowTextsAndAreNeverEqualToThem) {
    EXPECT_LT(compare(Value(99999), Value("1")), 0);
    EXPECT_GT(compare(Value("1"), Value(1)), 0);
    EXPECT_EQ(compare(Value(2), Value(2.0)), 0);
    EXPECT_LT(compare(Value(2), Value(10)), 0);
    EXPECT_LT(compare(Value("10"), Value("2")), 0);  // as text
    EXPECT_LT(compare(Value("B"), Value("a")), 0);   // by character code
    EXPECT_NE(compare(Value("a"), Value("A")), 0);   // case-sensitive
    EXPECT_LT(compare(Value(true), Value(0)), 0);    // true counts as -1
    EXPECT_EQ(compare(Value(), Value(0)), 0);
    EXPECT_EQ(compare(Value(), Value("")), 0);
}

TEST(CompareTest, literalsDecideBetweenNumberAndTextComparison) {
    EXPECT_EQ(compareWithNumber(Value(" 12 "), 12), 0);
    EXPECT_GT(compareWithNumber(Value("12"), 9), 0);
    EXPECT_EQ(errorOf([] { compareWithNumber(Value("abc"), 1); }), err::TypeMismatch);
    EXPECT_LT(compareWithText(Value(12), "9"), 0);  // "12" < "9"
    EXPECT_EQ(compareWithText(Value(true), "True"), 0);
}

TEST(TruthTest, flagsAreMinusOneAndZeroAndTheOperatorsAreBitwise) {
    EXPECT_EQ(Not(Value(1)).num(), -2);
    EXPECT_TRUE(isTrue(Not(Value(1))));
    EXPECT_FALSE(isTrue(Not(Value(-1))));
    EXPECT_EQ(And(Value(6), Value(3)).num(), 2);
    EXPECT_EQ(Or(Value(4), Value(1)).num(), 5);
    EXPECT_EQ(And(Value(true), Value(false)), Value(false));
    EXPECT_EQ(Not(Value(false)), Value(true));
    EXPECT_FALSE(isTrue(Value()));
    EXPECT_TRUE(isTrue(Value("2")));
    EXPECT_TRUE(isTrue(Value("True")));
    EXPECT_EQ(errorOf([] { isTrue(Value("abc")); }), err::TypeMismatch);
}

TEST(FormatTest, roundsHalvesAwayFromZeroOnTheDecimalDigits) {
    EXPECT_EQ(Format(2.5, "0"), "3");
    EXPECT_EQ(Format(3.5, "0"), "4");
    EXPECT_EQ(Format(2.4999, "0"), "2");
    EXPECT_EQ(Format(-2.5, "0"), "-3");
    EXPECT_EQ(Format(0.125, "0.00"), "0.13");
    EXPECT_EQ(Format(1.005, "0.00"), "1.01");
    EXPECT_EQ(Format(99.999, "0.00"), "100.00");
    EXPECT_EQ(Format(0, "0.00"), "0.00");
    EXPECT_EQ(Format(0.004, "0.00"), "0.00");
    EXPECT_EQ(Format(1234567, "0"), "1234567");
}
