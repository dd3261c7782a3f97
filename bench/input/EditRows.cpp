#include "EditRows.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <stdexcept>

#include "harness/Stopwatch.h"
#include "input/QLineEditNumber.h"
#include "input/QLrudDialog.h"
#include "input/QvexNumpadDlg.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Separations = 200'000;
constexpr int Steps = 20'000;
constexpr double Micro = 1e6; // in a second

const QString Digits = u"-123456789012.345678"_s; // 18 of them

double microsecondsOfEach(int count, const std::function<void()> &work)
{
    return secondsOf(work) / count * Micro;
}

double separate(int count)
{
    return microsecondsOfEach(count, [count] {
        for (int i = 0; i < count; ++i) {
            QLineEditNumber::addThousandSeparator(Digits);
        }
    });
}

double join(int count)
{
    const QString grouped = QLineEditNumber::addThousandSeparator(Digits);
    return microsecondsOfEach(count, [&] {
        for (int i = 0; i < count; ++i) {
            QLineEditNumber::removeThousandSeparator(grouped);
        }
    });
}

void tap(QWidget &widget)
{
    const QPointF middle = widget.rect().center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, middle, widget.mapToGlobal(middle), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

/// Turns the wheel in a field whose wheel editor is open.
double turn(int count)
{
    QWidget window;
    window.resize(1280, 800);
    QLineEditNumber field(&window);
    field.setDecimals(6);
    field.setMaximum(999'999'999.0);
    field.setValue(123'456'789.123456);
    window.show();
    tap(field);
    const QString before = field.text();
    const double each = microsecondsOfEach(count, [&] {
        for (int i = 0; i < count; ++i) {
            Q_EMIT field.advanceWheel(i % 2 == 0 ? 1 : -1, 0);
        }
    });
    Q_EMIT field.advanceWheel(1, 0);
    const bool hasTurned = field.text() != before;
    QLrudDialog::Destroy();
    if (!hasTurned) {
        throw std::runtime_error("the wheel turns nothing");
    }
    return each;
}

/// Notes when a widget is painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QObject &watched) { watched.installEventFilter(this); }
    bool hasPainted() const { return m_hasPainted; }

private:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_hasPainted = m_hasPainted || event->type() == QEvent::Paint;
        return false;
    }

    bool m_hasPainted = false;
};

double openAgain()
{
    QWidget window;
    window.resize(1280, 800);
    QWidget field(&window);
    field.setGeometry(100, 100, 200, 48);
    window.show();
    QvexNumpadDlg numpad(&field);
    numpad.open();
    QApplication::processEvents();
    numpad.reject();
    QApplication::processEvents();

    const PaintWatch watch(numpad);
    QElapsedTimer clock;
    clock.start();
    numpad.open();
    while (!watch.hasPainted()) {
        QApplication::processEvents();
    }
    return double(clock.nsecsElapsed()) / 1e6;
}

} // namespace

void addEditRows(Suite &suite, const ProgramOptions &options)
{
    const int separations = std::max(1000, static_cast<int>(Separations * options.scale));
    const int steps = std::max(200, static_cast<int>(Steps * options.scale));
    suite.add({u"separating 18 digits"_s, u"µs"_s, 1, [=] { return separate(separations); }, 5});
    suite.add({u"joining them"_s, u"µs"_s, 1, [=] { return join(separations); }, 5});
    suite.add(
        {u"a wheel step in a field of 15 digits"_s, u"µs"_s, 100, [=] { return turn(steps); }, 5});
    suite.add({u"opening the numpad again, to its first paint"_s, u"ms"_s, 10, openAgain, 9});
}
