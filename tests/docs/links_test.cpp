#include "docs/markdown.h"
#include "support/gtest_qt.h"

#include <QDir>

#include <gtest/gtest.h>

namespace tarnwell::test {

namespace {

struct Page {
    QString folder, name;
};

const Page kReadme{"", "README.md"}, kGuide{"docs/", "guide.md"};

QString textOf(const Page& page) {
    return projectFile(page.folder + page.name);
}

bool leadsSomewhere(const QString& target, const Page& page, const QStringList& headings) {
    if (target.startsWith('#'))
        return headings.contains(target);
    return target.contains("://") || QFile::exists(TARNWELL_SOURCE "/" + page.folder + target);
}

} // namespace

TEST(Links, LeadToFilesAndHeadings) {
    for (const Page& page : {kReadme, kGuide}) {
        const QStringList headings = anchors(textOf(page));
        for (const QString& target : linkTargets(textOf(page)))
            EXPECT_TRUE(leadsSomewhere(target, page, headings)) << target.toStdString();
    }
}

TEST(Links, EveryPictureIsShown) {
    QStringList shown;
    for (const Page& page : {kReadme, kGuide}) {
        for (const QString& target : linkTargets(textOf(page)))
            shown += QDir::cleanPath(page.folder + target);
    }
    const QStringList pictures = QDir(TARNWELL_SOURCE "/docs/pictures").entryList({"*.png"});
    EXPECT_FALSE(pictures.isEmpty());
    for (const QString& picture : pictures)
        EXPECT_TRUE(shown.contains("docs/pictures/" + picture)) << picture.toStdString();
}

} // namespace tarnwell::test
