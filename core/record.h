#pragma once

#include "core/value.h"

#include <QList>
#include <QString>

namespace umbrith {

// Reads the fields of a sequential record one by one, the way the game's data
// files were always read: quoted texts without escapes (a quote ends the value
// and the rest up to the next comma is dropped), bare numbers, "#TRUE#" and
// "#FALSE#", empty fields; a line break between fields reads like a comma.
class RecordReader {
public:
    explicit RecordReader(QString text);
    // Reads a whole file (Windows-1252) through the platform.
    static RecordReader fromFile(const QString& path);

    // The next field; reading past the end raises "Input past end of file".
    Value next();
    QString nextText() { return next().text(); }
    // True when no field is left.
    bool atEnd() const;

private:
    void skipSpaces();
    void skipDelimiter();

    QString text_;
    qsizetype pos_ = 0;
    bool afterComma_ = false;
};

// The pieces of a delimited list that are not empty, in order: how every loop
// over a list reads it, so that a leading or trailing delimiter is harmless.
QStringList NonEmptyParts(const QString& list, QChar delimiter);
// The text without the blanks at both ends (blanks only, not tabs or line breaks).
QString TrimBlanks(const QString& text);

// A position held as text, "x;y" or "x|y": both halves by numeric-prefix parse.
// A text without the delimiter has no second half: "Subscript out of range".
struct TextPosition {
    double x = 0;
    double y = 0;
};
TextPosition SplitPosition(const QString& text, QChar delimiter);

// One record as text: fields separated by commas, ended by CR LF.
QString writeRecord(const QList<Value>& fields);
// Writes one record as the whole file, truncating what was there.
void writeRecordFile(const QString& path, const QList<Value>& fields);
// Reads the first `count` fields of a file; fewer fields is a read error.
QList<Value> readRecordFile(const QString& path, int count);

} // namespace umbrith
