#include "shell/aboutform.h"

#include "core/misc.h"
#include "platform/error.h"
#include "platform/files.h"
#include "shell/controls.h"

#include <QDir>
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

// The guide's topics in the order a new maker meets them; each is the file
// of that name in the program folder's "help" folder.
const char* const topicTitles[] = {
    "Getting Started",
    "Folders and Files",
    "Making a Realm",
    "Maps, Tilesets and Passability",
    "Warps, Messages and Music",
    "NPCs and Their Movement",
    "Ground Piles",
    "Reading and Writing Codes",
    "Message Codes",
    "Events",
    "Event Actions",
    "Prompts and Custom Answer",
    "Shops and Prices",
    "Items, Equipment and Bonuses",
    "Skills",
    "Enemies and Battles",
    "The NPC Image Creator",
    "Rules and Limitations",
    "Keys of the Game",
    "Keys of the Editor",
};

QList<HelpTopic> loadedTopics;

QString topicText(const QString& file) {
    try {
        return readTextFile(AppPath() + file).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    } catch (const RuntimeError& error) {
        return QStringLiteral("The help file %1 could not be read (%2). Put it back into the program folder to "
                              "read this topic.")
            .arg(file, error.text());
    }
}

} // namespace

About::About(QWidget* owner) : QWidget(owner, Qt::Dialog) {
    setObjectName(QStringLiteral("About"));
    setWindowTitle(QStringLiteral("About 'Umbrith'"));
    setAttribute(Qt::WA_DeleteOnClose);
    setStyleSheet(look::formStyle());
    setFixedSize(360, 250);
    auto* layout = new QVBoxLayout(this);
    QLabel* title = label("lblTitle", QStringLiteral("Umbrith"), this);
    title->setStyleSheet(QStringLiteral("font-size: 30px; font-weight: bold; color: %1;").arg(QLatin1String(look::gold)));
    layout->addWidget(title);
    layout->addWidget(label("lblVersion", QStringLiteral("Version %1").arg(QStringLiteral(UMBRITH_VERSION)), this));
    layout->addWidget(label("lblDescription", QStringLiteral("A tile-based role-playing game and the tools to make its realms."), this));
    QLabel* folder = label("lblFolder", QStringLiteral("Program folder:\n%1").arg(QDir::toNativeSeparators(nativePath(AppPath()))), this);
    folder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(folder);
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    connect(ok, &QPushButton::clicked, this, &QWidget::close);
    layout->addWidget(ok, 0, Qt::AlignCenter);
}

void LoadHelpTopics() {
    loadedTopics.clear();
    for (const char* title : topicTitles) {
        const QString name = QString::fromUtf8(title);
        loadedTopics.append({name, topicText(QStringLiteral("\\help\\%1.txt").arg(name))});
    }
}

const QList<HelpTopic>& HelpTopics() { return loadedTopics; }

Help::Help(QWidget* owner) : QWidget(owner, Qt::Window) {
    setObjectName(QStringLiteral("Help"));
    setWindowTitle(QStringLiteral("Umbrith Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    setStyleSheet(look::formStyle());
    resize(880, 560);
    auto* topicList = new QListWidget(this);
    topicList->setObjectName(QStringLiteral("lstTopics"));
    topicList->setFixedWidth(220);
    auto* text = new QTextEdit(this);
    text->setObjectName(QStringLiteral("txtTopic"));
    text->setReadOnly(true);
    const QList<HelpTopic> topics = HelpTopics();
    for (const HelpTopic& topic : topics)
        topicList->addItem(topic.title);
    connect(topicList, &QListWidget::currentRowChanged, text, [text, topics](int row) {
        text->setPlainText(row >= 0 && row < topics.size() ? topics[row].text : QString());
    });
    topicList->setCurrentRow(0);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(topicList);
    layout->addWidget(text);
}

} // namespace umbrith
