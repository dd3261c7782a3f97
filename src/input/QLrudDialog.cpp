#include "QLrudDialog.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QPropertyAnimation>
#include <QScopedValueRollback>

#include <array>
#include <optional>

#include "dialogs/QvexDialogBorder.h"
#include "properties/PropertiesManager.h"

#include "LrudLook.h"
#include "QLrudFrame.h"
#include "QLrudMoveFrame.h"
#include "QNumpadFrame.h"
#include "QPushButtonLrud.h"

using namespace Qt::StringLiterals;

QLrudDialog *QLrudDialog::m_Instance = nullptr;
int QLrudDialog::m_controllerPosition = 100;

namespace {

// What the layout is made for; on another screen the panel keeps to the right edge.
constexpr QSize usualScreen {1280, 800};
constexpr int panelWidth = 210;
constexpr int slideWay = 100;
constexpr int slideTime = 300;

constexpr long positionProperty = 101;
constexpr int usualPosition = 100;
// The position stays between these bounds.
constexpr int above = 30;
constexpr int below = 490;
constexpr int spaceBelow = usualScreen.height() - below;
constexpr int moveStep = 10;

constexpr QPoint numpadOffset {96, 178};
constexpr int moveKeyX = 30;
constexpr int moveKeyMargin = 4;
// Right below the arrow keys' frame.
constexpr QPoint numpadKeyPosition {3, 30};

constexpr std::array<QPoint, 4> arrowPositions {QPoint {51, 42}, QPoint {51, 115}, QPoint {44, 50},
                                                QPoint {139, 50}};

enum Direction : size_t { Up, Down, Left, Right };

/// The main window in @p window, which may be the window itself; null when there is none.
QWidget *mainWindowIn(QWidget *window)
{
    const auto name = u"FwMainWindow"_s;
    return window->objectName() == name ? window : window->findChild<QWidget *>(name);
}

/// Where the panel belongs; null while the application shows no window.
QWidget *findApplication()
{
    if (QWidget *focus = QApplication::focusWidget()) {
        return QvexDialogBorder::applicationWindow(focus);
    }
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.prepend(QApplication::activeWindow());
    windows.removeIf([](const QWidget *window) {
        return !window || !window->isVisible() || window->windowType() == Qt::Popup;
    });
    for (QWidget *window : std::as_const(windows)) {
        if (QWidget *main = mainWindowIn(window)) {
            return main;
        }
    }
    return windows.value(0);
}

/// A key and its two looks.
struct Key
{
    void showHeld(bool held) const { button->setIcon(held ? pushed : released); }
    void letGo() const
    {
        button->setDown(false);
        showHeld(false);
    }

    QPushButtonLrud *button = nullptr;
    QIcon released;
    QIcon pushed;
};

enum class Shape { Rectangle, Picture };

Key makeKey(const QString &name, const QString &picture, Shape shape, QWidget *parent)
{
    const QString path = u":/images/%1.png"_s.arg(picture);
    auto *button = new QPushButtonLrud(shape == Shape::Picture ? path : QString(), parent);
    button->setObjectName(name);
    LrudLook::dress(button, path);
    return {button, QIcon(path), QIcon(u":/images/%1_push.png"_s.arg(picture))};
}

} // namespace

struct QLrudDialog::Private
{
    using Slot = void (QLrudDialog::*)();

    explicit Private(QLrudDialog *dialog)
        : q(dialog)
        , slide(dialog, "geometry")
    {
        slide.setDuration(slideTime);
    }

    void makeFrames();
    void makeKeys();
    void makeArrow(Direction direction, const QString &name);
    void updateTexts();

    QSize applicationSize() const;
    int lowerBound() const;
    QRect home() const;
    void arrange();
    void slideIn();
    void placeCluster(int y);
    void moveCluster(int y);

    void hold(Direction direction);
    void letGo(Direction direction);
    void letGoAll();
    void passPress(const QPushButtonLrud *from);
    void passRelease();

