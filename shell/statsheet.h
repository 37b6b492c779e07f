#pragma once

#include "core/character.h"

#include <QList>
#include <QString>

class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace umbrith {

// The layout the New Character and Upgrade Character forms share: a name and
// a race row, seven statistic rows of a caption, a value and a box named
// elements(i), the points left, and the form's button.
struct StatSheet {
    QLineEdit* txtName;
    QList<QLabel*> values;
    QList<QLineEdit*> elements;
    QLabel* pointsCaption;
    QLabel* lblpointsleft;
    QPushButton* cmdcreate;
};

// `race` is the form's own race control, put in place here. Each value label
// is named `valueName`(i); `columns` heads the value and box columns.
StatSheet buildStatSheet(QWidget* form, const QString& title, QWidget* race, const char* const captions[StatCount],
                         const char* valueName, const QString& columns, const QString& createCaption);

// The seven boxes' texts.
StatTexts boxTexts(const QList<QLineEdit*>& boxes);

} // namespace umbrith
