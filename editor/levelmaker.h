#pragma once

#include <QMainWindow>

class QPlainTextEdit;

namespace umbrith {

// The level editor. For now it keeps the makers' notes, which the game saves
// at every exit, and leads back to the game.
class LevelMaker : public QMainWindow {
    Q_OBJECT
public:
    explicit LevelMaker(QWidget* parent = nullptr);
    QString notes() const;

signals:
    void returnToMain();
    // The maker asks for the realm creation form.
    void createRealm();

private:
    QPlainTextEdit* txtLog_;
};

} // namespace umbrith
