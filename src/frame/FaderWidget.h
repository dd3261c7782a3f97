#pragma once

#include <QColor>
#include <QTimer>
#include <QWidget>

#include "VexExport.h"

/**
 * Covers its parent with a colour that fades away or comes up, once.
 *
 * It has the size of its parent and follows it. While it is there, taps reach neither what it
 * covers nor the parent; the keyboard focus stays where it is. After the fade it closes and is
 * deleted with it, so it is created with new and then forgotten.
 *
 * The fade is counted in paints, not in time: under load it takes longer and leaves out nothing,
 * and while nothing is painted, since the window is hidden, it waits.
 */
class VEX_EXPORT FaderWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor fadeColor READ fadeColor WRITE setFadeColor)
    Q_PROPERTY(int fadeDuration READ fadeDuration WRITE setFadeDuration)

public:
    explicit FaderWidget(QWidget *parent = nullptr);

    /** The window colour of the parent by default, white without one. Its own alpha is ignored. */
    QColor fadeColor() const { return m_fadeColor; }
    void setFadeColor(const QColor &color) { m_fadeColor = color; }
    /**
     * In milliseconds, 333 by default. Takes effect at once. As every paint changes the alpha by a
     * whole number, at least by 1, no fade has more than 255 paints, 33 ms apart.
     */
    int fadeDuration() const { return m_fadeDuration; }
    void setFadeDuration(int milliseconds) { m_fadeDuration = milliseconds; }

public Q_SLOTS:
    /** Covers the parent and uncovers it by and by. */
    void startFadeIn();
    /** The same as startFadeIn(). */
    void start();
    /** Covers the parent by and by. */
    void startFadeOut();

Q_SIGNALS:
    void fadeInStarted();
    /** The fade has come to its end and the fader is closed. Not emitted when it is closed before.
     */
    void fadeInStopped();
    void fadeOutStarted();
    /** As fadeInStopped(). */
    void fadeOutStopped();

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void run(bool fadingIn);
    void step();
    void finish();

    QColor m_fadeColor;
    int m_fadeDuration = 333;
    int m_alpha = 0;
    bool m_fadingIn = true;
    QTimer m_timer;
};
