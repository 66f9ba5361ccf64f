#include "ui/qt/settings_window_layout.h"

#include "ui/qt/accessible_frames.h"
#include "ui/qt/layout_parts.h"

#include <QGridLayout>

namespace tarnwell::view {

namespace {

// The inside of the window, in twips.
constexpr int kSettingsWidth = 5310;
constexpr int kSettingsHeight = 4035;

} // namespace

SettingsWindowLayout::SettingsWindowLayout(ui::FrmSettings& form, ControlBinder& controls, QWidget& content)
    : form_(form), controls_(controls), content_(content) {
    layOutTarnwell();
    layOutGui();
    layOutTools();
    layOutWindow();
}

QGridLayout* SettingsWindowLayout::grid(const ui::Frame& page) const {
    auto* layout = new QGridLayout((*this)(page));
    layout->setSpacing(kGap);
    layout->setContentsMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
    return layout;
}

void SettingsWindowLayout::layOutTarnwell() {
    const auto& widget = *this;
    enum Column { kLabel, kText, kBrowse, kColumns };
    QGridLayout* page = grid(form_.fmTarnwell);
    int line = 0;
    page->addWidget(widget(form_.lblApplicationData), line, kLabel);
    page->addWidget(widget(form_.txtApplicationData), line, kText);
    page->addWidget(widget(form_.cmdApplicationData), line, kBrowse);
    page->addWidget(widget(form_.lblDiscDatabase), ++line, kLabel);
    page->addWidget(widget(form_.txtDiscDatabase), line, kText);
    page->addWidget(widget(form_.cmdDiskDatabase), line, kBrowse);
    for (const ui::CheckBox* box : {&form_.chkToxicOS, &form_.chkLimit28bit, &form_.chkEnableASPI,
                                    &form_.chkAutoThrottle, &form_.chkUseCompression})
        page->addWidget(widget(*box), ++line, kLabel, 1, kColumns);
    page->addWidget(widget(form_.lblTargetKBPS), ++line, kLabel);
    page->addWidget(widget(form_.txtTargetkbps), line, kText, Qt::AlignLeading);
    page->setRowStretch(++line, 1);
    page->setColumnStretch(kText, 1);
    controls_.nameBy(form_.lblApplicationData, form_.txtApplicationData);
    controls_.nameBy(form_.lblDiscDatabase, form_.txtDiscDatabase);
    controls_.nameBy(form_.lblTargetKBPS, form_.txtTargetkbps);
}

void SettingsWindowLayout::layOutGui() {
    const auto& widget = *this;
    enum Column { kLabel, kSwitch, kButton, kLastButton, kColumns }; // buttons in two equally wide columns
    QGridLayout* page = grid(form_.fmGUI);
    page->setVerticalSpacing(kGap / 2);
    int line = 0;
    for (const ui::CheckBox* box :
         {&form_.chkStayOnTop, &form_.chkClosePS2, &form_.chkShutdownPS2, &form_.chkShutdownPC,
          &form_.chkStandby, &form_.chkBalloonTips, &form_.chkCloseStatus})
        page->addWidget(widget(*box), line++, kLabel, 1, kColumns);
    page->addWidget(widget(form_.chkStatusServer), line, kLabel, 1, kLastButton);
    page->addWidget(widget(form_.cmdTest), line, kLastButton);
    page->addWidget(widget(form_.lblGameISO), ++line, kLabel);
    page->addLayout(row({widget(form_.txtDefaultISO), widget(form_.cmdDefaultISO)}), line, kSwitch, 1,
                    kColumns - kSwitch);
    page->addWidget(widget(form_.lblColors), ++line, kLabel);
    page->addWidget(widget(form_.chkColors), line, kSwitch);
    page->addWidget(widget(form_.cmdForecolor), line, kButton);
    page->addWidget(widget(form_.cmdBackcolor), line, kLastButton);
    page->addWidget(widget(form_.cmdFont), ++line, kButton);
    page->addWidget(widget(form_.cmdSounds), line, kLastButton);
    page->setColumnStretch(kButton, 1);
    page->setColumnStretch(kLastButton, 1);
    page->setRowStretch(++line, 1);
    controls_.nameBy(form_.lblGameISO, form_.txtDefaultISO);
}

void SettingsWindowLayout::layOutTools() {
    const auto& widget = *this;
    constexpr int kColumns = 3; // equally wide, as the buttons in them
    QGridLayout* page = grid(form_.fmTools);
    int line = 0;
    page->addWidget(widget(form_.lblSelectDevice), line, 0, 1, kColumns);
    page->addWidget(widget(form_.cmbHD), ++line, 0, 1, kColumns - 1);
    page->addWidget(widget(form_.cmdRefresh), line, kColumns - 1);
    page->setRowStretch(++line, 1);
    page->addWidget(widget(form_.lblFormatHD), ++line, 0, 1, kColumns);
    page->addWidget(widget(form_.cmdFormat), ++line, 0);
    page->setRowStretch(++line, 1);
    page->addWidget(widget(form_.lblBackupRestoreTOC), ++line, 0, 1, kColumns);
    page->addWidget(widget(form_.cmdBackupTOC), ++line, 0);
    page->addWidget(widget(form_.cmdRestoreTOC), line, 1);
    page->setRowStretch(++line, 2);
    for (int column = 0; column < kColumns; ++column)
        page->setColumnStretch(column, 1);
    controls_.nameBy(form_.lblSelectDevice, form_.cmbHD);
}

void SettingsWindowLayout::layOutWindow() {
    const auto& widget = *this;
    auto* pane = new QFrame(&content_);
    describeAs<AccessiblePane>(*pane);
    pane->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* pages = new QGridLayout(pane);
    pages->setContentsMargins(0, 0, 0, 0);
    for (const ui::Frame* frame : {&form_.fmTarnwell, &form_.fmGUI, &form_.fmTools}) {
        QWidget* page = widget(*frame);
        keepsRoomWhenHidden(page);
        pages->addWidget(page, 0, 0);
        page->setVisible(frame->visible);
    }

    QVBoxLayout* window = column(&content_);
    window->addWidget(widget(form_.TabStrip));
    window->addWidget(pane, 1);
    window->addSpacing(kGap);
    window->addLayout(
        equalButtons({widget(form_.cmdExit), widget(form_.cmdExitNoSave), widget(form_.cmdDefaults)}));
    window->setSpacing(0);
}

double SettingsWindowLayout::neededPixelsPerTwip() const {
    return std::max(pixelsPerTwip(content_, kSettingsWidth, kSettingsHeight),
                    pixelsPerTwip((*this)(form_.txtApplicationData)->font()));
}

} // namespace tarnwell::view
