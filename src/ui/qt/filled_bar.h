#pragma once

#include "ui/controls.h"

#include <QProgressBar>

namespace tarnwell::view {

/// A filled box with a text in the middle that can be read on either side of the box's edge. A screen reader
/// takes it for the progress bar that it is.
class FilledBar final : public QProgressBar {
public:
    explicit FilledBar(QWidget* parent);

    void showDrawing(const ui::PictureBox::Drawing& drawing, double scaleWidth);

    QString text() const override { return text_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    double filledPart_ = 0;
};

} // namespace tarnwell::view
