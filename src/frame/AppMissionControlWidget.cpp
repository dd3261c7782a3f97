#include "AppMissionControlWidget.h"

#include <dialogs/DialogTheme.h>
#include <dialogs/FingerScroll.h>

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QVariantAnimation>

#include "LampSign.h"
#include "PanelButton.h"
#include "PanelLook.h"
#include "VerdictSign.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int NarrowWidth = 480;
constexpr int MediumWidth = 720;
constexpr int Padding = 16;
constexpr int NameSize = 22;
constexpr int BarHeight = 20;

/// As high as its contents, as long as there is room for them; else a finger scrolls it.
class GridArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override
    {
        return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), 0};
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            updateGeometry();
        }
        return QScrollArea::eventFilter(watched, event);
    }
};

int percentOf(long complete, long total)
{
    const double share = 100.0 * double(complete) / double(total);
    return int(qBound(0.0, share, 100.0));
}

} // namespace

struct AppMissionControlWidget::Private
{
    explicit Private(AppMissionControlWidget *panel)
        : q(panel)
    {
    }

    void make();
    void makeHead(QBoxLayout *column);
    void makeState(QBoxLayout *column);
    void makeProgress(QBoxLayout *column);
    void makeGrid(QBoxLayout *column);
    void makeButtons(QBoxLayout *column);
    QLabel *addLabel(const QString &name, int fontSize);
    PanelButton *addButton(const QString &name, const QString &icon);

    int widthIn(const QRect &area) const;
    int heightFor(int panelWidth) const;
    void showIcon();
    void showDetails();
    void liftTo(int height);
    bool isBeside(const QWidget *touched) const;

    AppMissionControlWidget *const q;
    QLabel *icon = nullptr;
    QLabel *name = nullptr;
    QLabel *details = nullptr;
    QLabel *status = nullptr;
    LampSign *lamp = nullptr;
    VerdictSign *verdict = nullptr;
    VerdictSign *summary = nullptr;
    QWidget *progress = nullptr;
    QProgressBar *bar = nullptr;
    QLabel *percent = nullptr;
    QWidget *gridHost = nullptr;
    QGridLayout *grid = nullptr;
    GridArea *gridArea = nullptr;
    PanelButton *system = nullptr;
    PanelButton *close = nullptr;

    AppMissionControlWidth width = AppMissionControlWidth::Medium;
    QString iconPath;
    bool isIconVisible = false;
    QString port;
    QString info;
    QVariantAnimation lift; ///< pixels above the place without the framework's panel
};

void AppMissionControlWidget::Private::make()
{
    auto *column = new QVBoxLayout(q);
    column->setContentsMargins(Padding, Padding, Padding, Padding);
    column->setSpacing(DialogTheme::spacing);
    // The panel's size is its own affair.
    column->setSizeConstraint(QLayout::SetNoConstraint);
    makeHead(column);
    makeState(column);
    makeProgress(column);
    makeGrid(column);
    makeButtons(column);
}

void AppMissionControlWidget::Private::makeHead(QBoxLayout *column)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(DialogTheme::spacing);
    icon = new QLabel(q);
    icon->setObjectName(u"McIcon"_s);
    icon->setFixedSize(DialogTheme::headerIcon);
    icon->hide();
    name = addLabel(u"McName"_s, NameSize);
    name->setFont(PanelLook::font(name->font(), NameSize, true));
    details = addLabel(u"McDetails"_s, DialogTheme::fontSize);
    details->hide();
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(name);
    texts->addWidget(details);
    lamp = new LampSign(q);
    lamp->setObjectName(u"McIndicator"_s);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    row->addWidget(lamp, 0, Qt::AlignTop);
    column->addLayout(row);
}

void AppMissionControlWidget::Private::makeState(QBoxLayout *column)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(DialogTheme::spacing);
    verdict = new VerdictSign(q);
    verdict->setObjectName(u"McPassFail"_s);
    summary = new VerdictSign(q);
    summary->setObjectName(u"McSummary"_s);
    summary->hide();
    row->addWidget(verdict);
    row->addWidget(summary);
    row->addStretch();
    column->addLayout(row);
    status = addLabel(u"McStatus"_s, DialogTheme::messageFontSize);
    status->hide();
    column->addWidget(status);
}

void AppMissionControlWidget::Private::makeProgress(QBoxLayout *column)
{
    progress = new QWidget(q);
    progress->setObjectName(u"McProgress"_s);
    auto *row = new QHBoxLayout(progress);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(DialogTheme::spacing);
    bar = new QProgressBar(progress);
    bar->setObjectName(u"McProgressBar"_s);
    bar->setTextVisible(false);
    bar->setFixedHeight(BarHeight);
    percent = addLabel(u"McPercent"_s, DialogTheme::messageFontSize);
    percent->setFixedWidth(percent->fontMetrics().horizontalAdvance(tr("%1 %").arg(1000)));
    percent->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    percent->setWordWrap(false);
    row->addWidget(bar, 1);
    row->addWidget(percent);
    progress->hide();
    column->addWidget(progress);
}

