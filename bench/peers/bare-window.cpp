// The least that an application with a window is: a QMainWindow with a label. Writes a line when it
// was painted.

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMainWindow>

#include <cstdio>

namespace {

class BareWindow : public QMainWindow
{
    bool event(QEvent *event) override
    {
        const bool handled = QMainWindow::event(event);
        if (event->type() == QEvent::Paint && !m_isPainted) {
            m_isPainted = true;
            // All children are painted before the next event.
            QMetaObject::invokeMethod(this, &BareWindow::tell, Qt::QueuedConnection);
        }
        return handled;
    }

    static void tell()
    {
        std::puts("bare-window: shown");
        std::fflush(stdout);
    }

    bool m_isPainted = false;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    BareWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("A window with a label")));
    window.resize(1280, 800);
    window.show();
    return QApplication::exec();
}
