#pragma once

#include <QLabel>
#include <QString>

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

// A member of a control array carries its index in its name: "lblshowatstart(5)".
QString arrayName(const char* name, int index);

// The look shared by the game's forms: dark stone, parchment text, gold accents.
namespace look {
extern const char* const gold;
extern const char* const parchment;
QString formStyle();
QString frameStyle();
} // namespace look

} // namespace umbrith