void AppMissionControlWidget::Private::makeGrid(QBoxLayout *column)
{
    gridHost = new QWidget;
    gridHost->setObjectName(u"McGrid"_s);
    grid = new QGridLayout(gridHost);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(DialogTheme::spacing);
    gridArea = new GridArea(q);
    gridArea->setObjectName(u"McGridArea"_s);
    gridArea->setFrameShape(QFrame::NoFrame);
    gridArea->setWidgetResizable(true);
    gridArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    gridArea->setWidget(gridHost);
    gridArea->hide();
    new FingerScroll(gridArea);
    column->addWidget(gridArea, 1);
}

void AppMissionControlWidget::Private::makeButtons(QBoxLayout *column)
{
    auto *row = new QHBoxLayout;
    system = addButton(u"McSystem"_s, u":/images/home.png"_s);
    close = addButton(u"McClose"_s, u":/images/power.png"_s);
    row->addWidget(system);
    row->addStretch();
    row->addWidget(close);
    column->addLayout(row);
    connect(system, &QPushButton::clicked, q, &AppMissionControlWidget::requestFwMissionControl);
    connect(close, &QPushButton::clicked, q, &AppMissionControlWidget::requestCloseApplication);
}

QLabel *AppMissionControlWidget::Private::addLabel(const QString &objectName, int fontSize)
{
    auto *label = new QLabel(q);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(PanelLook::font(label->font(), fontSize));
    return label;
}

PanelButton *AppMissionControlWidget::Private::addButton(const QString &objectName,
                                                         const QString &picture)
{
    auto *button = new PanelButton(q);
    button->setObjectName(objectName);
    button->setIcon(DialogTheme::icon(picture));
    return button;
}

int AppMissionControlWidget::Private::widthIn(const QRect &area) const
{
    int wanted = area.width();
    if (width == AppMissionControlWidth::Narrow) {
        wanted = NarrowWidth;
    } else if (width == AppMissionControlWidth::Medium) {
        wanted = MediumWidth;
    }
    return std::min(std::max(wanted, q->layout()->minimumSize().width()), area.width());
}

int AppMissionControlWidget::Private::heightFor(int panelWidth) const
{
    const QLayout *layout = q->layout();
    // Without a text, nothing in it wraps.
    return layout->hasHeightForWidth() ? layout->heightForWidth(panelWidth)
                                       : layout->sizeHint().height();
}

void AppMissionControlWidget::Private::showIcon()
{
    const QPixmap picture = QIcon(iconPath).pixmap(DialogTheme::headerIcon);
    icon->setPixmap(picture);
    icon->setVisible(isIconVisible && !picture.isNull());
}

void AppMissionControlWidget::Private::showDetails()
{
    QStringList lines;
    if (!port.isEmpty()) {
        lines << tr("Port: %1").arg(port);
    }
    if (!info.isEmpty()) {
        lines << info;
    }
    details->setText(lines.join(u'\n'));
    details->setVisible(!lines.isEmpty());
}

void AppMissionControlWidget::Private::liftTo(int height)
{
    lift.stop();
    lift.setStartValue(lift.currentValue().toInt());
    lift.setEndValue(std::max(height, 0));
    lift.setDuration(q->duration());
    lift.start();
}

/// Whether @p touched is the parent, or a disabled part of it, which takes no touch itself.
bool AppMissionControlWidget::Private::isBeside(const QWidget *touched) const
{
    const QWidget *parent = q->parentWidget();
    return touched == parent
        || (touched && !touched->isEnabled() && parent->isAncestorOf(touched)
            && !q->isAncestorOf(touched));
}

AppMissionControlWidget::AppMissionControlWidget(QWidget *parent)
    : SlidePanel(Side::Bottom, parent)
    , d(std::make_unique<Private>(this))
{
    setObjectName(u"AppMissionControlWidget"_s);
    d->make();
    d->lift.setEasingCurve(QEasingCurve::OutQuad);
    d->lift.setStartValue(0);
    d->lift.setEndValue(0);
    connect(&d->lift, &QVariantAnimation::valueChanged, this, [this] { relocate(); });
    auto *handle = new PanelButton(parent);
    handle->setObjectName(u"McGrip"_s);
    setGrip(handle);
    connect(this, &SlidePanel::slideStarted, this, [this](bool isIn) {
        updateText();
        qApp->removeEventFilter(this);
        if (isIn) {
            qApp->installEventFilter(this);
        }
    });
    connect(this, &SlidePanel::slideEnded, this, [this](bool isIn) {
        if (isIn) {
            Q_EMIT expanded();
        } else {
            Q_EMIT contracted();
        }
    });
    updateText();
    layoutIn(parent->rect());
}

