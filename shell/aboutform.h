#pragma once

#include <QWidget>

namespace umbrith {

// The program's name and version.
class About : public QWidget {
    Q_OBJECT
public:
    explicit About(QWidget* owner);
};

// The makers' guide: a list of topics and the text of the chosen one.
class Help : public QWidget {
    Q_OBJECT
public:
    explicit Help(QWidget* owner);
};

} // namespace umbrith
