#pragma once

#include <QBoxLayout>
#include <QFrame>

#include <initializer_list>

namespace tarnwell::view {

inline constexpr int kGap = 6;         ///< pixels between controls
inline constexpr int kFrameMargin = 8; ///< pixels between a frame and its controls

/// A row of controls, from the leading edge.
QHBoxLayout* row(std::initializer_list<QWidget*> widgets);
/// A row of buttons that fill its width, of one size as far as their texts allow.
QHBoxLayout* equalButtons(std::initializer_list<QWidget*> buttons);
/// A heading with a line that runs from it to the other edge.
QHBoxLayout* heading(QWidget* label, QWidget* line);
/// The layout of a frame's inside.
QVBoxLayout* column(QWidget* frame);
void makeVertical(QWidget* line);
/// The text comes from data: as long as it likes, it does not widen the window.
void takesRoomItGets(QWidget* label);
void keepsRoomWhenHidden(QWidget* widget);

} // namespace tarnwell::view
