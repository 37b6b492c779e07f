#pragma once

#include <QString>
#include <cstdint>
#include <variant>

namespace umbrith {

// One dynamically typed slot: empty, number, true/false or text. Fields come
// from text files and go into arithmetic unchecked, so these conversion and
// comparison rules are part of the game's behaviour.
class Value {
public:
    enum class Kind { Empty, Number, Boolean, Text };

    Value() = default;
    Value(double number) : data_(number) {}
    Value(int number) : data_(double(number)) {}
    Value(bool flag) : data_(flag) {}
    Value(const QString& text) : data_(text) {}
    Value(const char* utf8) : data_(QString::fromUtf8(utf8)) {}

    Kind kind() const { return Kind(data_.index()); }
    bool isEmpty() const { return kind() == Kind::Empty; }
    bool isNumber() const { return kind() == Kind::Number; }
    bool isBool() const { return kind() == Kind::Boolean; }
    bool isText() const { return kind() == Kind::Text; }

    // The value joined into text: numbers in shortest form, "True"/"False", "" for empty.
    QString text() const;
    // The value where a number is wanted by the game's rules: texts through Val,
    // true/false as -1/0, empty as 0. Never fails.
    double num() const;

    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, double, bool, QString> data_;
};

// Numeric prefix parse; never fails.
double Val(const QString& text);
// Shortest decimal text of a number ("12", "0.5", "1E+16").
QString numberText(double number);
// Strict conversion of a value to a number: a text that is not wholly a number
// is a type mismatch.
double toDouble(const Value& value);
// The same for a text, without the error: false when it is no number.
bool readStrictNumber(QStringView text, double& result);
// Integer conversions with halves to even; out of range is an overflow.
int16_t toInt16(const Value& value);
int32_t toInt32(const Value& value);
// Rounds down.
double Int(double number);

// Comparison of two dynamically typed values: numbers below texts, never equal.
int compare(const Value& a, const Value& b);
// Comparison against a number literal: a text is converted strictly.
int compareWithNumber(const Value& value, double literal);
// Comparison against a text literal: a number turns into text first.
int compareWithText(const Value& value, const QString& literal);

// -1/0 truth: a condition holds when its value is non-zero.
bool isTrue(const Value& value);
// Bitwise on the 32-bit integers of the values; two true/false values give true/false.
Value And(const Value& a, const Value& b);
Value Or(const Value& a, const Value& b);
Value Not(const Value& a);

// Format with "0" or "0.00": halves rounded away from zero on the decimal digits.
QString Format(double number, const QString& format);

} // namespace umbrith