AppMissionControlWidget::~AppMissionControlWidget() = default;

bool AppMissionControlWidget::registerWidget(QWidget *widget)
{
    return registerWidget(widget, d->grid->count() == 0 ? 0 : d->grid->rowCount(), 0, 1, -1);
}

bool AppMissionControlWidget::registerWidget(QWidget *widget, int row, int column)
{
    return registerWidget(widget, row, column, 1, 1);
}

bool AppMissionControlWidget::registerWidget(QWidget *widget, int row, int column, int rowSpan,
                                             int columnSpan)
{
    if (!widget || row < 0 || column < 0 || rowSpan == 0 || columnSpan == 0) {
        return false;
    }
    d->grid->addWidget(widget, row, column, rowSpan, columnSpan);
    d->gridArea->show();
    widget->show();
    relocate();
    return true;
}

AppMissionControlWidth AppMissionControlWidget::panelWidth() const
{
    return d->width;
}

void AppMissionControlWidget::setPanelWidth(AppMissionControlWidth width)
{
    d->width = width;
    relocate();
}

bool AppMissionControlWidget::closeButtonEnabled() const
{
    return d->close->isEnabledTo(this);
}

void AppMissionControlWidget::enableCloseButton(bool enabled)
{
    d->close->setEnabled(enabled);
}

void AppMissionControlWidget::setApplicationIcon(const QString &path, bool visible)
{
    d->iconPath = path;
    setApplicationIconVisible(visible);
}

void AppMissionControlWidget::setApplicationIconVisible(bool visible)
{
    d->isIconVisible = visible;
    d->showIcon();
}

void AppMissionControlWidget::setIndicator(bool on)
{
    d->lamp->setOn(on);
}

bool AppMissionControlWidget::isExpanded() const
{
    return !isOut();
}

void AppMissionControlWidget::updateText()
{
    grip()->setAccessibleName(isOut() ? tr("Open mission control") : tr("Close mission control"));
    d->system->setText(tr("System"));
    d->close->setText(tr("Close application"));
    d->bar->setAccessibleName(tr("Progress"));
    d->gridArea->setAccessibleName(tr("Application controls"));
    d->summary->setSubject(tr("Summary"));
    d->showDetails();
}

void AppMissionControlWidget::expand()
{
    slideIn();
}

void AppMissionControlWidget::contract()
{
    slideOut();
}

void AppMissionControlWidget::setApplicationName(const QString &name)
{
    d->name->setText(name);
}

void AppMissionControlWidget::setApplicationPort(const QString &port)
{
    d->port = port;
    d->showDetails();
}

void AppMissionControlWidget::setApplicationInfo(const QString &info)
{
    d->info = info;
    d->showDetails();
}

void AppMissionControlWidget::setApplicationProgress(long complete, long total)
{
    d->progress->setVisible(total > 0);
    if (total > 0) {
        const int percent = percentOf(complete, total);
        d->bar->setValue(percent);
        d->percent->setText(tr("%1 %").arg(percent));
    }
}

void AppMissionControlWidget::setApplicationPassFail(int state)
{
    d->verdict->setVerdict(state);
}

void AppMissionControlWidget::setApplicationSummary(int state)
{
    d->summary->setVerdict(state);
    d->summary->setVisible(d->summary->verdict() != AppPassFail::None);
}

void AppMissionControlWidget::setApplicationStatus(const QString &status)
{
    d->status->setText(status);
    d->status->setVisible(!status.isEmpty());
}

void AppMissionControlWidget::fwMissionControlOpening(int height)
{
    d->liftTo(height);
}

void AppMissionControlWidget::fwMissionControlClosing(int)
{
    d->liftTo(0);
}

QRect AppMissionControlWidget::openGeometry(const QRect &area) const
{
    const int width = d->widthIn(area);
    const int bottom = parentWidget()->height();
    const int lift = d->lift.endValue().toInt();
    const int room = bottom - area.top() - grip()->height() - lift;
    const int height = std::max(std::min(d->heightFor(width), room), 0);
    const int left = area.left() + (area.width() - width) / 2;
    return {left, bottom - height - d->lift.currentValue().toInt(), width, height};
}

/// Shut, the grip rests on the lower edge of the area, which may be above the parent's.
QPoint AppMissionControlWidget::gripPosition() const
{
    const QPoint riding = SlidePanel::gripPosition();
    const int lift = d->lift.currentValue().toInt();
    const int rest = area().bottom() + 1 - grip()->height() - lift;
    const int open = parentWidget()->height() - lift - height() - grip()->height();
    return {riding.x(), rest + qRound((open - rest) * fraction())};
}

/// Disabled buttons keep touches from the parent, hence all of the application's are looked at.
bool AppMissionControlWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && isExpanded() && !isMoving()
        && d->isBeside(qobject_cast<QWidget *>(watched))) {
        contract();
    }
    return SlidePanel::eventFilter(watched, event);
}
