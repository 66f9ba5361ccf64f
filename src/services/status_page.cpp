#include "services/status_page.h"

#include <QByteArrayList>

namespace tarnwell {

namespace {

constexpr char32_t kFirstBeyondAscii = 0x80;

bool canFollowInReference(char32_t c) {
    return c == U'#' || (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
}

/// An ampersand that stands alone is a plain character to a browser; one that may begin a reference is not.
bool isMarkup(char32_t c, char32_t next) {
    return c == U'<' || c == U'>' || (c == U'&' && canFollowInReference(next));
}

QByteArray asText(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    QByteArray result;
    for (qsizetype i = 0; i < characters.size(); ++i) {
        const char32_t c = characters[i];
        if (c >= kFirstBeyondAscii || isMarkup(c, characters.value(i + 1)))
            result += "&#" + QByteArray::number(characters[i]) + ';';
        else
            result += static_cast<char>(c);
    }
    return result;
}

/// What stands behind the ": "; without one the text from its third character on.
QString valueOf(const QString& speed) {
    return speed.mid(qMax<qsizetype>(0, speed.indexOf(u':')) + 2);
}

QByteArray page(const WorkInProgress& work) {
    const QByteArray endOfRow = "</TD> </TR>\r\n";
    const QByteArray jobNumber =
        "Job " + QByteArray::number(work.jobIndex) + " of " + QByteArray::number(work.jobs);
    // clang-format off
    const QByteArrayList lines{
        "<html>\r\n",
        "<body bgcolor=black>\r\n",
        {}, {}, {},
        "<TABLE BORDER=2 CELLPADDING=4 BGCOLOR=gray BORDERCOLORDARK=black BORDERCOLORLIGHT=white>\r\n",
        "<TR> <TH COLSPAN=2 BGCOLOR=\"#3232FF\">Current Task</TH> </TR>\r\n",
        "<TR> <TD>Current Task</TD>      <TD>" + asText(work.job) + endOfRow,
        "<TR> <TD>Percent Complete</TD>  <TD>" + asText(work.percent) + '%' + endOfRow,
        "<TR> <TD>Elapsed Time</TD>      <TD>" + asText(work.elapsed) + endOfRow,
        "<TR> <TD>Time Remaining</TD>    <TD>" + asText(work.remaining) + endOfRow,
        "<TR> <TD>Transfer Speed</TD>    <TD>" + asText(valueOf(work.speed)) + endOfRow,
        "<TR> <TH COLSPAN=2 BGCOLOR=\"#3232FF\">Overall</TH> </TR>\r\n",
        "<TR> <TD>Percent Complete</TD>  <TD>" + asText(work.overallPercent) + '%' + endOfRow,
        "<TR> <TD>Job Status</TD>        <TD>" + jobNumber + endOfRow,
        "<TR> <TD>Elapsed Time</TD>      <TD>" + asText(work.overallElapsed) + endOfRow,
        "</TABLE>\r\n",
        {},
        "</body>\r\n",
        "</html>\r\n"};
    // clang-format on
    return lines.join("\r\n");
}

} // namespace

QByteArray BuildStatusPage(const WorkInProgress& work) {
    const QByteArray body = page(work);
    // A fixed date from the past: no copy of the page is ever fresh.
    return "HTTP/1.0 200 OK\r\n"
           "Date: Fri, 31 Dec 1999 23:59:59 GMT\r\n"
           "Content-Type: text/html\r\n"
           "Content-Length: " +
           QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

bool asksForPage(const QByteArray& piece) {
    return piece.contains("GET");
}

} // namespace tarnwell
