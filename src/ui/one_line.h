#pragma once

#include <QString>

namespace tarnwell::ui {

/// A text as it stands in a box of one line: line breaks, which come along when text is pasted or dropped,
/// become blanks, and go at either end.
QString oneLine(const QString& text);

} // namespace tarnwell::ui
