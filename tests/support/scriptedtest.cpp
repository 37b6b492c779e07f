#include "tests/support/scriptedtest.h"

#include "core/misc.h"
#include "platform/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace umbrith {

void ScriptedTest::SetUp() {
    ASSERT_TRUE(root_.isValid());
    setAppPath(root_.path());
    SoundsOn = true;
    scripted.install();
}

void ScriptedTest::TearDown() {
    EXPECT_TRUE(scripted.problems().isEmpty()) << scripted.problems().join(u'\n').toStdString();
}

void ScriptedTest::writeFile(const QString& relative, const QByteArray& bytes) {
    QString path = nativePath(AppPath() + relative);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray ScriptedTest::readFile(const QString& relative) const {
    QFile file(nativePath(AppPath() + relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace umbrith
