#include "docs/markdown.h"
#include "support/gtest_qt.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace tarnwell::test {

namespace {

const QStringList kPages{"README.md", "docs/guide.md"};

/// From the project's folder.
QString pathOf(const QString& target, const QString& page) {
    const QString file = target.section('#', 0, 0);
    return file.isEmpty() ? page : QDir::cleanPath(QFileInfo(page).path() + '/' + file);
}

bool leadsSomewhere(const QString& target, const QString& page) {
    if (target.contains("://"))
        return true;
    const QString path = pathOf(target, page), heading = target.section('#', 1);
    return QFile::exists(TARNWELL_SOURCE "/" + path) &&
           (heading.isEmpty() || anchors(projectFile(path)).contains('#' + heading));
}

} // namespace

TEST(Links, LeadToFilesAndHeadings) {
    for (const QString& page : kPages) {
        const QStringList targets = linkTargets(projectFile(page));
        EXPECT_FALSE(targets.isEmpty());
        for (const QString& target : targets)
            EXPECT_TRUE(leadsSomewhere(target, page)) << page.toStdString() << ": " << target.toStdString();
    }
}

TEST(Links, EveryPictureIsShown) {
    QStringList shown;
    for (const QString& page : kPages) {
        for (const QString& target : linkTargets(projectFile(page)))
            shown += pathOf(target, page);
    }
    const QStringList pictures = QDir(TARNWELL_SOURCE "/docs/pictures").entryList({"*.png"});
    EXPECT_FALSE(pictures.isEmpty());
    for (const QString& picture : pictures)
        EXPECT_TRUE(shown.contains("docs/pictures/" + picture)) << picture.toStdString();
}

} // namespace tarnwell::test
