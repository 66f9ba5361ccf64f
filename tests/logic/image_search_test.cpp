#include "support/gtest_qt.h"
#include "workflows/image_search.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarnwell::test {

namespace {

struct ImageSearchTest : testing::Test {
    QString make(const QString& name) const {
        QString path = folder_.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        return path;
    }
    /// What is found, by its path inside the folder.
    QStringList found(const QStringList& names) {
        QStringList paths;
        for (const QString& name : names)
            paths += folder_.filePath(name);
        ImageSearch search(paths);
        while (!search.nextFolder().isEmpty())
            search.lookIntoNextFolder();
        useless_ = search.useless();
        QStringList images;
        for (const QString& image : search.images())
            images += QDir(folder_.path()).relativeFilePath(QDir::fromNativeSeparators(image));
        return images;
    }

    QTemporaryDir folder_;
    QStringList useless_;
};

} // namespace

TEST_F(ImageSearchTest, AllKindsThatBrowseOffersAreFoundInAnyCase) {
    for (const char* name : {"a.iso", "b.NRG", "c.Gi", "d.iml", "e.cue", "f", "giso", "g.is", "h.iso.txt"})
        make(name);
    EXPECT_EQ(found({"."}), QStringList({"a.iso", "b.NRG", "c.Gi", "d.iml"}));
    EXPECT_EQ(useless_, QStringList()) << "other files of a folder are nobody's concern";
}

TEST_F(ImageSearchTest, TheImagesOfAFolderComeBeforeThoseOfTheFoldersInIt) {
    for (const char* name : {"a/deep/er/1.iso", "a/2.iso", "b/3.iso", "4.iso"})
        make(name);
    EXPECT_EQ(found({"."}), QStringList({"4.iso", "a/2.iso", "b/3.iso", "a/deep/er/1.iso"}));
}

TEST_F(ImageSearchTest, AFolderThatIsNamedLikeAnImageIsAFolder) {
    make("set.iso/1.iso");
    EXPECT_EQ(found({"set.iso"}), QStringList("set.iso/1.iso"));
}

TEST_F(ImageSearchTest, FilesThatAreNoImagesAreNamedIfTheUserNamedThem) {
    make("readme.txt");
    EXPECT_EQ(found({"readme.txt", "gone.iso"}), QStringList());
    EXPECT_EQ(useless_.size(), 2);
}

#ifdef Q_OS_UNIX
TEST_F(ImageSearchTest, LinksInACircleEnd) {
    make("a/1.iso");
    ASSERT_TRUE(QFile::link(folder_.filePath("a"), folder_.filePath("a/again")));
    ASSERT_TRUE(QFile::link(folder_.path(), folder_.filePath("a/up")));
    ASSERT_TRUE(QFile::link(folder_.filePath("a/1.iso"), folder_.filePath("a/2.iso")));
    EXPECT_EQ(found({"a"}), QStringList("a/1.iso"));
}
#endif

} // namespace tarnwell::test
