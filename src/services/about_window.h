#pragma once

#include "base/shared.h"

namespace tarnwell {

/// The window that tells what this program is and whom it thanks. Its thanks type themselves, letter by
/// letter, inside the click that opens it.
class AboutWindow {
public:
    explicit AboutWindow(Shared& shared);

private:
    void open();
    void typeThanks();

    Shared& shared_;
    int openings_ = 0;
};

/// Opens a web page in the user's browser.
void OpenLink(const QString& url, UrlOpener& browser);

/// The version in the caption of the main window: the word that starts with the first "v" behind a blank.
QString VersionIn(const QString& caption);

} // namespace tarnwell
