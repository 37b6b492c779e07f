#include "platform/error.h"

namespace umbrith {

RuntimeError::RuntimeError(int number, const QString& text)
    : std::runtime_error(text.toStdString()), number_(number), text_(text) {}

namespace err {

static QString standardText(int number) {
    switch (number) {
    case InvalidProcedureCall: return QStringLiteral("Invalid procedure call or argument");
    case Overflow: return QStringLiteral("Overflow");
    case SubscriptOutOfRange: return QStringLiteral("Subscript out of range");
    case DivisionByZero: return QStringLiteral("Division by zero");
    case TypeMismatch: return QStringLiteral("Type mismatch");
    case FileNotFound: return QStringLiteral("File not found");
    case InputPastEnd: return QStringLiteral("Input past end of file");
    case PathFileAccess: return QStringLiteral("Path/File access error");
    case PathNotFound: return QStringLiteral("Path not found");
    case InvalidPropertyValue: return QStringLiteral("Invalid property value");
    case InvalidPicture: return QStringLiteral("Invalid picture");
    default: return QStringLiteral("Application-defined or object-defined error");
    }
}

void raise(int number) { throw RuntimeError(number, standardText(number)); }

} // namespace err
} // namespace umbrith
