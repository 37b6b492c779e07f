#include "platform/error.h"
#include "tests/support/qtprint.h"
#include "platform/surface.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace umbrith;

TEST(SurfaceTest, maskThenPictureDrawsAFigureOverTheBackground) {
    // A 2 x 1 figure: the left pixel is red figure, the right is transparent.
    Surface sheet(4, 1);
    SetPixel(sheet, 0, 0, 0x0000FF);  // picture: red where the figure is
    SetPixel(sheet, 1, 0, 0x000000);  // black around it
    SetPixel(sheet, 2, 0, 0x000000);  // mask: black where the figure is
    SetPixel(sheet, 3, 0, 0xFFFFFF);  // white around it
    Surface screen(2, 1);
    screen.fill(qRgb(0, 128, 0));
    blit(screen, 0, 0, 2, 1, sheet, 2, 0, RasterOp::SrcAnd);
    blit(screen, 0, 0, 2, 1, sheet, 0, 0, RasterOp::SrcInvert);
    EXPECT_EQ(GetPixel(screen, 0, 0), 0x0000FF);
    EXPECT_EQ(GetPixel(screen, 1, 0), 0x008000);
}

TEST(SurfaceTest, copiesAreClippedToBothSurfaces) {
    Surface tile(24, 24);
    tile.fill(qRgb(10, 20, 30));
    Surface view(30, 30);
    blit(view, 20, -10, 24, 24, tile, 0, 0, RasterOp::SrcCopy);
    EXPECT_EQ(GetPixel(view, 29, 0), toColorRef(qRgb(10, 20, 30)));
    EXPECT_EQ(GetPixel(view, 29, 13), toColorRef(qRgb(10, 20, 30)));
    EXPECT_EQ(GetPixel(view, 29, 14), 0);
    EXPECT_EQ(GetPixel(view, 19, 0), 0);
    EXPECT_EQ(GetPixel(view, 30, 0), -1);
    blit(view, 0, 0, 24, 24, tile, 20, 20, RasterOp::SrcCopy);  // only 4 x 4 exist in the source
    EXPECT_EQ(GetPixel(view, 3, 3), toColorRef(qRgb(10, 20, 30)));
    EXPECT_EQ(GetPixel(view, 4, 4), 0);
}

TEST(SurfaceTest, picturesSaveAsBitmapsAndLoadAsRgb32) {
    QTemporaryDir dir;
    Surface picture(3, 2);
    SetPixel(picture, 2, 1, 0x123456);
    QString path = QString(dir.path() + "/p.bmp").replace('/', '\\');
    picture.saveBitmap(path);
    Surface back = Surface::load(path);
    EXPECT_EQ(back.image().format(), QImage::Format_RGB32);
    EXPECT_EQ(GetPixel(back, 2, 1), 0x123456);
    QFile notPicture(dir.path() + "/x.bmp");
    ASSERT_TRUE(notPicture.open(QIODevice::WriteOnly));
    notPicture.write("not a picture");
    notPicture.close();
    try {
        Surface::load(dir.path() + "/x.bmp");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), err::InvalidPicture);
    }
    EXPECT_THROW(Surface::load(dir.path() + "/none.bmp"), RuntimeError);
}

TEST(SurfaceTest, aSavedPictureReplacesTheOldFileWholeAndAFailedSaveWritesNothing) {
    QTemporaryDir dir;
    const QString path = QString(dir.path() + "/npc.bmp").replace('/', '\\');
    Surface(48, 48).saveBitmap(path);
    Surface wider(144, 192);
    wider.fill(qRgb(200, 10, 10));
    wider.saveBitmap(path);
    EXPECT_EQ(Surface::load(path).width(), 144);
    EXPECT_EQ(GetPixel(Surface::load(path), 143, 191), toColorRef(qRgb(200, 10, 10)));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList({"npc.bmp"}));
    try {
        wider.saveBitmap(QString(dir.path() + "/nofolder/npc.bmp").replace('/', '\\'));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), err::PathNotFound);
    }
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList({"npc.bmp"}));
}
