#include "ui/qt/status_window_layout.h"

#include "ui/qt/event_watcher.h"
#include "ui/qt/layout_parts.h"

#include <QLabel>

namespace tarnwell::view {

namespace {

// The inside of the window, in twips.
constexpr int kStatusWidth = 4845;
constexpr int kStatusHeight = 3555;

} // namespace

StatusWindowLayout::StatusWindowLayout(ui::FrmStatus& form, ControlBinder& controls, QWidget& content)
    : form_(form), controls_(controls), content_(content) {
    layOutOverall();
    layOutCurrent();
    layOutWindow();
}

void StatusWindowLayout::layOutOverall() {
    const auto& widget = *this;
    takesRoomItGets(widget(form_.lblTask));
    QVBoxLayout* overall = column(widget(form_.fmOverall));
    overall->addWidget(widget(form_.picOverall));
    QHBoxLayout* texts = row({widget(form_.lblTask), widget(form_.lblOverallElapsed)});
    texts->setStretch(0, 1);
    overall->addLayout(texts);
}

void StatusWindowLayout::layOutCurrent() {
    const auto& widget = *this;
    constexpr char kWideSpeed[] = "Speed: 9999.99 MB/sec"; // of the fastest disks
    auto* job = static_cast<QLabel*>(widget(form_.lblJob));
    takesRoomItGets(job);
    takesRoomItGets(widget(form_.lblRemaining));
    QWidget* speed = widget(form_.lblSpeed);
    takesRoomItGets(speed);
    speed->setMinimumWidth(speed->fontMetrics().horizontalAdvance(kWideSpeed));
    job->setWordWrap(true);
    job->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    job->setMinimumHeight(2 * job->fontMetrics().lineSpacing());

    QHBoxLayout* texts = row({speed, widget(form_.lblRemaining), widget(form_.lblCurrentElapsed)});
    texts->setStretch(0, 2);
    texts->setStretch(1, 3);
    QVBoxLayout* current = column(widget(form_.fmCurrent));
    current->addWidget(job, 1);
    current->addWidget(widget(form_.picCurrent));
    current->addLayout(texts);
}

void StatusWindowLayout::layOutWindow() {
    const auto& widget = *this;
    QHBoxLayout* choices =
        row({widget(form_.chkShutdown), widget(form_.chkStandby), widget(form_.chkShutdownPS2)});
    choices->insertStretch(1);
    choices->insertStretch(3);
    choices->setContentsMargins(kFrameMargin, 0, kFrameMargin, 0);

    QVBoxLayout* window = column(&content_);
    window->addWidget(widget(form_.fmOverall));
    window->addWidget(widget(form_.fmCurrent), 1);
    window->addWidget(widget(form_.lblFinish));
    window->addLayout(choices);
    window->addLayout(equalButtons({widget(form_.cmdStop), widget(form_.cmdMinimize)}));
    // It opens while the user may be typing; a stray blank must not choose that the PC be turned off.
    new EventWatcher(content_, [harmless = widget(form_.cmdMinimize)](QEvent& event) {
        if (event.type() == QEvent::Show && !event.spontaneous())
            harmless->setFocus();
        return false;
    });
}

double StatusWindowLayout::neededPixelsPerTwip() const {
    return std::max(pixelsPerTwip(content_, kStatusWidth, kStatusHeight),
                    pixelsPerTwip((*this)(form_.lblJob)->font()));
}

} // namespace tarnwell::view
