#include "shell/controls.h"

#include <QFrame>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpressionValidator>

namespace umbrith {

ClickLabel::ClickLabel(const QString& name, const QString& caption, QWidget* parent) : QLabel(caption, parent) {
    setObjectName(name);
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
    QLabel::mouseReleaseEvent(event);
}

QFrame* panel(const char* name, const QRect& geometry, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(QLatin1String(name));
    frame->setGeometry(geometry);
    frame->setStyleSheet(look::frameStyle());
    frame->hide();
    return frame;
}

QLabel* caption(const QString& text, const QRect& place, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setGeometry(place);
    return label;
}

QLabel* heading(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setStyleSheet(QStringLiteral("color: %1; font-size: 18px; font-weight: bold;").arg(QLatin1String(look::gold)));
    return label;
}

void acceptStatNumbers(QLineEdit* box) {
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("-?\\d{0,4}")), box));
}

void acceptStatDecimals(QLineEdit* box) {
    box->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("-?\\d{0,4}(\\.\\d{0,4})?")), box));
}

QString arrayName(const char* name, int index) { return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index); }

namespace look {

const char* const gold = "#c9a227";
const char* const parchment = "#e8dcc0";

QString formStyle() {
    return QStringLiteral(
        "QWidget { background: #16120f; color: #e8dcc0; font-family: 'DejaVu Serif'; font-size: 13px; }"
        "QMenuBar { background: #231b15; color: #e8dcc0; border-bottom: 1px solid #5a4526; }"
        "QMenuBar::item:selected, QMenu::item:selected { background: #5a4526; color: #f5e7b8; }"
        "QMenu { background: #231b15; color: #e8dcc0; border: 1px solid #8a6d33; }"
        "QMenu::item:disabled { color: #6b5e4c; }"
        "QPushButton { background: #3a2c1e; border: 1px solid #c9a227; padding: 4px 14px; color: #f5e7b8; }"
        "QPushButton:focus { background: #5a4526; }"
        "QTextEdit, QPlainTextEdit, QListWidget { background: #0f0c0a; border: 1px solid #5a4526; color: #dcdcdc; }");
}

QString frameStyle() {
    return QStringLiteral("QFrame { background: #17110d; border: 2px solid #8a6d33; }"
                          "QCheckBox::indicator, QRadioButton::indicator { width: 12px; height: 12px; border: 1px solid #c9a227; background: #0f0c0a; }"
                          "QRadioButton::indicator { border-radius: 7px; }"
                          "QCheckBox::indicator:checked, QRadioButton::indicator:checked { background: #c9a227; }"
                          "QFrame QLabel, QFrame QCheckBox, QFrame QRadioButton { background: transparent; border: none; }");
}

QString dialogStyle() {
    return formStyle() + frameStyle() +
           QStringLiteral("QLabel { border: none; background: transparent; }"
                          "QLineEdit, QComboBox { background: #0f0c0a; border: 1px solid #5a4526; padding: 1px 4px; }"
                          "QLineEdit:read-only { color: #b8ab90; }");
}

} // namespace look

} // namespace umbrith
