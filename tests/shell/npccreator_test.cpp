// The NPC image creator on the offscreen platform: it dresses Main's own
// paper doll, previews it and saves the NPC sheet.
#include "core/misc.h"
#include "shell/npccreator.h"
#include "shell/scriptstate.h"
#include "tests/shell/mainformtest.h"
#include "tests/support/dollparts.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace umbrith {
namespace {

using dollparts::partSheet;
using dollparts::savePicture;

const QRect kBlock(4, 8, 16, 30);

class NPCCreatorTest : public MainFormTest {
protected:
    void SetUp() override {
        MainFormTest::SetUp();
        dollparts::writeEmptyParts();
        QDir().mkpath(nativePath(AppPath() + "\\images\\npcs"));
    }

    void open() {
        start();
        main->ShowNPCCreator();
        form = qobject_cast<CCMain*>(findNamed("CCMain"));
        ASSERT_NE(form, nullptr);
    }

    template <typename T = QWidget> T* on(const char* name) {
        T* found = form->findChild<T*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    void trigger(const char* action) { on<QAction>(action)->trigger(); }
    void click(const char* button) { on<QAbstractButton>(button)->click(); }
    void choose(const QString& row) {
        QListWidget* areas = on<QListWidget>("lstAreas");
        areas->setCurrentItem(areas->findItems(row, Qt::MatchExactly).value(0));
    }
    // Browses for a part picture for the chosen row and applies it.
    void dress(const QString& row, const QString& stored) {
        choose(row);
        scripted.queueFile(AppPath() + stored);
        click("cmdBrowseChange");
        click("cmdUpdate");
    }
    Surface save(const QString& stored) {
        scripted.queueFile(AppPath() + stored);
        trigger("mnuFileSave");
        return Surface::load(AppPath() + stored);
    }
    int32_t previewAt(int x, int y) { return GetPixel(form->preview(), x, y); }
    // The message boxes shown so far, without the file dialogs.
    QList<ScriptedPlatform::Box> messages() const {
        QList<ScriptedPlatform::Box> result;
        for (const ScriptedPlatform::Box& box : scripted.boxes)
            if (box.kind == "message")
                result << box;
        return result;
    }

    CCMain* form = nullptr;
};

TEST_F(NPCCreatorTest, theSavedSheetHoldsEveryDirectionAndFrameAtItsPlaceWithItsMaskBeside) {
    auto color = [](int d, int f) { return qRgb(60 + 60 * f, 40 + 50 * d, 200); };
    savePicture(partSheet(color, kBlock), "\\images\\bodies\\defaultbody.bmp");
    open();
    const Surface sheet = save("\\images\\npcs\\walker.bmp");
    ASSERT_EQ(sheet.width(), 144);
    ASSERT_EQ(sheet.height(), 192);
    for (int d = 0; d < 4; ++d)
        for (int f = 0; f < 3; ++f) {
            EXPECT_EQ(GetPixel(sheet, 48 * f + 10, 48 * d + 20), toColorRef(color(d, f))) << d << f;
            EXPECT_EQ(GetPixel(sheet, 48 * f + 1, 48 * d + 1), 0) << d << f;
            EXPECT_EQ(GetPixel(sheet, 48 * f + 24 + 10, 48 * d + 20), 0) << d << f;
            EXPECT_EQ(GetPixel(sheet, 48 * f + 24 + 1, 48 * d + 1), 0xFFFFFF) << d << f;
        }
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_EQ(scripted.lastFileDialog.title, "Save NPC-Compatible Image");
    EXPECT_EQ(scripted.lastFileDialog.filter, "Windows Bitmap (*.bmp)|*.bmp");
    EXPECT_EQ(scripted.lastFileDialog.initialFolder, AppPath() + "\\images\\npcs");
}

TEST_F(NPCCreatorTest, theMaskIsMadeFromTheCompositeNotFromThePartsOwnMasks) {
    const QRgb red = qRgb(220, 30, 30), green = qRgb(30, 200, 30);
    // The body's own mask claims a black pixel of its picture as figure; the
    // weapon's mask claims its green block is transparent.
    Surface body = partSheet([red](int, int) { return red; }, kBlock);
    Surface weapon = dollparts::emptyPartSheet();
    for (int d = 0; d < 4; ++d)
        for (int f = 0; f < 3; ++f) {
            SetPixel(body, 48 * f + 10, 48 * d + 20, 0);
            for (int y = 40; y < 44; ++y)
                for (int x = 0; x < 4; ++x)
                    SetPixel(weapon, 48 * f + x, 48 * d + y, toColorRef(green));
        }
    savePicture(body, "\\images\\bodies\\defaultbody.bmp");
    savePicture(weapon, "\\images\\weapons\\defaultweapon.bmp");
    open();
    const Surface sheet = save("\\images\\npcs\\masked.bmp");
    for (int d = 0; d < 4; ++d)
        for (int f = 0; f < 3; ++f) {
            const int x = 48 * f, y = 48 * d;
            EXPECT_EQ(GetPixel(sheet, x + 24 + 10, y + 20), 0xFFFFFF) << "a black pixel of a part is transparent";
            EXPECT_EQ(GetPixel(sheet, x + 24 + 1, y + 41), 0) << "what the composite shows is figure";
            EXPECT_EQ(GetPixel(sheet, x + 1, y + 41), toColorRef(green));
            EXPECT_EQ(GetPixel(sheet, x + 24 + 12, y + 12), 0);
            EXPECT_EQ(GetPixel(sheet, x + 24 + 1, y + 1), 0xFFFFFF);
        }
    // The preview lets the background through the same holes.
    EXPECT_EQ(previewAt(10, 20), previewAt(1, 1));
    EXPECT_EQ(previewAt(1, 41), toColorRef(green));
}

TEST_F(NPCCreatorTest, thePreviewWalksFrames0121AndShowsFrame0WhenStill) {
    auto color = [](int d, int f) { return qRgb(50 + 60 * f, 30 + 40 * d, 90); };
    savePicture(partSheet(color, kBlock), "\\images\\bodies\\defaultbody.bmp");
    open();
    click("cmdDir(2)");
    EXPECT_EQ(form->state().PreviewDirection, 2);
    EXPECT_EQ(previewAt(10, 20), toColorRef(color(2, 0)));
    // Enlarged by whole pixels.
    const QImage shown = on<QLabel>("picPreview")->pixmap().toImage();
    EXPECT_EQ(shown.size(), QSize(96, 192));
    EXPECT_EQ(toColorRef(shown.pixel(4 * 10 + 3, 4 * 20 + 3)), previewAt(10, 20));

    EXPECT_EQ(form->state().PreviewWay, "");
    click("chkAnimate");
    EXPECT_TRUE(form->animating());
    for (int frame : {1, 2, 1, 0, 1, 2}) {
        scripted.advance(200);
        EXPECT_EQ(form->state().PreviewFrame, frame);
        EXPECT_EQ(previewAt(10, 20), toColorRef(color(2, frame))) << frame;
    }
    click("cmdDir(1)");
    EXPECT_EQ(previewAt(10, 20), toColorRef(color(1, 2)));
    click("chkAnimate");
    EXPECT_FALSE(form->animating());
    EXPECT_EQ(form->state().PreviewFrame, 0);
    EXPECT_EQ(previewAt(10, 20), toColorRef(color(1, 0)));
    scripted.advance(1000);
    EXPECT_EQ(previewAt(10, 20), toColorRef(color(1, 0)));
}

TEST_F(NPCCreatorTest, aBrowsedPartIsWornAfterUpdateAndTheWeaponAndShieldReachThePlayer) {
    const QRgb steel = qRgb(180, 180, 200);
    savePicture(partSheet([steel](int, int) { return steel; }, QRect(20, 10, 4, 30)), "\\images\\weapons\\sword.bmp");
    open();
    QLabel* current = on<QLabel>("lblInfo(0)");
    QLabel* change = on<QLabel>("lblInfo(1)");
    EXPECT_EQ(current->text(), "\\images\\heads\\defaulthead.bmp");
    choose("Weapon");
    EXPECT_EQ(current->text(), "\\images\\weapons\\defaultweapon.bmp");
    scripted.queueFile(AppPath() + "\\images\\weapons\\sword.bmp");
    click("cmdBrowseChange");
    EXPECT_EQ(scripted.lastFileDialog.title, "Load Image File");
    EXPECT_EQ(scripted.lastFileDialog.initialFolder, AppPath() + "\\images");
    EXPECT_EQ(change->text(), "\\images\\weapons\\sword.bmp");
    EXPECT_EQ(form->state().ChosenPicture, "\\images\\weapons\\sword.bmp");
    EXPECT_NE(previewAt(21, 20), toColorRef(steel));
    click("cmdUpdate");
    EXPECT_EQ(form->state().AreaPaths[AreaWeapon], "\\images\\weapons\\sword.bmp");
    EXPECT_EQ(game.PlayerWeaponPicturePath, Value("\\images\\weapons\\sword.bmp"));
    EXPECT_EQ(game.PlayerShieldPicturePath, Value("\\images\\shields\\defaultshield.bmp"));
    EXPECT_EQ(previewAt(21, 20), toColorRef(steel));
    // Choosing another row forgets the browse.
    choose("Boots");
    EXPECT_EQ(change->text(), "");
    EXPECT_EQ(form->state().ChosenPicture, "");
}

TEST_F(NPCCreatorTest, anUpdateWithoutABrowseFallsBackOnTheStandByPictureAndTheShieldKeepsItsOwnPath) {
    open();
    choose("Hands");
    click("cmdUpdate");
    EXPECT_EQ(form->state().AreaPaths[AreaGloves], "\\images\\gloves\\empty.bmp");
    choose("Shield");
    click("cmdUpdate");
    EXPECT_EQ(form->state().AreaPaths[AreaShield], "\\images\\heads\\defaultshield.bmp");
    // The player's shield took the path as it stood before the update.
    EXPECT_EQ(game.PlayerShieldPicturePath, Value(""));
    EXPECT_TRUE(messages().isEmpty());
    // That path is loaded at the next update, and fails where no such file lies.
    QFile::remove(nativePath(AppPath() + "\\images\\heads\\defaultshield.bmp"));
    choose("Head");
    click("cmdUpdate");
    ASSERT_EQ(messages().size(), 2);
    EXPECT_EQ(messages()[0].text, "There was an error opening one of the picture files!");
    EXPECT_EQ(messages()[0].title, "Umbrith");
    EXPECT_EQ(messages()[1].title, "This was the error");
    EXPECT_EQ(messages()[1].text, "File not found: \\images\\heads\\defaultshield.bmp");
}

TEST_F(NPCCreatorTest, aPartThatIsNoPictureOrTooSmallOrOutsideTheFolderIsRefusedAndTheFigureStays) {
    const QRgb blue = qRgb(20, 20, 230);
    savePicture(partSheet([blue](int, int) { return blue; }, kBlock), "\\images\\bodies\\defaultbody.bmp");
    writeFile("\\images\\bodies\\note.bmp", "not a picture");
    savePicture(Surface(48, 100), "\\images\\bodies\\strip.bmp");
    open();
    dress("Body", "\\images\\bodies\\note.bmp");
    ASSERT_EQ(messages().size(), 2);
    EXPECT_EQ(messages()[0].text, "There was an error opening one of the picture files!");
    EXPECT_EQ(messages()[1].text, "Invalid picture: \\images\\bodies\\note.bmp");
    dress("Body", "\\images\\bodies\\strip.bmp");
    ASSERT_EQ(messages().size(), 4);
    EXPECT_EQ(messages()[3].text, "\\images\\bodies\\strip.bmp is 48 x 100 pixels; a part picture is 144 x 192, "
                                      "three frames across and four directions down");
    EXPECT_EQ(previewAt(10, 20), toColorRef(blue));

    // A path shorter than the program folder's can't lie inside it.
    choose("Head");
    scripted.queueFile("\\x.bmp");
    click("cmdBrowseChange");
    EXPECT_EQ(messages().last().text, "You can only use files from your 'Umbrith' folder!");
    EXPECT_EQ(form->state().ChosenPicture, "");
}

TEST_F(NPCCreatorTest, aSaveOutsideTheFolderOrCancelledWritesNothing) {
    open();
    scripted.queueFile("\\n.bmp");
    trigger("mnuFileSave");
    EXPECT_EQ(messages().last().text, "You can only save files into your 'Umbrith' folder!");
    scripted.queueFile("");
    trigger("mnuFileSave");
    EXPECT_EQ(messages().size(), 1);
    scripted.queueFile(AppPath() + "\\nofolder\\n.bmp");
    trigger("mnuFileSave");
    ASSERT_EQ(messages().size(), 3);
    EXPECT_EQ(messages()[1].text, "There was an error saving an NPC file!");
    EXPECT_EQ(messages()[2].title, "This was the error");
    EXPECT_EQ(QDir(nativePath(AppPath() + "\\images\\npcs")).entryList(QDir::Files), QStringList());
}

TEST_F(NPCCreatorTest, loadingDressesThePlayerInTheDefaultsAndCloseHidesTheWorkUntilANewNPC) {
    game.PlayerHelmetPicturePath = "\\images\\heads\\ironhelm.bmp";
    open();
    EXPECT_EQ(game.PlayerHelmetPicturePath, Value("\\images\\heads\\defaulthead.bmp"));
    EXPECT_EQ(game.PlayerArmourPicturePath, Value("\\images\\bodies\\defaultbody.bmp"));
    EXPECT_EQ(game.PlayerShieldPicturePath, Value("\\images\\shields\\defaultshield.bmp"));
    EXPECT_EQ(form->windowTitle(), "Umbrith NPC Creator");
    QStringList rows;
    for (int i = 0; i < on<QListWidget>("lstAreas")->count(); ++i)
        rows << on<QListWidget>("lstAreas")->item(i)->text();
    EXPECT_EQ(rows, QStringList({"Head", "Body", "Hands", "Boots", "Weapon", "Shield"}));

    trigger("mnuFileClose");
    EXPECT_FALSE(on("picBG")->isVisible());
    EXPECT_FALSE(on<QAction>("mnuFileSave")->isEnabled());
    EXPECT_EQ(form->state().AreaPaths, NPCAreaPaths());

    click("cmdDir(3)");
    trigger("mnuFileNew");
    EXPECT_TRUE(on("picBG")->isVisible());
    EXPECT_TRUE(on<QAction>("mnuFileSave")->isEnabled());
    EXPECT_EQ(form->state().AreaPaths, DefaultAreaPaths());
    EXPECT_EQ(form->state().PreviewDirection, 0);
    EXPECT_EQ(on<QLabel>("lblInfo(0)")->text(), "\\images\\heads\\defaulthead.bmp");
}

} // namespace
} // namespace umbrith
