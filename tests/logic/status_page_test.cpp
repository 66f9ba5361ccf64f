#include "services/status_page.h"
#include "support/gtest_qt.h"

#include <gtest/gtest.h>

namespace tarnwell::test {
namespace {

WorkInProgress sample() {
    return {.job = "Installing [LANTERN] onto Device [192.168.0.10]",
            .percent = "42",
            .elapsed = "00:01:02",
            .remaining = "6 min remaining",
            .speed = "Speed: 4.00 MB/sec",
            .overallPercent = "71",
            .jobIndex = 2,
            .jobs = 3,
            .overallElapsed = "01:02:03"};
}

/// The cell beside a row's name, as it stands in the page.
QByteArray cell(const QByteArray& answer, const QByteArray& row) {
    const qsizetype name = answer.indexOf("<TD>" + row + "</TD>");
    const QByteArray opening = "<TD>", closing = "</TD>";
    const qsizetype value = answer.indexOf(opening, name + opening.size()) + opening.size();
    return name < 0 ? "(no such row)" : answer.mid(value, answer.indexOf(closing, value) - value);
}

QByteArray jobCell(const QString& job) {
    WorkInProgress work = sample();
    work.job = job;
    return cell(BuildStatusPage(work), "Current Task");
}

QByteArray speedCell(const QString& caption) {
    WorkInProgress work = sample();
    work.speed = caption;
    return cell(BuildStatusPage(work), "Transfer Speed");
}

TEST(StatusPage, IsTheseBytes) {
    EXPECT_EQ(
        BuildStatusPage(sample()).toStdString(),
        "HTTP/1.0 200 OK\r\n"
        "Date: Fri, 31 Dec 1999 23:59:59 GMT\r\n"
        "Content-Type: text/html\r\n"
        "Content-Length: 802\r\n"
        "\r\n"
        "<html>\r\n\r\n"
        "<body bgcolor=black>\r\n\r\n"
        "\r\n"
        "\r\n"
        "\r\n"
        "<TABLE BORDER=2 CELLPADDING=4 BGCOLOR=gray BORDERCOLORDARK=black BORDERCOLORLIGHT=white>\r\n\r\n"
        "<TR> <TH COLSPAN=2 BGCOLOR=\"#3232FF\">Current Task</TH> </TR>\r\n\r\n"
        "<TR> <TD>Current Task</TD>      <TD>Installing [LANTERN] onto Device "
        "[192.168.0.10]</TD> </TR>\r\n\r\n"
        "<TR> <TD>Percent Complete</TD>  <TD>42%</TD> </TR>\r\n\r\n"
        "<TR> <TD>Elapsed Time</TD>      <TD>00:01:02</TD> </TR>\r\n\r\n"
        "<TR> <TD>Time Remaining</TD>    <TD>6 min remaining</TD> </TR>\r\n\r\n"
        "<TR> <TD>Transfer Speed</TD>    <TD>4.00 MB/sec</TD> </TR>\r\n\r\n"
        "<TR> <TH COLSPAN=2 BGCOLOR=\"#3232FF\">Overall</TH> </TR>\r\n\r\n"
        "<TR> <TD>Percent Complete</TD>  <TD>71%</TD> </TR>\r\n\r\n"
        "<TR> <TD>Job Status</TD>        <TD>Job 2 of 3</TD> </TR>\r\n\r\n"
        "<TR> <TD>Elapsed Time</TD>      <TD>01:02:03</TD> </TR>\r\n\r\n"
        "</TABLE>\r\n\r\n"
        "\r\n"
        "</body>\r\n\r\n"
        "</html>\r\n");
}

TEST(StatusPage, ItsLengthIsThatOfTheBytesBehindTheHead) {
    WorkInProgress work = sample();
    work.job = QStringLiteral("<\u00e9\u30dd\U0001f3ae> & &amp; \u0001");
    const QByteArray answer = BuildStatusPage(work);
    const QByteArray label = "Content-Length: ";
    const qsizetype length = answer.indexOf(label) + label.size();
    const QByteArray endOfHead = "\r\n\r\n";
    const qsizetype body = answer.indexOf(endOfHead) + endOfHead.size();
    EXPECT_EQ(answer.mid(length, answer.indexOf('\r', length) - length).toLongLong(), answer.size() - body);
}

TEST(StatusPage, WhatABrowserTakesForMarkupIsShownAsText) {
    EXPECT_EQ(jobCell("<script>alert(1)</script>"), "&#60;script&#62;alert(1)&#60;/script&#62;");
    EXPECT_EQ(jobCell("a &lt; b"), "a &#38;lt; b") << "not as a less-than sign";
    EXPECT_EQ(jobCell("&#60;b&#x3e; &copy"), "&#38;#60;b&#38;#x3e; &#38;copy");
}

TEST(StatusPage, WhatIsNoMarkupGoesOutAsItIs) {
    EXPECT_EQ(jobCell("Lantern & Quill \"2\" 'b' a=b; &"), "Lantern & Quill \"2\" 'b' a=b; &");
    EXPECT_EQ(jobCell("&&"), "&&");
    EXPECT_EQ(jobCell(""), "");
}

TEST(StatusPage, EveryCharacterOutsideAsciiIsOneReference) {
    EXPECT_EQ(jobCell(QStringLiteral("Pok\u00e9mon\u007f\u0080")), "Pok&#233;mon\x7f&#128;");
    EXPECT_EQ(jobCell(QStringLiteral("\u30dd\u30b1")), "&#12509;&#12465;");
    EXPECT_EQ(jobCell(QStringLiteral("\U0001f3ae!")), "&#127918;!") << "one character of two units";
    EXPECT_EQ(jobCell(QString(QChar(0xd83c))), "&#65533;") << "half of such a character stands for none";
}

TEST(StatusPage, EveryTextIsMadeHarmless) {
    const QString text = QStringLiteral("<\u00e9>");
    const WorkInProgress work{.job = text,
                              .percent = text,
                              .elapsed = text,
                              .remaining = text,
                              .speed = ": " + text,
                              .overallPercent = text,
                              .overallElapsed = text};
    EXPECT_EQ(BuildStatusPage(work).count("<TD>&#60;&#233;&#62;"), 7);
}

TEST(StatusPage, TheSpeedIsWhatStandsBehindItsName) {
    EXPECT_EQ(speedCell("Speed: n/a"), "n/a");
    EXPECT_EQ(speedCell("Speed: 3:50 MB/sec\r"), "3:50 MB/sec\r") << "from the first colon on, with its end";
    EXPECT_EQ(speedCell("Speed:"), "");
    EXPECT_EQ(speedCell("Speed"), "eed") << "without a colon from the third character on";
    EXPECT_EQ(speedCell(""), "");
}

TEST(StatusPage, TheRemainingTimeGoesInWhole) {
    WorkInProgress work = sample();
    work.remaining = "Time Remaining: n/a";
    EXPECT_EQ(cell(BuildStatusPage(work), "Time Remaining"), "Time Remaining: n/a");
}

TEST(StatusPage, WithoutJobsItSaysSo) {
    EXPECT_EQ(cell(BuildStatusPage({}), "Job Status"), "Job 0 of 0");
}

TEST(StatusPage, IsAskedForByGetAnywhere) {
    EXPECT_TRUE(asksForPage("GET / HTTP/1.1\r\nHost: pc\r\n\r\n"));
    EXPECT_TRUE(asksForPage("POST /GET HTTP/1.1\r\n\r\n"));
    EXPECT_TRUE(asksForPage(QByteArray(997, 'x') + "GET"));
    EXPECT_TRUE(asksForPage(QByteArray("\0\0GET", 5)));
    EXPECT_FALSE(asksForPage("HEAD / HTTP/1.1\r\nHost: pc\r\n\r\n"));
    EXPECT_FALSE(asksForPage("get / HTTP/1.1\r\n\r\n"));
    EXPECT_FALSE(asksForPage("GE"));
    EXPECT_FALSE(asksForPage(""));
}

} // namespace
} // namespace tarnwell::test
