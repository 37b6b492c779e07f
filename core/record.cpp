#include "core/record.h"

#include "platform/error.h"
#include "platform/files.h"

namespace umbrith {

namespace {
bool isLineBreak(QChar c) { return c == u'\r' || c == u'\n'; }
} // namespace

RecordReader::RecordReader(QString text) : text_(std::move(text)) {}

RecordReader RecordReader::fromFile(const QString& path) { return RecordReader(readTextFile(path)); }

// Every scan reads through a view: indexing the QString itself would check
// for sharing at each character.
void RecordReader::skipSpaces() {
    const QStringView t = text_;
    while (pos_ < t.size() && (t[pos_] == u' ' || t[pos_] == u'\t'))
        ++pos_;
}

// Consumes the comma or line break that ends a field, and whatever stands
// before it (the tail of a cut quoted text).
void RecordReader::skipDelimiter() {
    const QStringView t = text_;
    while (pos_ < t.size() && t[pos_] != u',' && !isLineBreak(t[pos_]))
        ++pos_;
    afterComma_ = pos_ < t.size() && t[pos_] == u',';
    if (afterComma_) {
        ++pos_;
    } else if (pos_ < t.size()) {
        if (t[pos_] == u'\r' && pos_ + 1 < t.size() && t[pos_ + 1] == u'\n')
            ++pos_;
        ++pos_;
    }
}

bool RecordReader::atEnd() const {
    if (afterComma_)
        return false; // "a," still holds an empty field
    const QStringView t = text_;
    for (qsizetype i = pos_; i < t.size(); ++i)
        if (!t[i].isSpace())
            return false;
    return true;
}

Value RecordReader::next() {
    const QStringView t = text_;
    if (!afterComma_) {
        // Blank lines between records are passed over.
        while (pos_ < t.size() && t[pos_].isSpace())
            ++pos_;
    } else {
        skipSpaces();
    }
    if (pos_ >= t.size() && !afterComma_)
        err::raise(err::InputPastEnd);

    if (pos_ < t.size() && t[pos_] == u'"') {
        const qsizetype start = ++pos_;
        qsizetype end = t.indexOf(u'"', start);
        if (end < 0)
            end = t.size();
        pos_ = end;
        skipDelimiter();
        return Value(t.mid(start, end - start).toString());
    }

    const qsizetype start = pos_;
    while (pos_ < t.size() && t[pos_] != u',' && !isLineBreak(t[pos_]))
        ++pos_;
    // Looked at in place: only a field that stays text is copied.
    QStringView raw = t.mid(start, pos_ - start);
    if (!raw.isEmpty() && (raw.front().isSpace() || raw.back().isSpace()))
        raw = raw.trimmed();
    skipDelimiter();
    if (raw.isEmpty())
        return Value();
    if (raw[0] == u'#' && raw == u"#TRUE#")
        return Value(true);
    if (raw[0] == u'#' && raw == u"#FALSE#")
        return Value(false);
    double number = 0;
    if (readStrictNumber(raw, number))
        return Value(number);
    return Value(raw.toString());
}

QStringList NonEmptyParts(const QString& list, QChar delimiter) {
    QStringList parts = list.split(delimiter, Qt::SkipEmptyParts);
    return parts;
}

QString TrimBlanks(const QString& text) {
    qsizetype start = 0, end = text.size();
    while (start < end && text[start] == u' ')
        ++start;
    while (end > start && text[end - 1] == u' ')
        --end;
    return text.mid(start, end - start);
}

TextPosition SplitPosition(const QString& text, QChar delimiter) {
    const qsizetype at = text.indexOf(delimiter);
    if (at < 0)
        err::raise(err::SubscriptOutOfRange);
    const qsizetype next = text.indexOf(delimiter, at + 1);
    return {Val(text.left(at)), Val(text.mid(at + 1, next < 0 ? -1 : next - at - 1))};
}

QString writeRecord(const QList<Value>& fields) {
    QString out;
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (i > 0)
            out += u',';
        const Value& field = fields[i];
        switch (field.kind()) {
        case Value::Kind::Empty: break;
        case Value::Kind::Number: out += numberText(field.num()); break;
        case Value::Kind::Boolean: out += field.num() != 0 ? u"#TRUE#" : u"#FALSE#"; break;
        case Value::Kind::Text: out += u'"' + field.text() + u'"'; break;
        }
    }
    return out + QStringLiteral("\r\n");
}

void writeRecordFile(const QString& path, const QList<Value>& fields) { writeTextFile(path, writeRecord(fields)); }

QList<Value> readRecordFile(const QString& path, int count) {
    RecordReader reader = RecordReader::fromFile(path);
    QList<Value> fields;
    fields.reserve(count);
    for (int i = 0; i < count; ++i)
        fields.append(reader.next());
    return fields;
}

} // namespace umbrith
