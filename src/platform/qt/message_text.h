#pragma once

#include <QString>

namespace tarnwell {

/// A text of any length (it may come from a file or from the tool) as a message box can show it without
/// growing beyond the screen.
struct MessageText {
    QString shown; ///< the text, or its beginning if it is very long
    QString whole; ///< empty if `shown` is all of it
};

MessageText fitMessageText(const QString& text);

} // namespace tarnwell
