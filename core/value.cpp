#include "core/value.h"

#include "platform/error.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>

namespace umbrith {

namespace {

bool isBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n'; }
bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

// `text` holds the digits read as "whole.fraction" with an optional "e"
// exponent; a result beyond the doubles is infinite, or 0 for a tiny one.
double fromDecimal(const std::string& text) {
    double result = 0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), result);
    if (ec == std::errc::result_out_of_range)
        return text.find("e-") == std::string::npos ? HUGE_VAL : 0.0;
    return result;
}

// "&H" and "&O" numbers; four hex digits or fewer read as a 16-bit pattern,
// eight or fewer as a 32-bit one, as the old runtime did.
double radixNumber(QStringView s, qsizetype& i, int radix) {
    long long value = 0;
    int count = 0;
    while (i < s.size()) {
        QChar c = s[i].toUpper();
        int digit = isDigit(c) ? c.unicode() - u'0' : (c >= u'A' && c <= u'F') ? c.unicode() - u'A' + 10 : radix;
        if (digit >= radix)
            break;
        value = value * radix + digit;
        if (value > 0xFFFFFFFFLL)
            return double(value);
        ++count, ++i;
    }
    if (radix == 16 && count <= 4 && value > 0x7FFF)
        return double(value - 0x10000);
    if (value > 0x7FFFFFFF)
        return double(value - 0x100000000LL);
    return double(value);
}

// Reads the numeric prefix from i on. `strict` refuses blanks inside the digits.
// Returns false when no digit at all was read.
bool readNumber(QStringView s, qsizetype& i, bool strict, double& result) {
    auto skipInner = [&] {
        while (!strict && i < s.size() && isBlank(s[i]))
            ++i;
    };
    if (i + 1 < s.size() && s[i] == u'&' && (s[i + 1].toUpper() == u'H' || s[i + 1].toUpper() == u'O')) {
        int radix = s[i + 1].toUpper() == u'H' ? 16 : 8;
        i += 2;
        qsizetype start = i;
        result = radixNumber(s, i, radix);
        return i > start;
    }
    bool negative = false;
    if (i < s.size() && (s[i] == u'-' || s[i] == u'+'))
        negative = s[i++] == u'-';
    // One buffer for the whole number, short enough for most to need no
    // allocation: the rules read numbers at every step.
    std::string digits;
    for (skipInner(); i < s.size() && isDigit(s[i]); skipInner())
        digits += char(s[i++].unicode());
    const size_t wholeCount = digits.size();
    if (i < s.size() && s[i] == u'.') {
        ++i;
        for (skipInner(); i < s.size() && isDigit(s[i]); skipInner())
            digits += char(s[i++].unicode());
    }
    const bool anyDigit = !digits.empty();
    if (anyDigit)
        digits.insert(wholeCount, 1, '.');
    if (anyDigit && i < s.size() && (s[i] == u'E' || s[i] == u'e' || s[i] == u'D' || s[i] == u'd')) {
        const qsizetype mark = i++;
        const size_t withoutExponent = digits.size();
        digits += 'e';
        if (i < s.size() && (s[i] == u'-' || s[i] == u'+'))
            digits += char(s[i++].unicode());
        qsizetype firstDigit = i;
        for (skipInner(); i < s.size() && isDigit(s[i]); skipInner())
            digits += char(s[i++].unicode());
        if (i == firstDigit) {
            digits.resize(withoutExponent);
            if (strict)
                i = mark; // a dangling exponent letter is not part of a strict number
        }
    }
    const double magnitude = anyDigit ? fromDecimal(digits) : 0;
    result = negative ? -magnitude : magnitude;
    return anyDigit;
}

int sign(double d) { return d < 0 ? -1 : (d > 0 ? 1 : 0); }

int64_t roundedInteger(const Value& value, int64_t low, int64_t high) {
    double rounded = std::nearbyint(toDouble(value)); // halves to even
    if (!(rounded >= double(low) && rounded <= double(high)))
        err::raise(err::Overflow);
    return int64_t(rounded);
}

} // namespace

QString Value::text() const {
    switch (kind()) {
    case Kind::Empty: return QString();
    case Kind::Number: return numberText(std::get<double>(data_));
    case Kind::Boolean: return std::get<bool>(data_) ? QStringLiteral("True") : QStringLiteral("False");
    case Kind::Text: return std::get<QString>(data_);
    }
    return QString();
}

double Value::num() const {
    switch (kind()) {
    case Kind::Empty: return 0;
    case Kind::Number: return std::get<double>(data_);
    case Kind::Boolean: return std::get<bool>(data_) ? -1 : 0;
    case Kind::Text: return Val(std::get<QString>(data_));
    }
    return 0;
}

double Val(const QString& text) {
    qsizetype i = 0;
    while (i < text.size() && isBlank(text[i]))
        ++i;
    double result = 0;
    readNumber(text, i, false, result);
    return result;
}

