#pragma once

#include <QTimer>
#include <QWidget>

namespace tarnwell::view {

/// For a window whose contents change all the time: it paints a few changes at once, ten times a second at
/// the most, and leaves the processor to the work that it tells about.
class PacedPainting final : public QObject {
public:
    explicit PacedPainting(QWidget& window);

    bool eventFilter(QObject* window, QEvent* event) override;

private:
    void endPause();

    QWidget& window_;
    QTimer pause_;
    bool waiting_ = false; ///< something has changed since the last painting
};

} // namespace tarnwell::view
