#include "ui/qt/accessible_frames.h"
#include "ui/qt/bind_controls.h"
#include "ui/qt/captions.h"
#include "ui/qt/group_box.h"

#include <QLabel>

namespace tarnwell::view {

namespace {

/// Where its text has no say in a label's width, the text is not measured: some change many times a second.
class Label final : public QLabel {
public:
    using QLabel::QLabel;

    QSize sizeHint() const override {
        return takesRoomItGets() ? QSize(0, fontMetrics().lineSpacing()) : QLabel::sizeHint();
    }
    QSize minimumSizeHint() const override {
        return takesRoomItGets() ? sizeHint() : QLabel::minimumSizeHint();
    }

private:
    bool takesRoomItGets() const {
        return sizePolicy().horizontalPolicy() == QSizePolicy::Ignored && !wordWrap();
    }
};

} // namespace

QWidget* bindFrame(Binding& binding, ui::Frame& frame, QWidget* parent) {
    if (frame.caption.get().isEmpty()) {
        auto* pane = new QWidget(parent);
        describeAs<AccessiblePane>(*pane);
        return pane;
    }
    auto* box = new GroupBox(parent);
    describeAs<AccessibleGroup>(*box);
    // Pages lie over one another, so nothing may shine through.
    box->setAutoFillBackground(!frame.container);
    binding.follow(frame.caption.changed, *box,
                   [&frame, box] { box->setTitle(escapedCaption(frame.caption)); });
    return box;
}

QWidget* bindLabel(Binding& binding, ui::Label& label, QWidget* parent) {
    if (label.link)
        return bindLink(binding, label, parent);
    auto* widget = new Label(parent);
    widget->setTextFormat(Qt::PlainText);
    binding.follow(label.caption.changed, *widget, [&label, widget] {
        // Only a label that names another widget reads shortcut marks.
        widget->setText(widget->buddy() ? escapedCaption(label.caption) : shownCaption(label.caption));
    });
    return widget;
}

QWidget* bindLine(QWidget* parent) {
    auto* line = new QFrame(parent);
    describeAs<AccessibleLine>(*line);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

} // namespace tarnwell::view
