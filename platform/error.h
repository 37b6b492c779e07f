#pragma once

#include <QString>
#include <stdexcept>

namespace umbrith {

// A trappable run-time failure: the number and the system's own text, which
// handlers show under "This was the error" after their own wording.
class RuntimeError : public std::runtime_error {
public:
    RuntimeError(int number, const QString& text);
    int number() const { return number_; }
    QString text() const { return text_; }

private:
    int number_;
    QString text_;
};

namespace err {
constexpr int InvalidProcedureCall = 5;
constexpr int Overflow = 6;
constexpr int SubscriptOutOfRange = 9;
constexpr int DivisionByZero = 11;
constexpr int TypeMismatch = 13;
constexpr int FileNotFound = 53;
constexpr int InputPastEnd = 62;
constexpr int PathFileAccess = 75;
constexpr int PathNotFound = 76;
constexpr int InvalidPropertyValue = 380;
constexpr int InvalidPicture = 481;

[[noreturn]] void raise(int number);
} // namespace err

} // namespace umbrith
