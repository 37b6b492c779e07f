#include "shell/popupbox.h"

#include "shell/controls.h"

#include <QEvent>
#include <QGroupBox>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace umbrith {

PopupBox::PopupBox(QWidget* owner) : QWidget(owner, Qt::Tool | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("PopupBox"));
    setStyleSheet(look::formStyle() + QStringLiteral("QGroupBox { border: 2px solid %1; margin-top: 14px; font-weight: bold; }"
                                                     "QGroupBox::title { subcontrol-origin: margin; left: 10px; color: %1; }")
                                          .arg(QLatin1String(look::gold)));
    setFixedSize(340, 200);

    PopupFrame_ = new QGroupBox(this);
    PopupFrame_->setObjectName(QStringLiteral("PopupFrame"));
    txtmessagepopup_ = new QTextEdit(PopupFrame_);
    txtmessagepopup_->setObjectName(QStringLiteral("txtmessagepopup"));
    txtmessagepopup_->setReadOnly(true);
    txtmessagepopup_->viewport()->installEventFilter(this);
    cmdclosepopup_ = new QPushButton(QStringLiteral("Close"), PopupFrame_);
    cmdclosepopup_->setObjectName(QStringLiteral("cmdclosepopup"));
    cmdclosepopup_->setAutoDefault(true);
    connect(cmdclosepopup_, &QPushButton::clicked, this, &QWidget::hide);

    auto* inner = new QVBoxLayout(PopupFrame_);
    inner->addWidget(txtmessagepopup_);
    inner->addWidget(cmdclosepopup_, 0, Qt::AlignRight);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(6, 6, 6, 6);
    outer->addWidget(PopupFrame_);
}

void PopupBox::present(const QString& text, const QString& title) {
    txtmessagepopup_->setPlainText(text);
    PopupFrame_->setTitle(title);
    if (QWidget* owner = parentWidget())
        move(owner->geometry().center() - rect().center());
    show();
    activateWindow();
    cmdclosepopup_->setFocus();
}

// A click into the text gives the focus back to the button, so keys close the popup.
bool PopupBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtmessagepopup_->viewport() && event->type() == QEvent::MouseButtonRelease)
        cmdclosepopup_->setFocus();
    return QWidget::eventFilter(watched, event);
}

} // namespace umbrith
