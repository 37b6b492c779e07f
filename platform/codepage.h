#pragma once

#include <QByteArray>
#include <QString>

namespace umbrith {

// Windows-1252, the code page of every data file. Each byte 0x00-0xFF maps to
// one character and back, the five bytes the code page leaves unassigned
// included, so no file is ever changed by being read and written.
QString decodeWindows1252(QByteArrayView bytes);
QByteArray encodeWindows1252(const QString& text);

} // namespace umbrith
