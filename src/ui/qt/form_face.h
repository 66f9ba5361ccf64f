#pragma once

#include <QScrollArea>

#include <functional>

namespace tarnwell::view {

/// What a window shows. It takes the room that the window has, and scrolls where that is less than it needs.
class FormFace final : public QScrollArea {
public:
    explicit FormFace(QWidget& window);

    /// The widget that holds the controls.
    QWidget& content() const { return *widget(); }
    void setLeastSize(const QSize& least) { content().setMinimumSize(least); }
    /// The scroll bars that are needed where no more than `room` can be had, as the room that they take
    /// themselves.
    QSize barsIn(const QSize& room) const;

    /// Called whenever the content has been laid out anew.
    std::function<void()> laidOut;
};

} // namespace tarnwell::view
