#pragma once

#include <QMainWindow>

class QMenu;

namespace umbrith {

// The game's screen and the shell of the whole tool set.
class Main : public QMainWindow {
    Q_OBJECT
public:
    explicit Main(QWidget* parent = nullptr);

private:
    QMenu* mnuMain_;
    QMenu* mnuHelp_;
};

} // namespace umbrith
