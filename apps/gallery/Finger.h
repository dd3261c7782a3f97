#pragma once

class QWidget;

/// Touches widgets in their middle, for pictures; as a touch screen does, by events of a mouse.
namespace Finger {

void press(QWidget *widget);
void release(QWidget *widget);
void tap(QWidget *widget);
void doubleTap(QWidget *widget);

} // namespace Finger
