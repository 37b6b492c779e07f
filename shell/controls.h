#pragma once

#include <QLabel>
#include <QString>

class QFrame;
class QLineEdit;
class QRect;
class QWidget;

namespace umbrith {

// A label that acts when clicked, as the game's "cmd" and menu labels do.
class ClickLabel : public QLabel {
    Q_OBJECT
public:
    ClickLabel(const QString& name, const QString& caption, QWidget* parent);

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

// A panel of the screen: a named frame, hidden until its key or menu shows it.
QFrame* panel(const char* name, const QRect& geometry, QWidget* parent);
// A plain caption at its place.
QLabel* caption(const QString& text, const QRect& place, QWidget* parent);
// A gold caption at the head of a panel.
QLabel* heading(const QString& text, QWidget* parent);

// A box for a statistic: whole numbers, negative too, of four digits at most.
void acceptStatNumbers(QLineEdit* box);
// A box for a statistic the realm stores as a double: as above, with a
// decimal part.
void acceptStatDecimals(QLineEdit* box);

// A member of a control array carries its index in its name: "lblshowatstart(5)".
QString arrayName(const char* name, int index);

// The look shared by the game's forms: dark stone, parchment text, gold accents.
namespace look {
extern const char* const gold;
extern const char* const parchment;
QString formStyle();
QString frameStyle();
// A form of its own over Main: the frame look, with bare captions and dark boxes.
QString dialogStyle();
} // namespace look

} // namespace umbrith
