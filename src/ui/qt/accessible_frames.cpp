#include "ui/qt/accessible_frames.h"

#include "ui/qt/captions.h"

#include <QGroupBox>

namespace tarnwell::view {

QString AccessibleGroup::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? readCaption(static_cast<QGroupBox*>(widget())->title())
                                     : QAccessibleWidget::text(kind);
}

} // namespace tarnwell::view
