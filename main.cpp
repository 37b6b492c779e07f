#include "core/dumpfile.h"
#include "core/misc.h"
#include "platform/real/realplatform.h"
#include "core/gamerecord.h"
#include "shell/mainform.h"
#include "shell/scriptplay.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>
#include <cstdio>
#include <cstring>

namespace {

// The program folder must exist and take files, or nothing the game writes
// (saves, notes, maps) could be kept.
bool usableRoot(const QString& root, QString& problem) {
    QFileInfo info(root);
    if (!info.isDir()) {
        problem = QStringLiteral("The program folder \"%1\" does not exist.").arg(root);
        return false;
    }
    QTemporaryFile probe(QDir(root).filePath(QStringLiteral(".umbrith-XXXXXX")));
    if (!probe.open()) {
        problem = QStringLiteral("The program folder \"%1\" cannot be written to.").arg(root);
        return false;
    }
    return true;
}

// The folder of the running program, known before the application object exists.
QString programFolder(const char* argv0) {
    QFileInfo self(QStringLiteral("/proc/self/exe"));
    QString path = self.exists() ? self.canonicalFilePath() : QFileInfo(QString::fromLocal8Bit(argv0)).absoluteFilePath();
    return QFileInfo(path).absolutePath();
}

QString optionValue(int argc, char** argv, const char* option) {
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], option) == 0)
            return QString::fromLocal8Bit(argv[i + 1]);
    return QString();
}

bool hasFlag(int argc, char** argv, const char* flag) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], flag) == 0)
            return true;
    return false;
}

} // namespace

int main(int argc, char** argv) {
    // `--dump FILE` prints a data file's items and ends; no window opens.
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--dump") == 0) {
            if (i + 1 >= argc) {
                std::fprintf(stderr, "usage: umbrith --dump FILE\n");
                return 2;
            }
            return umbrith::DumpDataFile(QString::fromLocal8Bit(argv[i + 1]));
        }

    if (hasFlag(argc, argv, "--offscreen") || (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The folder is checked before Qt starts, so a refusal is the only thing printed.
    QString root = optionValue(argc, argv, "--root");
    if (root.isEmpty())
        root = programFolder(argv[0]);
    root = QFileInfo(root).absoluteFilePath();
    QString problem;
    if (!usableRoot(root, problem)) {
        std::fprintf(stderr, "umbrith: %s\n", problem.toLocal8Bit().constData());
        return 2;
    }
    QApplication app(argc, argv);
    umbrith::setAppPath(root);

    const QString script = optionValue(argc, argv, "--script");
    if (!script.isEmpty())
        return umbrith::runScript(script);

    umbrith::RealPlatform realPlatform;
    realPlatform.install();
    umbrith::GameRecord game;
    umbrith::Main mainForm(game);
    QObject::connect(&mainForm, &umbrith::Main::programEnded, &app, &QApplication::quit, Qt::QueuedConnection);
    mainForm.show();
    return app.exec();
}
