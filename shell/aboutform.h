#pragma once

#include <QList>
#include <QString>
#include <QWidget>

namespace umbrith {

// The program's name, its version and where its program folder is.
class About : public QWidget {
    Q_OBJECT
public:
    explicit About(QWidget* owner);
};

// One topic of the makers' guide: its title in the list and its text.
struct HelpTopic {
    QString title;
    QString text;
};

// Reads the makers' guide from the program folder, one plain text file a
// topic ("\help\<title>.txt"), in the order the list shows them. A topic
// whose file is missing or unreadable keeps its place and says so.
void LoadHelpTopics();
// The topics as last loaded.
const QList<HelpTopic>& HelpTopics();

// The makers' guide: a list of topics and the text of the chosen one.
class Help : public QWidget {
    Q_OBJECT
public:
    explicit Help(QWidget* owner);
};

} // namespace umbrith