    static constexpr std::array<Slot, 4> pressSlots {
        &QLrudDialog::on_UpPressed, &QLrudDialog::on_DownPressed, &QLrudDialog::on_LeftPressed,
        &QLrudDialog::on_RightPressed};
    static constexpr std::array<Slot, 4> releaseSlots {
        &QLrudDialog::on_UpRelesed, &QLrudDialog::on_DownRelesed, &QLrudDialog::on_LeftRelesed,
        &QLrudDialog::on_RightRelesed};

    QLrudDialog *const q;
    QPropertyAnimation slide;
    QPointer<QWidget> foundApplication; ///< the one that was not set by anybody else
    QLrudMoveFrame *moveFrame = nullptr;
    QNumpadFrame *numpadFrame = nullptr;
    QLrudFrame *keyFrame = nullptr;
    std::array<Key, 4> arrows;
    std::array<bool, 4> held {};
    Key moveUp;
    Key moveDown;
    Key numpad;
    bool isHiding = false;
    std::optional<Direction> passedTo; ///< the arrow key that took a press from its neighbour
};

void QLrudDialog::Private::makeFrames()
{
    // In this order: the numpad frame is over the bar and the arrow keys are over both.
    moveFrame = new QLrudMoveFrame(q);
    moveFrame->setObjectName(u"LrudMoveFrame"_s);
    numpadFrame = new QNumpadFrame(q);
    numpadFrame->setObjectName(u"LrudNumpadFrame"_s);
    numpadFrame->resize(QRect(QPoint(96, 178), QPoint(209, 255)).size());
    keyFrame = new QLrudFrame(q);
    keyFrame->setObjectName(u"LrudFrame"_s);
    keyFrame->resize(QRect(QPoint(0, 0), QPoint(210, 207)).size());
}

void QLrudDialog::Private::makeKeys()
{
    makeArrow(Up, u"up"_s);
    makeArrow(Down, u"down"_s);
    makeArrow(Left, u"left"_s);
    makeArrow(Right, u"right"_s);
    moveUp = makeKey(u"LrudMoveUp"_s, u"bar_up"_s, Shape::Rectangle, moveFrame);
    moveDown = makeKey(u"LrudMoveDown"_s, u"bar_down"_s, Shape::Rectangle, moveFrame);
    numpad = makeKey(u"LrudNumpad"_s, u"button_numpad"_s, Shape::Rectangle, numpadFrame);
    numpad.button->move(numpadKeyPosition);
    moveUp.button->move(moveKeyX, moveKeyMargin);
    for (const Key *key : {&moveUp, &moveDown, &numpad}) {
        connect(key->button, &QAbstractButton::pressed, q, [key] { key->showHeld(true); });
        connect(key->button, &QAbstractButton::released, q, [key] { key->showHeld(false); });
    }
    moveUp.button->setAutoRepeat(true);
    moveDown.button->setAutoRepeat(true);
    connect(moveUp.button, &QAbstractButton::clicked, q, &QLrudDialog::on_MoveUp);
    connect(moveDown.button, &QAbstractButton::clicked, q, &QLrudDialog::on_MoveDown);
    connect(numpad.button, &QAbstractButton::clicked, q, &QLrudDialog::clickedShowNumpad);
}

void QLrudDialog::Private::makeArrow(Direction direction, const QString &name)
{
    using Button = QPushButtonLrud;
    Key &key = arrows[direction];
    key = makeKey(u"LrudArrow_%1"_s.arg(name), u"key_%1"_s.arg(name), Shape::Picture, keyFrame);
    Button *button = key.button;
    button->move(arrowPositions[direction]);
    connect(button, &Button::pressed, q, pressSlots[direction]);
    connect(button, &Button::released, q, releaseSlots[direction]);
    const auto pass = [this, button] { passPress(button); };
    connect(button, &Button::mousePressEventFromLeftOverlappedArea, q, pass);
    connect(button, &Button::mousePressEventFromRightOverlappedArea, q, pass);
    const auto passBack = [this] { passRelease(); };
    connect(button, &Button::mouseReleaseEventFromLeftOverlappedArea, q, passBack);
    connect(button, &Button::mouseReleaseEventFromRightOverlappedArea, q, passBack);
}

