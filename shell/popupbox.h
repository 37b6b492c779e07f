#pragma once

#include <QWidget>

class QGroupBox;
class QPushButton;
class QTextEdit;

namespace umbrith {

// The game's own message box: a titled frame with the text and a Close button.
class PopupBox : public QWidget {
    Q_OBJECT
public:
    explicit PopupBox(QWidget* owner);
    void present(const QString& text, const QString& title);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QGroupBox* PopupFrame_;
    QTextEdit* txtmessagepopup_;
    QPushButton* cmdclosepopup_;
};

} // namespace umbrith
