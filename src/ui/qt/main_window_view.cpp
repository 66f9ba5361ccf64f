#include "ui/qt/main_window_view.h"

#include "ui/qt/dropped_files.h"
#include "ui/qt/keyboard.h"
#include "ui/qt/main_window_layout.h"

namespace tarnwell::view {

MainWindowView::MainWindowView(ui::FrmMain& form) : FormView(form) {
    start(std::make_unique<MainWindowLayout>(form, controls(), content()));
    bindKeyboard(form, controls(), *this);
    takeDroppedFiles(form, *this);
}

} // namespace tarnwell::view
