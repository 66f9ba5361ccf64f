#include "ui/qt/application_icon.h"

// The pictures lie in a static library: without this call the linker would leave them out.
static void initializePictures() {
    Q_INIT_RESOURCE(icons);
}

namespace tarnwell::view {

QIcon applicationIcon() {
    initializePictures();
    QIcon icon;
    for (const int size : {16, 20, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/tarnwell-%1.png").arg(size), {size, size});
    return icon;
}

} // namespace tarnwell::view
