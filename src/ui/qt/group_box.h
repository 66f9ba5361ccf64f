#pragma once

#include <QGroupBox>

namespace tarnwell::view {

/// A frame with a title. Fusion reads its frame out of a picture, and for that alone Qt would load the
/// plug-ins of every picture format at the start of the program; so the frame is drawn here.
class GroupBox final : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarnwell::view
