#pragma once

#include "ui/form.h"
#include "ui/web_pages.h"

namespace tarnwell::ui {

/// Name and version of the program, the versions of the tool and the console's server that go with it, links,
/// and a text of thanks. It has no button: its frame closes it.
class FrmAbout : public Form {
public:
    FrmAbout();

    Label Label1{*this, "Label1", {.caption = "Tarnwell GUI"}};
    Label Label2{*this, "Label2", {.caption = "v1.0"}}; ///< each opening writes the version into it
    Label Label3{*this, "Label3", {.caption = "by mirelane"}};
    Line Line1{*this, "Line1"};
    Line Line2{*this, "Line2"};
    Frame Frame1{*this, "Frame1"};
    Label lblCommunitySite{*this,
                           "lblCommunitySite",
                           {.in = &Frame1,
                            .caption = web_pages::kCommunityName,
                            .toolTip = web_pages::kCommunitySite,
                            .link = true}};
    Frame Frame2{*this, "Frame2"};
    Label lblThread{
        *this,
        "lblThread",
        {.in = &Frame2, .caption = "GUI Release Thread", .toolTip = web_pages::kReleaseThread, .link = true}};
    Frame Frame3{*this, "Frame3"};
    Label Label4{*this,
                 "Label4",
                 {.in = &Frame3,
                  .caption = "tarnwell v0.8.6",
                  .toolTip = "Recommended version of Tarnwell to use.",
                  .link = true}};
    Frame Frame4{*this, "Frame4"};
    Label Label5{*this,
                 "Label5",
                 {.in = &Frame4,
                  .caption = "tarnd_svr v0.8.5",
                  .toolTip = "Recommended version of tarnd_svr.elf to use.",
                  .link = true}};
    TextBox txtAbout{*this, "txtAbout", {.accessibleName = "Thanks", .readOnly = true, .multiLine = true}};
};

} // namespace tarnwell::ui
