#pragma once

class QDropEvent;
class QEvent;
class QWidget;

namespace tarnwell::ui {
class Form;
}

namespace tarnwell::view {

/// Lets the user drop files onto any place of a window whose form takes them. The desktop shows when it would
/// not.
void takeDroppedFiles(ui::Form& form, QWidget& window);

/// Whether files are dragged over a widget or dropped onto it. They are ignored then, so that the window gets
/// them: a text box would make text of them.
bool leavesFilesToWindow(QEvent& event);

} // namespace tarnwell::view
