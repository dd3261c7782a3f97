#include "MessageBoxRows.h"

#include <QApplication>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <unistd.h>

#include "dialogs/QvexMessageBox.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Boxes = 1000;
constexpr int BoxesBefore = 100; // fonts, icons and caches are there then

/// A window in which boxes are opened and closed.
class MessageBoxBench
{
public:
    MessageBoxBench()
    {
        m_window.resize(1280, 800);
        m_window.show();
        open(BoxesBefore);
    }

    void open(int count)
    {
        for (int i = 0; i < count; ++i) {
            QvexMessageBox box(&m_window);
            box.setIcon(QvexMessageBox::Question);
            box.setText(u"Overwrite the file?"_s);
            box.setDetailedText(u"It was written a minute ago."_s);
            box.setStandardButtons(QDialogButtonBox::Yes | QDialogButtonBox::Cancel);
            QTimer::singleShot(0, &box, [&box] {
                box.repaint();
                box.closeDialog();
            });
            box.exec();
        }
        // What was only marked for deletion goes too.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    qsizetype objects() const
    {
        return QApplication::allWidgets().size() + m_window.findChildren<QObject *>().size()
            + qApp->findChildren<QObject *>().size();
    }

private:
    QWidget m_window;
};

double residentMebibytes()
{
    QFile statistics(u"/proc/self/statm"_s);
    if (!statistics.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const double pages = statistics.readAll().split(' ').value(1).toDouble();
    return pages * double(::sysconf(_SC_PAGESIZE)) / (1 << 20);
}

double growth()
{
    MessageBoxBench bench;
    const double before = residentMebibytes();
    bench.open(Boxes);
    return residentMebibytes() - before;
}

double objectsLeft()
{
    MessageBoxBench bench;
    const qsizetype before = bench.objects();
    bench.open(Boxes);
    return double(bench.objects() - before);
}

} // namespace

void addMessageBoxRows(Suite &suite)
{
    suite.add({u"growth of memory over 1,000 message boxes"_s, u"MiB"_s, 1, growth, 3});
    suite.add({u"objects left over by them"_s, {}, 0, objectsLeft, 1});
}
