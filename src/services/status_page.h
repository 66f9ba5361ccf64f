#pragma once

#include <QByteArray>
#include <QString>

namespace tarnwell {

/// What the status page tells, as it stands in the status window and the job list.
struct WorkInProgress {
    QString job{};
    QString percent{};
    QString elapsed{};
    QString remaining{};
    QString speed{}; ///< "Speed: " and the value; the page shows the value
    QString overallPercent{};
    int jobIndex = 0; ///< counted from 1
    int jobs = 0;
    QString overallElapsed{};
};

/// The complete answer to a browser, head and page. All of it is ASCII: what a browser would take for markup,
/// and every other character, goes out as a numeric character reference. So the page shows each text as it
/// is, and no name of a game can bring a script into a browser.
QByteArray BuildStatusPage(const WorkInProgress& work);

/// Whether what a client sent in one piece asks for the page. Nothing else of a request counts.
bool asksForPage(const QByteArray& piece);

} // namespace tarnwell
