#include "ui/qt/main_window_layout.h"

#include "ui/qt/layout_parts.h"
#include "ui/qt/list_columns.h"
#include "ui/qt/main_window_hints.h"
#include "ui/qt/rows_view.h"

#include <QGridLayout>
#include <QLabel>

namespace tarnwell::view {

namespace {

// The room around the frames, in twips. Sideways it follows from their places.
constexpr int kTopMargin = 45;
constexpr int kBottomMargin = 65;

} // namespace

MainWindowLayout::MainWindowLayout(ui::FrmMain& form, ControlBinder& controls, QWidget& content)
    : form_(form), controls_(controls) {
    layOutWindow(content);
    layOutDevice();
    layOutNavigation();
    layOutInstall();
    layOutBrowse();
    layOutJobs();
    layOutOutput();
    orderFocus();
    showHints(form, controls);
}

void MainWindowLayout::layOutWindow(QWidget& content) {
    const auto& widget = *this;
    pages_ = new QWidget(&content);
    for (const ui::Frame* frame : {&form_.fmMain, &form_.fmNavigation, &form_.fmInstall, &form_.fmBrowse}) {
        widget(*frame)->setParent(pages_);
        widget(*frame)->setVisible(frame->visible);
    }
    auto* left = new QVBoxLayout;
    left->setSpacing(0);
    left->addWidget(widget(form_.fmMain), 1);
    left->addWidget(widget(form_.fmNavigation));

    pagesGrid_ = new QGridLayout(pages_);
    pagesGrid_->setContentsMargins(0, 0, 0, 0);
    pagesGrid_->addLayout(left, 0, 0);
    pagesGrid_->addWidget(widget(form_.fmInstall), 0, 1);
    pagesGrid_->addWidget(widget(form_.fmBrowse), 0, 1);
    pagesGrid_->setColumnStretch(1, 1);
    widget(form_.fmInstall)->raise();

    windowGrid_ = new QGridLayout(&content);
    windowGrid_->addWidget(pages_, 0, 0);
    windowGrid_->addWidget(widget(form_.fmJob), 0, 0);
    windowGrid_->addWidget(widget(form_.fmOutput), 1, 0);
    windowGrid_->setRowStretch(0, form_.fmInstall.height);
    windowGrid_->setRowStretch(1, form_.fmOutput.height);

    for (QWidget* page : {widget(form_.fmInstall), widget(form_.fmBrowse), widget(form_.fmJob), pages_})
        keepsRoomWhenHidden(page);
    // What the job queue covers is out of reach of the Tab key and of screen readers, too.
    controls_.binding().follow(form_.fmJob.visible.changed, *pages_,
                               [this] { pages_->setVisible(!form_.fmJob.visible); });
}

void MainWindowLayout::layOutDevice() {
    const auto& widget = *this;
    QHBoxLayout* sources = row({widget(form_.optLAN), widget(form_.optLocal)});
    sources->insertStretch(1);

    // The list of local disks takes the place of the address.
    QHBoxLayout* device = row({widget(form_.lblIP), widget(form_.txtIP), widget(form_.cmbHD),
                               widget(form_.cmdAttach), widget(form_.cmdShutdownPS2)});
    device->setStretchFactor(widget(form_.txtIP), 1);
    device->setStretchFactor(widget(form_.cmbHD), 1);
    controls_.nameBy(form_.lblIP, form_.txtIP);

    QVBoxLayout* inDevice = column(widget(form_.fmDevice));
    inDevice->setContentsMargins(0, 0, 0, 0);
    inDevice->addLayout(sources);
    inDevice->addLayout(device);

    takesRoomItGets(widget(form_.lblDiskSpace));
    static_cast<QLabel*>(widget(form_.lblDiskSpace))->setAlignment(Qt::AlignCenter);
    QVBoxLayout* space = column(widget(form_.fmHDDSpace));
    space->addWidget(widget(form_.picDiskSpace));
    space->addWidget(widget(form_.lblDiskSpace));

    QVBoxLayout* main = column(widget(form_.fmMain));
    main->addWidget(widget(form_.fmDevice));
    main->addStretch();
    main->addWidget(widget(form_.fmHDDSpace));
}

void MainWindowLayout::layOutNavigation() {
    const auto& widget = *this;
    QHBoxLayout* pages = row({widget(form_.optInstall), widget(form_.optBrowse), widget(form_.optJobQueue)});
    pages->insertStretch(1);
    pages->insertStretch(3);

    QVBoxLayout* navigation = column(widget(form_.fmNavigation));
    navigation->setSpacing(kGap / 2);
    navigation->addLayout(pages);
    navigation->addWidget(widget(form_.Line3));
    navigation->addWidget(widget(form_.chkOutput));
    navigation->addWidget(widget(form_.Line4));
    navigation->addLayout(equalButtons({widget(form_.cmdSettings), widget(form_.cmdAbout),
                                        widget(form_.cmdMinimize), widget(form_.cmdExit)}));
}

void MainWindowLayout::layOutInstall() {
    const auto& widget = *this;
    auto* source = new QGridLayout;
    source->setSpacing(kGap - 1);
    source->addWidget(widget(form_.optISO), 0, 0);
    source->addWidget(widget(form_.txtISO), 0, 1);
    source->addWidget(widget(form_.cmdISO), 0, 2);
    source->addWidget(widget(form_.optOptical), 1, 0);
    source->addWidget(widget(form_.cmbOptical), 1, 1, 1, 2);
    source->setColumnStretch(1, 1);

    auto* game = new QGridLayout;
    game->setSpacing(kGap - 1);
    game->addWidget(widget(form_.lblGameName), 0, 0);
    game->addWidget(widget(form_.txtGameName), 0, 1, 1, 3);
    game->addWidget(widget(form_.lblStartup), 1, 0);
    game->addWidget(widget(form_.txtGameStartup), 1, 1);
    game->addWidget(widget(form_.lblSize), 1, 2);
    game->addWidget(widget(form_.txtGameSize), 1, 3);
    game->addWidget(widget(form_.lblType), 2, 0);
    game->addWidget(widget(form_.cmbType), 2, 1);
    game->addWidget(widget(form_.cmdCompat), 2, 2, 1, 2);
    game->setColumnStretch(1, 3);
    game->setColumnStretch(3, 2);
    controls_.nameBy(form_.lblGameName, form_.txtGameName);
    controls_.nameBy(form_.lblStartup, form_.txtGameStartup);
    controls_.nameBy(form_.lblSize, form_.txtGameSize);
    controls_.nameBy(form_.lblType, form_.cmbType);

    QHBoxLayout* information = heading(widget(form_.lblGameInfo), widget(form_.Line2));
    information->addWidget(widget(form_.lblDVD9));

    QVBoxLayout* install = column(widget(form_.fmInstall));
    install->addLayout(heading(widget(form_.lblSource), widget(form_.Line1)));
    install->addLayout(source);
    install->addStretch();
    install->addLayout(information);
    install->addLayout(game);
    install->addStretch();
    install->addLayout(
        equalButtons({widget(form_.cmdInstall), widget(form_.cmdAddGame), widget(form_.cmdMakeISO)}));
}

void MainWindowLayout::layOutBrowse() {
    const auto& widget = *this;
    QVBoxLayout* browse = column(widget(form_.fmBrowse));
    browse->addWidget(widget(form_.lstHD), 1);
    browse->addLayout(
        equalButtons({widget(form_.cmdDelete), widget(form_.cmdSaveList), widget(form_.cmdBackupPC),
                      widget(form_.cmdBackupPS2), widget(form_.cmdBackupHDD)}));
}

void MainWindowLayout::layOutJobs() {
    const auto& widget = *this;
    makeVertical(widget(form_.Line5));
    makeVertical(widget(form_.Line6));
    QHBoxLayout* buttons = equalButtons(
        {widget(form_.cmdStart), widget(form_.cmdRemove), widget(form_.cmdClear), widget(form_.cmdControls)});
    buttons->insertWidget(1, widget(form_.Line5));
    buttons->insertWidget(4, widget(form_.Line6));

    constexpr int kResult = 0;
    static_cast<RowsView*>(widget(form_.lstJob))->columns->keepWhole(kResult);

    QVBoxLayout* jobs = column(widget(form_.fmJob));
    jobs->addWidget(widget(form_.lstJob), 1);
    jobs->addWidget(widget(form_.lblCommandLine));
    jobs->addLayout(buttons);
}

void MainWindowLayout::layOutOutput() {
    const auto& widget = *this;
    controls_.nameBy(form_.lblCommand, form_.txtCommand);
    QVBoxLayout* output = column(widget(form_.fmOutput));
    output->addLayout(row({widget(form_.lblCommand), widget(form_.txtCommand)}));
    output->addWidget(widget(form_.txtOutput), 1);
}

void MainWindowLayout::orderFocus() {
    // The activity stands below the pages, so the Tab key gets there after them.
    const auto& widget = *this;
    QWidget::setTabOrder(widget(form_.cmdControls), widget(form_.txtCommand));
    QWidget::setTabOrder(widget(form_.txtCommand), widget(form_.txtOutput));
}

double MainWindowLayout::neededPixelsPerTwip() const {
    const auto& widget = *this;
    const auto leastHeight = [&](const ui::Frame& frame) {
        return widget(frame)->minimumSizeHint().height();
    };
    const int leftColumn = leastHeight(form_.fmMain) + leastHeight(form_.fmNavigation);
    double needed = double(leftColumn) / form_.fmInstall.height;
    for (const ui::Frame* frame : {&form_.fmInstall, &form_.fmBrowse, &form_.fmJob, &form_.fmOutput})
        needed = std::max(needed, pixelsPerTwip(*widget(*frame), frame->width, frame->height));
    for (const ui::Frame* frame : {&form_.fmMain, &form_.fmNavigation})
        needed = std::max(needed, double(widget(*frame)->minimumSizeHint().width()) / frame->width);
    for (const ui::ListView* list : {&form_.lstHD, &form_.lstJob})
        needed = std::max(needed, pixelsPerTwip(widget(*list)->font()));
    return needed;
}

void MainWindowLayout::scaleTo(const TwipScale& scale) {
    const auto& widget = *this;
    const int sideMargin = scale.pixels(form_.fmMain.left);
    windowGrid_->setContentsMargins(sideMargin, scale.pixels(kTopMargin), sideMargin,
                                    scale.pixels(kBottomMargin));
    windowGrid_->setVerticalSpacing(scale.pixels(form_.fmOutput.top - form_.fmInstall.height));
    windowGrid_->setRowMinimumHeight(0, scale.pixels(form_.fmInstall.height));

    const int gap = form_.fmInstall.left - form_.fmMain.left - form_.fmMain.width;
    pagesGrid_->setHorizontalSpacing(scale.pixels(gap));
    pagesGrid_->setColumnMinimumWidth(0, scale.pixels(form_.fmMain.width));
    widget(form_.fmNavigation)->setMinimumHeight(scale.pixels(form_.fmNavigation.height));
    widget(form_.cmdShutdownPS2)->setMinimumWidth(widget(form_.cmdAttach)->minimumWidth());
}

WindowLayout::Heights MainWindowLayout::showHeight(int formHeight) {
    // The activity is uncovered by the height that the program gives, however tall the user makes the window.
    const bool tall = formHeight >= ui::FrmMain::kTallHeight;
    (*this)(form_.fmOutput)->setVisible(form_.fmOutput.visible && tall);
    windowGrid_->setRowStretch(1, tall ? form_.fmOutput.height.get() : 0);
    return {tall ? ui::FrmMain::kTallHeight : ui::FrmMain::kShortHeight, kAnyHeight};
}

} // namespace tarnwell::view
