#include "core/dumpfile.h"
#include "core/misc.h"
#include "platform/programfolder.h"
#include "platform/real/realplatform.h"
#include "core/gamerecord.h"
#include "shell/mainform.h"
#include "shell/rules/commandline.h"
#include "shell/scriptplay.h"

#include <QApplication>
#include <QFileInfo>
#include <cstdio>

namespace {

// The folder of the running program, known before the application object exists.
QString programFolder(const char* argv0) {
    QFileInfo self(QStringLiteral("/proc/self/exe"));
    QString path = self.exists() ? self.canonicalFilePath() : QFileInfo(QString::fromLocal8Bit(argv0)).absoluteFilePath();
    return QFileInfo(path).absolutePath();
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const umbrith::CommandLine line = umbrith::ParseCommandLine(arguments);
    if (!line.refusal.isEmpty()) {
        std::fprintf(stderr, "umbrith: %s\n%s", line.refusal.toLocal8Bit().constData(),
                     umbrith::UsageText().toLocal8Bit().constData());
        return 2;
    }
    // These answer at once; no window opens.
    if (line.help) {
        std::fputs(umbrith::UsageText().toLocal8Bit().constData(), stdout);
        return 0;
    }
    if (line.version) {
        std::printf("Umbrith %s\n", UMBRITH_VERSION);
        return 0;
    }
    if (!line.dump.isEmpty())
        return umbrith::DumpDataFile(line.dump);

    if (line.offscreen || (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The folder is found before Qt starts, so a refusal is the only thing printed.
    const umbrith::ProgramFolder folder = umbrith::FindProgramFolder(line.root, programFolder(argv[0]));
    if (folder.path.isEmpty()) {
        std::fprintf(stderr, "umbrith: %s\n", folder.problem.toLocal8Bit().constData());
        return 2;
    }
    QApplication app(argc, argv);
    umbrith::setAppPath(folder.path);

    if (!line.script.isEmpty())
        return umbrith::runScript(line.script);

    umbrith::RealPlatform realPlatform(line.soundFont.isEmpty() ? umbrith::DefaultSoundFont() : line.soundFont);
    realPlatform.install();
    umbrith::GameRecord game;
    umbrith::Main mainForm(game);
    QObject::connect(&mainForm, &umbrith::Main::programEnded, &app, &QApplication::quit, Qt::QueuedConnection);
    mainForm.show();
    return app.exec();
}
