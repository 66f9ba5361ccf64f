#pragma once

class QString;
class QWidget;

namespace tarnwell::view {

/// Lets screen readers say something that no control in focus would. It is a message inside the window, of
/// which nothing is to be seen; the window may be hidden itself. It comes up in less than a second, and never
/// if no reader listens now.
void announce(QWidget& window, const QString& text);

/// Tells readers that a message of this text has just come up, in the way in which those of this system take
/// notice of it.
void tellOfMessage(QWidget& message, const QString& text);

} // namespace tarnwell::view
