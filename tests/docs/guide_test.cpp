#include "docs/markdown.h"
#include "docs/source_texts.h"
#include "support/gtest_qt.h"

#include <QDirIterator>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace tarnwell::test {

namespace {

constexpr int kWordsOfASentence = 3;

bool anyOf(const QStringList& calls, const QStringList& names) {
    return std::ranges::any_of(calls, [&](const QString& call) { return names.contains(call); });
}

/// What these say nobody needs explained, or only a debugger sees.
const QStringList kFilesLeftOut{"services/status_page.cpp", "services/about_window.cpp", "tool/std_io.cpp",
                                "tool/kill_process.h"};

/// Captions and titles that say what they stand for, and names of folders.
const QStringList kTextsLeftOut{"Current: %1%\r\nOverall: %2%\r\nJob %3 of %4\r\n%5",
                                "Creating ISO File [",
                                "Documents and Settings\\",
                                "documents and settings\\",
                                "Select PS2 Game ISO directory",
                                "Tarnwell Disk Database|",
                                "(no active device)",
                                "Browse, Backup, and Delete - %1 Games",
                                "Select Sound File",
                                "Save Copy of Game As",
                                "Save Disc Image As",
                                "Save List of Games As",
                                "Save Table of Contents As",
                                "Select Disk Database",
                                "Select Game Image",
                                "Select Table of Contents to Restore",
                                "Looking for images in ",
                                "Work on PS2 games is under way",
                                "Backup to PC",
                                "Currently on Job 1 of 1",
                                "Currently on Job %1 of %2"};

qsizetype words(const QString& text) {
    static const QRegularExpression letters("[A-Za-z]{2}");
    return text.simplified().split(' ').filter(letters).size();
}

/// What stands between the places of values, without signs in front.
QStringList fixedParts(const QString& text) {
    static const QRegularExpression value("%\\d"), signsInFront("^[^\\w%]+");
    QStringList parts;
    for (QString part : text.split(value)) {
        part = plainWords(part).remove(signsInFront);
        if (words(part) > 0)
            parts += part;
    }
    return parts;
}

bool isForTheUser(const SourceText& text) {
    if (anyOf(text.calls, {"message", "question", "input", "Fault", "report"}))
        return true;
    const bool ofTheTool = anyOf(text.calls, {"contains", "startsWith"});
    const bool ofAFileDialog = text.text.contains("*.");
    return !ofTheTool && !ofAFileDialog && !kTextsLeftOut.contains(text.text) &&
           words(text.text) >= kWordsOfASentence;
}

/// The texts of the program, file by file; the control tables of the windows are not among them.
QMap<QString, QList<SourceText>> textsOfProgram() {
    const QDir sources(TARNWELL_SOURCE "/src");
    QMap<QString, QList<SourceText>> texts;
    for (QDirIterator files(sources.path(), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
         files.hasNext();) {
        const QString file = sources.relativeFilePath(files.next());
        if (!file.startsWith("ui/") && !kFilesLeftOut.contains(file))
            texts[file] = textsIn(projectFile("src/" + file));
    }
    return texts;
}

} // namespace

TEST(Guide, HasEveryMessageWordForWord) {
    const QString guide = plainWords(projectFile("docs/guide.md"));
    int messages = 0;
    const auto texts = textsOfProgram();
    for (auto file = texts.begin(); file != texts.end(); ++file) {
        for (const SourceText& text : *file) {
            if (!isForTheUser(text))
                continue;
            ++messages;
            for (const QString& part : fixedParts(text.text))
                EXPECT_TRUE(guide.contains(part))
                    << file.key().toStdString() << " can show what docs/guide.md "
                    << "does not explain: " << part.toStdString();
        }
    }
    EXPECT_GT(messages, 60);
}

TEST(Guide, QuotesOnlyWhatTheProgramSays) {
    QString program;
    for (const auto& texts : textsOfProgram()) {
        for (const SourceText& text : texts)
            program += plainWords(text.text) + '\n';
    }
    static const QRegularExpression borders("\\*[^*\\s][^*]*\\*|%\\d|(?<=[.?:]) ");
    int sentences = 0;
    for (const QString& quote : quotes(projectFile("docs/guide.md"))) {
        for (QString sentence : quote.split(borders)) {
            sentence = plainWords(sentence);
            if (words(sentence) < kWordsOfASentence)
                continue;
            ++sentences;
            EXPECT_TRUE(program.contains(sentence))
                << "docs/guide.md quotes what the program does not say: " << sentence.toStdString();
        }
    }
    EXPECT_GT(sentences, 60);
}

} // namespace tarnwell::test
