#include "editor/levelmaker.h"

#include "core/misc.h"
#include "core/record.h"
#include "platform/error.h"
#include "shell/aboutform.h"
#include "shell/controls.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace umbrith {

LevelMaker::LevelMaker(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("LevelMaker"));
    setWindowTitle(QStringLiteral("Umbrith Level Editor"));
    setFixedSize(800, 600);
    setStyleSheet(look::formStyle());

    QMenu* mnuMap = menuBar()->addMenu(QStringLiteral("&Map"));
    mnuMap->setObjectName(QStringLiteral("mnuMap"));
    QAction* mnuMapReturn = mnuMap->addAction(QStringLiteral("Return to Main"));
    mnuMapReturn->setObjectName(QStringLiteral("mnuMapReturn"));
    connect(mnuMapReturn, &QAction::triggered, this, [this] {
        hide();
        emit returnToMain();
    });
    QAction* mnuFileCreateRealm = mnuMap->addAction(QStringLiteral("Create Realm..."));
    mnuFileCreateRealm->setObjectName(QStringLiteral("mnuFileCreateRealm"));
    connect(mnuFileCreateRealm, &QAction::triggered, this, &LevelMaker::createRealm);

    QMenu* mnuHelp = menuBar()->addMenu(QStringLiteral("&Help"));
    mnuHelp->setObjectName(QStringLiteral("mnuHelp"));
    QAction* mnuHelpGeneral = mnuHelp->addAction(QStringLiteral("I Need Help!"));
    mnuHelpGeneral->setObjectName(QStringLiteral("mnuHelpGeneral"));
    connect(mnuHelpGeneral, &QAction::triggered, this, [this] { (new Help(this))->show(); });
    QAction* mnuHelpAbout = mnuHelp->addAction(QStringLiteral("About 'Umbrith'"));
    mnuHelpAbout->setObjectName(QStringLiteral("mnuHelpAbout"));
    connect(mnuHelpAbout, &QAction::triggered, this, [this] { (new About(this))->show(); });

    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    auto* heading = new QLabel(QStringLiteral("Notes"), central);
    heading->setStyleSheet(QStringLiteral("color: %1; font-size: 16px;").arg(QLatin1String(look::gold)));
    layout->addWidget(heading);
    txtLog_ = new QPlainTextEdit(central);
    txtLog_->setObjectName(QStringLiteral("txtLog"));
    layout->addWidget(txtLog_);
    setCentralWidget(central);

    // Notes that can't be read start empty; the next exit writes them anew.
    try {
        txtLog_->setPlainText(readRecordFile(AppPath() + QStringLiteral("\\notes.ubc"), 1).value(0).text());
    } catch (const RuntimeError&) {
    }
}

QString LevelMaker::notes() const { return txtLog_->toPlainText(); }

} // namespace umbrith
