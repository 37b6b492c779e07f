#include "shell/mainform.h"

#include <QAction>
#include <QMenuBar>

namespace umbrith {

namespace {

QAction* addItem(QMenu* menu, const char* name, const QString& caption) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(QLatin1String(name));
    return action;
}

} // namespace

Main::Main(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("Main"));
    setWindowTitle(QStringLiteral("Umbrith"));
    setFixedSize(800, 600);

    mnuMain_ = menuBar()->addMenu(QStringLiteral("&Main"));
    mnuMain_->setObjectName(QStringLiteral("mnuMain"));
    addItem(mnuMain_, "mnuMainNew", QStringLiteral("(N)ew Character"));
    addItem(mnuMain_, "mnuMainSave", QStringLiteral("(S)ave Character"))->setEnabled(false);
    addItem(mnuMain_, "mnuMainLoad", QStringLiteral("(L)oad Character"));
    addItem(mnuMain_, "mnuMainCreateCustom", QStringLiteral("(C)reate Custom Levels"));
    addItem(mnuMain_, "mnuMainPlayCustom", QStringLiteral("(P)lay Custom Levels"));
    addItem(mnuMain_, "mnuMainOptions", QStringLiteral("(O)ptions"));
    addItem(mnuMain_, "mnuMainBattle", QStringLiteral("(B)attle Arena!"));
    addItem(mnuMain_, "mnuMainExit", QStringLiteral("E(x)it Umbrith"));

    mnuHelp_ = menuBar()->addMenu(QStringLiteral("&Help"));
    mnuHelp_->setObjectName(QStringLiteral("mnuHelp"));
    addItem(mnuHelp_, "mnuHelpAbout", QStringLiteral("About 'Umbrith'"));

    QWidget* screen = new QWidget(this);
    screen->setObjectName(QStringLiteral("screen"));
    screen->setStyleSheet(QStringLiteral("background: black;"));
    setCentralWidget(screen);
}

} // namespace umbrith
