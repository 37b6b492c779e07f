#include "shell/aboutform.h"

#include "shell/controls.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace umbrith {

namespace {

QLabel* label(const char* name, const QString& text, QWidget* parent) {
    auto* result = new QLabel(text, parent);
    result->setObjectName(QLatin1String(name));
    result->setAlignment(Qt::AlignCenter);
    result->setWordWrap(true);
    return result;
}

struct Topic {
    const char* title;
    const char* text;
};

const Topic topics[] = {
    {"Playing", "Use the arrow keys to walk. Space moves a message on and M closes it. Escape hides or shows the menus.\n\n"
                "The letters in brackets are shortcuts: (L)oad, (N)ew, (O)ptions, E(x)it, and on the title screen "
                "(C)reate and (P)lay custom levels."},
    {"Messages", "A message may hold codes. \"#(name)\" shows the value of the code \"&name\", such as #(Player Name) "
                 "or a variable's name. An \"&\" in the text ends the page there."},
    {"Journal", "Each journal entry is \"title;text;code\", entries separated by \"£\". An entry is completed when "
                "its code gives 1 or \"true\"."},
    {"Making realms", "Create Custom Levels opens the level editor. Play Custom Levels tries one map with a "
                      "throw-away character called Tester."},
};

} // namespace

About::About(QWidget* owner) : QWidget(owner, Qt::Dialog) {
    setObjectName(QStringLiteral("About"));
    setWindowTitle(QStringLiteral("About 'Umbrith'"));
    setStyleSheet(look::formStyle());
    setFixedSize(320, 200);
    auto* layout = new QVBoxLayout(this);
    QLabel* title = label("lblTitle", QStringLiteral("Umbrith"), this);
    title->setStyleSheet(QStringLiteral("font-size: 30px; font-weight: bold; color: %1;").arg(QLatin1String(look::gold)));
    layout->addWidget(title);
    layout->addWidget(label("lblVersion", QStringLiteral("Version %1").arg(QStringLiteral(UMBRITH_VERSION)), this));
    layout->addWidget(label("lblDescription", QStringLiteral("A tile-based role-playing game and the tools to make its realms."), this));
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    connect(ok, &QPushButton::clicked, this, &QWidget::close);
    layout->addWidget(ok, 0, Qt::AlignCenter);
}

Help::Help(QWidget* owner) : QWidget(owner, Qt::Window) {
    setObjectName(QStringLiteral("Help"));
    setWindowTitle(QStringLiteral("Umbrith Help"));
    setStyleSheet(look::formStyle());
    resize(560, 380);
    auto* topicList = new QListWidget(this);
    topicList->setObjectName(QStringLiteral("lstTopics"));
    topicList->setFixedWidth(160);
    auto* text = new QTextEdit(this);
    text->setObjectName(QStringLiteral("txtTopic"));
    text->setReadOnly(true);
    for (const Topic& topic : topics)
        topicList->addItem(QString::fromUtf8(topic.title));
    connect(topicList, &QListWidget::currentRowChanged, text, [text](int row) {
        text->setPlainText(row >= 0 ? QString::fromUtf8(topics[row].text) : QString());
    });
    topicList->setCurrentRow(0);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(topicList);
    layout->addWidget(text);
}

} // namespace umbrith