void QLrudDialog::Private::updateTexts()
{
    arrows[Up].button->setAccessibleName(tr("Up"));
    arrows[Down].button->setAccessibleName(tr("Down"));
    arrows[Left].button->setAccessibleName(tr("Left"));
    arrows[Right].button->setAccessibleName(tr("Right"));
    numpad.button->setAccessibleName(tr("Keypad"));
    moveUp.button->setAccessibleName(tr("Move keys up"));
    moveDown.button->setAccessibleName(tr("Move keys down"));
}

QSize QLrudDialog::Private::applicationSize() const
{
    return q->isWindow() ? usualScreen : q->parentWidget()->size();
}

/// @return What the position must stay under, for the numpad key to stay above the move key.
int QLrudDialog::Private::lowerBound() const
{
    const int bound = qMin(below, applicationSize().height() - spaceBelow);
    return qMax(bound, above + 2);
}

QRect QLrudDialog::Private::home() const
{
    const QSize size = applicationSize();
    return {QPoint(size.width() - panelWidth, 0), QPoint(size.width(), size.height() - 1)};
}

/// Puts everything in its place, for the size that the application has now.
void QLrudDialog::Private::arrange()
{
    slide.stop();
    q->setGeometry(home());
    moveFrame->setGeometry(QRect(QPoint(119, 0), QPoint(218, q->height() - 1)));
    const int bottom = moveFrame->height() - moveKeyMargin;
    moveDown.button->move(moveKeyX, bottom - moveDown.button->height());
    placeCluster(qMin(m_controllerPosition, lowerBound() - 1));
}

void QLrudDialog::Private::slideIn()
{
    const QRect end = q->geometry();
    slide.setStartValue(end.translated(slideWay, 0));
    slide.setEndValue(end);
    slide.start();
}

void QLrudDialog::Private::placeCluster(int y)
{
    keyFrame->move(0, y);
    numpadFrame->move(numpadOffset + QPoint(0, y));
}

void QLrudDialog::Private::moveCluster(int y)
{
    if (y <= above || y >= lowerBound() || y == m_controllerPosition) {
        return;
    }
    m_controllerPosition = y;
    PropertiesManager::instance()->setProperty(positionProperty, QString::number(y), false);
    placeCluster(y);
}

void QLrudDialog::Private::hold(Direction direction)
{
    held[direction] = true;
    arrows[direction].showHeld(true);
}

void QLrudDialog::Private::letGo(Direction direction)
{
    held[direction] = false;
    arrows[direction].showHeld(false);
}

/// The panel goes out of sight, and no release comes any more for what is held.
void QLrudDialog::Private::letGoAll()
{
    passedTo.reset();
    for (const Key *key : {&moveUp, &moveDown, &numpad}) {
        key->letGo();
    }
    for (const Direction direction : {Up, Down, Left, Right}) {
        arrows[direction].letGo();
        if (held[direction]) {
            (q->*releaseSlots[direction])();
        }
    }
}

/// A press on a transparent pixel of @p from is one of the key that is seen there.
void QLrudDialog::Private::passPress(const QPushButtonLrud *from)
{
    const QPoint point = from->mapToParent(from->pressPoint());
    for (const Direction direction : {Up, Down, Left, Right}) {
        const QPushButtonLrud *button = arrows[direction].button;
        if (button->covers(button->mapFromParent(point))) {
            passedTo = direction;
            (q->*pressSlots[direction])();
            return;
        }
    }
}

void QLrudDialog::Private::passRelease()
{
    if (const auto direction = std::exchange(passedTo, std::nullopt)) {
        (q->*releaseSlots[*direction])();
    }
}

QLrudDialog::QLrudDialog()
    : QvexDialog(nullptr, false, false)
    , d(std::make_unique<Private>(this))
{
    setObjectName(u"LrudDialog"_s);
    setAttribute(Qt::WA_TranslucentBackground);
    setBorderVisible(false);
    const auto *properties = PropertiesManager::instance();
    const int stored = properties->getPropertyInt(positionProperty, m_controllerPosition);
    m_controllerPosition = stored > above && stored < below ? stored : usualPosition;
    d->makeFrames();
    d->makeKeys();
    d->updateTexts();
    d->arrange();
}

