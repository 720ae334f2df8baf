// Every window, drawn by the window gallery, matches its approved picture pixel
// for pixel. After a change meant to be seen, look at the new pictures
// (build/default/tools/window_gallery FOLDER) and copy them to tests/data/windows.

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

TEST(Looks, EveryWindowLooksAsApproved) {
#ifdef _WIN32
    GTEST_SKIP() << "the approved pictures are drawn with the fonts of the Linux build";
#endif
    const QDir approved(QStringLiteral(FS_APPROVED_WINDOWS));
    QTemporaryDir drawn;
    ASSERT_EQ(QProcess::execute(QStringLiteral(FS_WINDOW_GALLERY), {drawn.path()}), 0);
    const QStringList pictures = approved.entryList({QStringLiteral("*.png")});
    ASSERT_EQ(QDir(drawn.path()).entryList({QStringLiteral("*.png")}), pictures);
    for (const QString& name : pictures) {
        const QImage now(drawn.filePath(name)), before(approved.filePath(name));
        EXPECT_TRUE(now.convertToFormat(QImage::Format_ARGB32) ==
                    before.convertToFormat(QImage::Format_ARGB32))
            << name.toStdString() << " is no longer as approved";
    }
}
