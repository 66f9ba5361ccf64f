#include "platform/qt/file_filter.h"
#include "platform/qt/message_text.h"
#include "support/gtest_qt.h"

#include <gtest/gtest.h>

namespace tarnwell {
namespace {

TEST(FileFilter, PairsOfWordsAndPatternsBecomeTheToolkitsFilters) {
    EXPECT_EQ(toolkitFilters("Wave files (*.wav)|*.wav|All Files (*.*)|*.*|"),
              QStringList({"Wave files (*.wav)", "All Files (*)"}));
    EXPECT_EQ(toolkitFilters("Images|*.iso;*.bin; *.cue"), QStringList({"Images (*.iso *.bin *.cue)"}));
    EXPECT_EQ(toolkitFilters("Images (ISO) of games|*.iso"), QStringList({"Images (ISO) of games (*.iso)"}));
}

TEST(FileFilter, WhatIsNoPairIsPassedOver) {
    EXPECT_EQ(toolkitFilters(""), QStringList());
    EXPECT_EQ(toolkitFilters("words"), QStringList());
    EXPECT_EQ(toolkitFilters("words|"), QStringList());
    EXPECT_EQ(toolkitFilters("words|*.a|more words"), QStringList({"words (*.a)"}));
}

TEST(FileFilter, ADialogThatHeedsTheCaseGetsPatternsForBothAndTheSameWords) {
    EXPECT_EQ(toolkitFilters("ISO Files (*.iso)|*.iso;*.7z|All Files (*.*)|*.*|", PatternsFit::OwnCase),
              QStringList({"ISO Files (*.[iI][sS][oO] *.7[zZ])", "All Files (*)"}));
}

TEST(FileFilter, TheFirstPatternTellsTheKindOfFile) {
    EXPECT_EQ(kindOfFile("ISO Files (*.iso)|*.iso|All Files (*.*)|*.*|"), "*.iso");
    EXPECT_EQ(kindOfFile("Images|*.ISO;*.bin|"), "*.iso");
    EXPECT_EQ(kindOfFile(""), "");
}

TEST(MessageText, AnOrdinaryTextIsShownAsItIs) {
    const QString text = "tarnwell.exe was not found.\nPlace it in the same directory & try again. <b>";
    EXPECT_EQ(fitMessageText(text).shown, text);
    EXPECT_EQ(fitMessageText(text).whole, "");
}

TEST(MessageText, ALongWordMayBeBroken) {
    const QString path = "/home/" + QString(200, u'a');
    QString shown = fitMessageText(path).shown;
    EXPECT_GT(shown.size(), path.size());
    EXPECT_EQ(shown.remove(QChar(0x200B)), path);
}

TEST(MessageText, AVeryLongTextIsCutAndKeptWhole) {
    const QString lines = QStringLiteral("line\n").repeated(500);
    EXPECT_LE(fitMessageText(lines).shown.count(u'\n'), 20);
    EXPECT_EQ(fitMessageText(lines).whole, lines);
    const QString words = QStringLiteral("word ").repeated(5000);
    EXPECT_LT(fitMessageText(words).shown.size(), 1100);
    EXPECT_EQ(fitMessageText(words).whole, words);
}

} // namespace
} // namespace tarnwell