QLrudDialog::~QLrudDialog()
{
    // Who listens to hidden() may still ask for the instance.
    hide();
    if (m_Instance == this) {
        qRemovePostRoutine(&QLrudDialog::Destroy);
        m_Instance = nullptr;
    }
}

QLrudDialog *QLrudDialog::Instance()
{
    if (!m_Instance) {
        m_Instance = new QLrudDialog;
        // A widget must not outlive the application.
        qAddPostRoutine(&QLrudDialog::Destroy);
    }
    return m_Instance;
}

void QLrudDialog::Destroy()
{
    if (m_Instance && m_Instance->d->isHiding) {
        // The toolkit goes on with a widget after its hide event.
        qRemovePostRoutine(&QLrudDialog::Destroy);
        std::exchange(m_Instance, nullptr)->deleteLater();
    } else {
        delete m_Instance;
    }
}

void QLrudDialog::releaseAllButton()
{
    for (const Key &key : d->arrows) {
        key.showHeld(false);
    }
}

void QLrudDialog::setVisible(bool visible)
{
    if (visible && isHidden() && parentApplication() == d->foundApplication) {
        d->foundApplication = findApplication();
        setParentApplication(d->foundApplication);
    }
    QvexDialog::setVisible(visible);
}

void QLrudDialog::changeEvent(QEvent *event)
{
    QvexDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        d->updateTexts();
    }
}

void QLrudDialog::showEvent(QShowEvent *event)
{
    QvexDialog::showEvent(event);
    if (!event->spontaneous()) {
        d->arrange();
        d->slideIn();
    }
}

void QLrudDialog::hideEvent(QHideEvent *event)
{
    const QScopedValueRollback hiding(d->isHiding, true);
    d->letGoAll();
    QvexDialog::hideEvent(event);
    if (!event->spontaneous()) {
        d->slide.stop();
        Q_EMIT hidden();
    }
}

void QLrudDialog::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::MiddleButton) {
        event->accept();
        Q_EMIT modeChanged();
    } else if (event->button() == Qt::LeftButton) {
        event->accept();
        hide();
    } else {
        QvexDialog::mousePressEvent(event);
    }
}

void QLrudDialog::wheelEvent(QWheelEvent *event)
{
    event->accept();
    Q_EMIT advanceWheel(event->angleDelta().y() / 8 / 15, -1);
}

bool QLrudDialog::eventFilter(QObject *watched, QEvent *event)
{
    const bool filtered = QvexDialog::eventFilter(watched, event);
    if (watched == parentWidget() && isVisible()) {
        if (event->type() == QEvent::Resize) {
            d->arrange();
        } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
            // Not just out of sight with its window: nobody listens any more when that comes back.
            hide();
        }
    }
    return filtered;
}

void QLrudDialog::on_MoveUp()
{
    d->moveCluster(d->keyFrame->y() - moveStep);
}

void QLrudDialog::on_MoveDown()
{
    d->moveCluster(d->keyFrame->y() + moveStep);
}

void QLrudDialog::on_UpPressed()
{
    d->hold(Up);
    Q_EMIT pressedUp();
}

void QLrudDialog::on_UpRelesed()
{
    d->letGo(Up);
    Q_EMIT releasedUp();
}

void QLrudDialog::on_DownPressed()
{
    d->hold(Down);
    Q_EMIT pressedDown();
}

void QLrudDialog::on_DownRelesed()
{
    d->letGo(Down);
    Q_EMIT releasedDown();
}

void QLrudDialog::on_LeftPressed()
{
    d->hold(Left);
    Q_EMIT pressedLeft();
}

void QLrudDialog::on_LeftRelesed()
{
    d->letGo(Left);
}

void QLrudDialog::on_RightPressed()
{
    d->hold(Right);
    Q_EMIT pressedRight();
}

void QLrudDialog::on_RightRelesed()
{
    d->letGo(Right);
}
