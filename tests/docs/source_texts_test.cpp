#include "docs/source_texts.h"
#include "support/gtest_qt.h"

#include <gtest/gtest.h>

namespace tarnwell::test {

namespace {

QStringList literals(const QString& source) {
    QStringList texts;
    for (const SourceText& found : textsIn(source))
        texts += found.text;
    return texts;
}

} // namespace

TEST(SourceTexts, LiteralsThatFollowEachOtherAreOne) {
    EXPECT_EQ(literals("f(\"one \"\n    \"two\", \"three\");"), QStringList({"one two", "three"}));
    EXPECT_EQ(literals("\"one \" // and\n \"two\" + \"three\""), QStringList({"one two", "three"}));
}

TEST(SourceTexts, EscapesAreRead) {
    EXPECT_EQ(literals(R"("a \"b\"\r\nc\\d")"), QStringList("a \"b\"\r\nc\\d"));
}

TEST(SourceTexts, CommentsIncludesAndCharactersAreNoTexts) {
    EXPECT_EQ(
        literals(
            "#include \"a.h\"\n// \"b\n/* \"c\n */ x == u'\"' || y == '\\'' || '0' || 10'000; \"http://d\""),
        QStringList("http://d"));
}

TEST(SourceTexts, TheCallsAroundATextAreKnown) {
    const auto texts = textsIn("if (dialogs.question(ask(\"who\") + \"why\", title)) tell(\"no\");");
    ASSERT_EQ(texts.size(), 3);
    EXPECT_EQ(texts[0].calls, QStringList({"if", "question", "ask"}));
    EXPECT_EQ(texts[1].calls, QStringList({"if", "question"}));
    EXPECT_EQ(texts[2].calls, QStringList("tell"));
}

} // namespace tarnwell::test
