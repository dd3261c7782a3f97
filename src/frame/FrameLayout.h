#pragma once

#include <QRect>
#include <QSize>

/// Where the parts of the frame are, in pixels; all for a left-to-right layout.
namespace FrameLayout {

inline constexpr QSize screenSize {1280, 800};
inline constexpr int touchTarget = 48;
inline constexpr int labelFont = 12;

inline constexpr int windowTop = 50;
/// What windows leave free at the bottom, and what is seen of the labels.
inline constexpr int barHeight = 36;
inline constexpr QSize navigationButton {50, 60};
/// Between the window labels and the application's: the grip of the mission control, and a little.
inline constexpr int gripWidth = 124;
inline constexpr int narrowestLabel = 96;

/// The application's window number @p index (of the first three) in a frame of that size.
inline QRect window(QSize frame, int index)
{
    const int left = index == 0 ? 20 : 0;
    return QRect(QPoint(left, windowTop),
                 QPoint(frame.width() - 21, frame.height() - barHeight - 1));
}

inline QRect slideUpButton(QSize frame)
{
    return {frame.width() / 2 - 100, -7, 200, 40};
}

/// From the top edge down to the windows: what taps the slide-up button.
inline QRect slideUpZone(QSize frame)
{
    return {frame.width() / 2 - 100, 0, 200, windowTop};
}

inline QRect backButton(QSize frame)
{
    return {QPoint(0, frame.height() - navigationButton.height()), navigationButton};
}

inline QRect nextButton(QSize frame)
{
    return backButton(frame).translated(frame.width() - navigationButton.width(), 0);
}

inline QRect bar(QSize frame)
{
    return {0, frame.height() - barHeight, frame.width(), barHeight};
}

/// Between the back button and the grip.
inline QRect windowLabels(QSize frame)
{
    const int left = navigationButton.width();
    return {left, frame.height() - touchTarget, (frame.width() - gripWidth) / 2 - left,
            touchTarget};
}

/// Between the grip and the next button.
inline QRect applicationLabels(QSize frame)
{
    QRect place = windowLabels(frame);
    place.moveRight(frame.width() - 1 - place.left());
    return place;
}

/// What the small panels have, clear of the slide-up and the navigation buttons.
inline QRect miniPanels(QSize frame)
{
    return {0, windowTop, frame.width(), frame.height() - windowTop - navigationButton.height()};
}

} // namespace FrameLayout
