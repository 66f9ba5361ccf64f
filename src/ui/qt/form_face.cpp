#include "ui/qt/form_face.h"

#include <QLayout>
#include <QStyle>

namespace tarnwell::view {

namespace {

class Content final : public QWidget {
public:
    explicit Content(FormFace& face) : face_(face) {}

protected:
    bool event(QEvent* event) override {
        const bool handled = QWidget::event(event);
        if (event->type() == QEvent::LayoutRequest && face_.laidOut)
            face_.laidOut();
        return handled;
    }

private:
    FormFace& face_;
};

} // namespace

FormFace::FormFace(QWidget& window) : QScrollArea(&window) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(new Content(*this));
    // The window's own ground shows through.
    viewport()->setAutoFillBackground(false);
    content().setAutoFillBackground(false);
}

QSize FormFace::barsIn(const QSize& room) const {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const QSize least = content().minimumSize();
    const bool below = least.width() > room.width();
    const bool beside = least.height() + (below ? bar : 0) > room.height();
    const bool belowAfterAll = least.width() + (beside ? bar : 0) > room.width();
    return {beside ? bar : 0, belowAfterAll ? bar : 0};
}

} // namespace tarnwell::view
