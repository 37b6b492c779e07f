#pragma once

#include "platform/scripted/scriptedplatform.h"
#include "tests/support/qtprint.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace umbrith {

// A test over the scripted platform and an empty program folder of its own.
// It fails when a box went unanswered or fed answers were left over.
class ScriptedTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Writes a file under the program folder; `relative` is a stored path ("\maps\a.ubm").
    void writeFile(const QString& relative, const QByteArray& bytes);
    QByteArray readFile(const QString& relative) const;
    QString nativeRoot() const { return root_.path(); }

    ScriptedPlatform scripted;

private:
    QTemporaryDir root_;
};

} // namespace umbrith
