#pragma once

#include "base/shared.h"

namespace tarnwell {

/// While work runs, shows how far it is to web browsers on other machines. Nothing that goes wrong here is
/// told: work does not depend on somebody looking at it.
class StatusServer {
public:
    explicit StatusServer(Shared& shared);

    /// Does nothing while it is active. The main window says that it is, even if the port cannot be had.
    void StartServer();
    void StopServer();

    void startIfWanted();
    void stopIfActive();

private:
    void answer(const QByteArray& piece);
    void test();

    Shared& shared_;
};

/// The server for as long as this lives, if the user wants it: made when work begins, gone whichever way the
/// work ends.
class ServerDuringWork {
public:
    explicit ServerDuringWork(StatusServer& server) : server_(server) { server_.startIfWanted(); }
    ~ServerDuringWork() { server_.stopIfActive(); }
    ServerDuringWork(const ServerDuringWork&) = delete;
    ServerDuringWork& operator=(const ServerDuringWork&) = delete;

private:
    StatusServer& server_;
};

} // namespace tarnwell