QString numberText(double number) {
    if (number == 0)
        return QStringLiteral("0");
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.15g", number);
    return QString::fromLatin1(buffer).toUpper();
}

// A plain decimal, the usual number of the game's files: an optional minus,
// digits and one point. False for anything else, which the full reader takes.
bool readPlainDecimal(QStringView text, double& result) {
    char plain[32];
    if (text.isEmpty() || text.size() > qsizetype(sizeof plain))
        return false;
    bool digit = false, point = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (c >= u'0' && c <= u'9')
            digit = true;
        else if (c == u'.' && !point)
            point = true;
        else if (c != u'-' || i != 0)
            return false;
        plain[i] = char(c);
    }
    const char* end = plain + text.size();
    return digit && std::from_chars(plain, end, result).ptr == end;
}

bool readStrictNumber(QStringView text, double& result) {
    if (!text.isEmpty() && (text.front().isSpace() || text.back().isSpace()))
        text = text.trimmed();
    if (readPlainDecimal(text, result))
        return true;
    qsizetype i = 0;
    return readNumber(text, i, true, result) && i == text.size();
}

double toDouble(const Value& value) {
    if (!value.isText())
        return value.num();
    double result = 0;
    if (!readStrictNumber(value.text(), result))
        err::raise(err::TypeMismatch);
    return result;
}

int16_t toInt16(const Value& value) { return int16_t(roundedInteger(value, -32768, 32767)); }
int32_t toInt32(const Value& value) { return int32_t(roundedInteger(value, INT32_MIN, INT32_MAX)); }
double Int(double number) { return std::floor(number); }

int compare(const Value& a, const Value& b) {
    bool aText = a.isText(), bText = b.isText();
    if (aText && bText)
        return sign(a.text().compare(b.text()));
    if (a.isEmpty() && bText)
        return sign(QString().compare(b.text()));
    if (aText && b.isEmpty())
        return sign(a.text().compare(QString()));
    if (aText != bText)
        return aText ? 1 : -1; // a number sorts below any text
    return sign(a.num() - b.num());
}

int compareWithNumber(const Value& value, double literal) { return sign(toDouble(value) - literal); }

int compareWithText(const Value& value, const QString& literal) { return sign(value.text().compare(literal)); }

bool isTrue(const Value& value) {
    if (value.isText()) {
        QString text = value.text().trimmed();
        if (text.compare(u"True", Qt::CaseInsensitive) == 0)
            return true;
        if (text.compare(u"False", Qt::CaseInsensitive) == 0)
            return false;
    }
    return toDouble(value) != 0;
}

Value And(const Value& a, const Value& b) {
    if (a.isBool() && b.isBool())
        return Value(isTrue(a) && isTrue(b));
    return Value(double(toInt32(a) & toInt32(b)));
}

Value Or(const Value& a, const Value& b) {
    if (a.isBool() && b.isBool())
        return Value(isTrue(a) || isTrue(b));
    return Value(double(toInt32(a) | toInt32(b)));
}

Value Not(const Value& a) {
    if (a.isBool())
        return Value(!isTrue(a));
    return Value(double(~toInt32(a)));
}

QString Format(double number, const QString& format) {
    qsizetype dot = format.indexOf(u'.');
    int decimals = dot < 0 ? 0 : int(format.size() - dot - 1);
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(number));
    std::string digits = std::string(1, buffer[0]) + std::string(buffer + 2, 14);
    int exponent = std::atoi(buffer + 17);
    // `kept` holds the number times 10^decimals as decimal digits.
    int keep = exponent + 1 + decimals;
    std::string kept;
    if (keep >= int(digits.size())) {
        kept = digits + std::string(keep - digits.size(), '0');
    } else if (keep >= 0) {
        kept = digits.substr(0, keep);
        if (digits[keep] >= '5') {
            int k = int(kept.size()) - 1;
            for (; k >= 0 && kept[k] == '9'; --k)
                kept[k] = '0';
            if (k < 0)
                kept.insert(kept.begin(), '1');
            else
                ++kept[k];
        }
    }
    if (kept.size() < size_t(decimals) + 1)
        kept.insert(0, decimals + 1 - kept.size(), '0');
    std::string whole = kept.substr(0, kept.size() - decimals);
    std::string fraction = kept.substr(kept.size() - decimals);
    size_t firstNonZero = whole.find_first_not_of('0');
    whole = firstNonZero == std::string::npos ? "0" : whole.substr(firstNonZero);
    bool zero = kept.find_first_not_of('0') == std::string::npos;
    std::string result = (number < 0 && !zero ? "-" : "") + whole + (decimals ? "." + fraction : "");
    return QString::fromLatin1(result.c_str());
}

} // namespace umbrith
