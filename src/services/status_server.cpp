#include "services/status_server.h"

#include "services/status_page.h"

namespace tarnwell {

namespace {

constexpr quint16 kHttpPort = 80;

const char kTestMessage[] =
    "Leave this messagebox open during the test process.\r\n"
    "\r\n"
    "1. Open a web browser, type http://127.0.0.1 into the address field and press enter.\r\n"
    "2. Click OK to close this box.\r\n"
    "\r\n"
    "If you see the status webpage then it is working. To view it away from your LAN you must use your "
    "internet IP address. Search the web for \"what is my IP address\" to find a web site that shows it.\r\n"
    "\r\n"
    "If your browser fails to connect then you may have to configure your router to allow the port 80 "
    "connection.";

WorkInProgress readWork(Shared& shared) {
    auto& frmStatus = shared.frmStatus;
    return {.job = frmStatus->lblJob.caption,
            .percent = frmStatus->picCurrent.tag,
            .elapsed = frmStatus->lblCurrentElapsed.caption,
            .remaining = frmStatus->lblRemaining.caption,
            .speed = frmStatus->lblSpeed.caption,
            .overallPercent = frmStatus->picOverall.tag,
            .jobIndex = shared.intJobIndex,
            .jobs = shared.frmMain.lstJob.count(),
            .overallElapsed = frmStatus->lblOverallElapsed.caption};
}

} // namespace

StatusServer::StatusServer(Shared& shared) : shared_(shared) {
    shared_.ports.listener.received = [this](const QByteArray& piece) {
        shared_.frmMain.dispatch([&] { answer(piece); });
    };
    shared_.frmMain.QueryUnload = [this](bool&) { stopIfActive(); };
    shared_.frmSettings.untouched().cmdTest.Click = [this] { test(); };
}

void StatusServer::StartServer() {
    if (shared_.blnServerActive)
        return;
    shared_.ports.listener.listen(kHttpPort);
    shared_.frmMain.caption = shared_.title + " - [HTTP Server Active]";
    shared_.blnServerActive = true;
}

void StatusServer::StopServer() {
    shared_.ports.listener.close();
    shared_.frmMain.caption = shared_.title;
    shared_.blnServerActive = false;
}

void StatusServer::startIfWanted() {
    if (shared_.frmSettings->chkStatusServer.value == 1)
        StartServer();
}

void StatusServer::stopIfActive() {
    if (shared_.blnServerActive)
        StopServer();
}

void StatusServer::answer(const QByteArray& piece) {
    if (asksForPage(piece))
        shared_.ports.listener.send(BuildStatusPage(readWork(shared_)));
}

void StatusServer::test() {
    StartServer();
    shared_.message(kTestMessage, MessageIcon::Question);
    // Also if work has brought the server up: the test ends it for good.
    StopServer();
}

} // namespace tarnwell
