#pragma once

#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWidget>

/// An application's window on the instrument's screen, with a button in its corner.
class Screen : public QWidget
{
public:
    Screen()
    {
        setObjectName(QStringLiteral("FwMainWindow"));
        resize(1280, 800);
        button = new QPushButton(QStringLiteral("Behind"), this);
        button->setGeometry(0, 0, 120, 60);
        QObject::connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
        show();
        if (!QTest::qWaitForWindowActive(this)) {
            qFatal("The window is not active");
        }
    }

    QPushButton *button;
    int clicks = 0;
};

/// A finger that goes down on @p widget and up again.
inline void tap(QWidget *widget, QPoint at = {})
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
}

/// A finger that taps where @p widget is, on whatever is in front there.
inline void tapThrough(QWidget *widget)
{
    const QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      widget->mapTo(window, widget->rect().center()));
}

/// Does @p what in the next event loop, which is the one of the next exec().
template<typename What>
void soon(What &&what)
{
    QTimer::singleShot(0, qApp, std::forward<What>(what));
}
