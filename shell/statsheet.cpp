#include "shell/statsheet.h"

#include "shell/controls.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace umbrith {

StatSheet buildStatSheet(QWidget* form, const QString& title, QWidget* race, const char* const captions[StatCount],
                         const char* valueName, const QString& columns, const QString& createCaption) {
    StatSheet sheet;
    form->setStyleSheet(look::dialogStyle());
    heading(title, form)->setGeometry(20, 12, 320, 28);
    caption(QStringLiteral("Name:"), QRect(20, 52, 90, 24), form);
    sheet.txtName = new QLineEdit(form);
    sheet.txtName->setObjectName(QStringLiteral("txtName"));
    sheet.txtName->setGeometry(120, 52, 220, 24);
    caption(QStringLiteral("Race:"), QRect(20, 84, 90, 24), form);
    race->setObjectName(QStringLiteral("race"));
    race->setGeometry(120, 84, 220, 24);

    QLabel* header = caption(columns, QRect(170, 120, 170, 20), form);
    header->setStyleSheet(QStringLiteral("color: %1;").arg(QLatin1String(look::gold)));
    for (int i = 0; i < StatCount; ++i) {
        const int y = 144 + 30 * i;
        caption(QString::fromUtf8(captions[i]), QRect(20, y, 150, 24), form);
        auto* value = new QLabel(form);
        value->setObjectName(arrayName(valueName, i));
        value->setGeometry(170, y, 60, 24);
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        sheet.values.append(value);
        auto* box = new QLineEdit(form);
        box->setObjectName(arrayName("elements", i));
        box->setGeometry(250, y, 90, 24);
        acceptStatNumbers(box);
        sheet.elements.append(box);
    }

    sheet.pointsCaption = caption(QStringLiteral("Points Remaining:"), QRect(20, 358, 150, 24), form);
    sheet.lblpointsleft = new QLabel(form);
    sheet.lblpointsleft->setObjectName(QStringLiteral("lblpointsleft"));
    sheet.lblpointsleft->setGeometry(170, 358, 60, 24);
    sheet.lblpointsleft->setStyleSheet(QStringLiteral("color: %1; font-weight: bold;").arg(QLatin1String(look::gold)));
    sheet.cmdcreate = new QPushButton(createCaption, form);
    sheet.cmdcreate->setObjectName(QStringLiteral("cmdcreate"));
    sheet.cmdcreate->setGeometry(150, 384, 90, 28);
    sheet.cmdcreate->setDefault(true);
    return sheet;
}

StatTexts boxTexts(const QList<QLineEdit*>& boxes) {
    StatTexts texts;
    for (int i = 0; i < StatCount; ++i)
        texts[i] = boxes[i]->text();
    return texts;
}

} // namespace umbrith
