#include "services/about_window.h"

#include "base/text_primitives.h"

namespace tarnwell {

namespace {

const char kThanks[] = "Thanks to everyone that contributed ideas and gave bug reports. "
                       "Special thanks to Imre, Rowan and Talia for their help with debugging, and to Noor "
                       "and Sunniva for answering everybody's questions.";
constexpr int kMillisecondsALetter = 15;

} // namespace

AboutWindow::AboutWindow(Shared& shared) : shared_(shared) {
    shared_.frmMain.cmdAbout.Click = [this] { open(); };
    ui::FrmAbout& frmAbout = shared_.frmAbout.untouched();
    const auto leadTo = [this](ui::Label& link, const char* url) {
        link.Click = [this, url] { OpenLink(url, shared_.ports.browser); };
    };
    leadTo(frmAbout.lblCommunitySite, web_pages::kCommunitySite);
    leadTo(frmAbout.lblThread, web_pages::kReleaseThread);
    leadTo(frmAbout.Label4, web_pages::kTool);
    leadTo(frmAbout.Label5, web_pages::kTool);
}

void AboutWindow::open() {
    if (shared_.frmAbout.untouched().shown())
        return;
    auto& frmAbout = shared_.frmAbout;
    frmAbout->Label2.caption = VersionIn(shared_.frmMain.caption);
    frmAbout->centreOver(shared_.frmMain);
    frmAbout->topmost = true;
    frmAbout->show();
    typeThanks();
}

void AboutWindow::typeThanks() {
    // Closed meanwhile, or closed and opened anew, the window takes no more of these letters, and must not be
    // loaded by them.
    ui::FrmAbout& frmAbout = shared_.frmAbout.untouched();
    const int opening = ++openings_;
    const auto open = [&] { return frmAbout.shown() && opening == openings_; };
    ui::TextBox& txtAbout = frmAbout.txtAbout;
    for (const QChar letter : QString(kThanks)) {
        shared_.ports.pump.pump();
        if (open()) {
            txtAbout.setFocus();
            txtAbout.text = txtAbout.text + letter;
        }
        shared_.ports.pump.pumpFor(kMillisecondsALetter);
        if (open())
            txtAbout.selectionStart = static_cast<int>(txtAbout.text.get().size());
    }
}

void OpenLink(const QString& url, UrlOpener& browser) {
    browser.open(url);
}

QString VersionIn(const QString& caption) {
    const qsizetype blank = InStr(caption, " v");
    const qsizetype end = InStr(caption, " ", blank + 1);
    return Mid(caption, blank + 1, end - blank - 1);
}

} // namespace tarnwell
