// The makers' guide: plain text files of the program folder, read at start,
// and the About box.
#include "core/misc.h"
#include "shell/aboutform.h"
#include "tests/shell/mainformtest.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QTextEdit>

namespace umbrith {
namespace {

QString topicText(const QString& title) {
    for (const HelpTopic& topic : HelpTopics())
        if (topic.title == title)
            return topic.text;
    return QString();
}

TEST_F(MainFormTest, theHelpTopicsAreReadAtStartAndAMissingOneSaysSoInItsPlace) {
    writeFile("\\help\\Skills.txt", "Skills cost \xA3 nothing\r\nat first.");
    start();
    ASSERT_GE(HelpTopics().size(), 2);
    EXPECT_EQ(topicText("Skills"), QString::fromUtf8("Skills cost £ nothing\nat first."));
    EXPECT_EQ(topicText("Rules and Limitations"), "The help file \\help\\Rules and Limitations.txt could not be read "
                                                  "(File not found). Put it back into the program folder to read this topic.");

    auto* help = new Help(main.get());
    help->show();
    auto* topics = help->findChild<QListWidget*>("lstTopics");
    auto* text = help->findChild<QTextEdit*>("txtTopic");
    ASSERT_EQ(topics->count(), HelpTopics().size());
    EXPECT_EQ(text->toPlainText(), HelpTopics()[0].text);
    topics->setCurrentItem(topics->findItems("Skills", Qt::MatchExactly).value(0));
    EXPECT_EQ(text->toPlainText(), topicText("Skills"));
    help->close();
}

TEST_F(MainFormTest, theShippedGuideHasEveryTopicAndTellsHowAPromptGoesOn) {
    setAppPath(QStringLiteral(UMBRITH_PROGRAM_DIR));
    LoadHelpTopics();
    for (const HelpTopic& topic : HelpTopics()) {
        EXPECT_FALSE(topic.text.startsWith("The help file")) << topic.title.toStdString();
        EXPECT_GT(topic.text.size(), 400) << topic.title.toStdString();
    }
    const QString rule = "Only an assignment to \"Custom Answer\" lets a Prompt's event continue";
    EXPECT_TRUE(topicText("Prompts and Custom Answer").simplified().contains(rule));
    EXPECT_TRUE(topicText("Event Actions").simplified().contains(rule));
}

TEST_F(MainFormTest, aboutNamesTheProgramItsVersionAndItsFolder) {
    start();
    main->findChild<QAction*>("mnuHelpAbout")->trigger();
    auto* about = main->findChild<QWidget*>("About");
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->findChild<QLabel*>("lblTitle")->text(), "Umbrith");
    EXPECT_TRUE(about->findChild<QLabel*>("lblVersion")->text().startsWith("Version "));
    EXPECT_TRUE(about->findChild<QLabel*>("lblFolder")->text().endsWith(QDir::toNativeSeparators(nativeRoot())));
}

} // namespace
} // namespace umbrith
