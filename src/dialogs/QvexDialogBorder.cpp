#include "QvexDialogBorder.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

#include "DialogTheme.h"
#include "DialogsLogging.h"

using namespace Qt::StringLiterals;

namespace {

QToolButton *makeButton(const QString &name, const QString &icon, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(name);
    button->setIcon(DialogTheme::icon(icon));
    // A tap must not take the focus out of the dialog; the keyboard has keys of its own.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

struct QvexDialogBorder::Private
{
    explicit Private(QvexDialogBorder *border)
        : q(border)
    {
    }

    void makeHeader(bool withButtons);
    void makeBars();
    void updateTexts();
    void updateHeader();
    void elideTitle();
    QRect panelRect() const;
    void placeBars();

    QvexDialogBorder *const q;
    QFrame *panel = nullptr;
    QFrame *header = nullptr;
    QLabel *titleLabel = nullptr;
    QToolButton *helpButton = nullptr;
    QToolButton *closeButton = nullptr;
    QHash<Direction, QToolButton *> bars;
    QString title;
    bool titleVisible = true;
    bool movable = false;
};

void QvexDialogBorder::Private::makeHeader(bool withButtons)
{
    panel = new QFrame(q);
    panel->setObjectName(u"DlgBackFrame"_s);
    header = new QFrame(panel);
    header->setObjectName(u"DlgHeader"_s);
    titleLabel = new QLabel(header);
    titleLabel->setObjectName(u"DlgTitleLabel"_s);
    titleLabel->setTextFormat(Qt::PlainText);
    titleLabel->setStyleSheet(u"QLabel#DlgTitleLabel { color: green; font-size: 18px; "
                              "font-weight: normal; }"_s);
    helpButton = makeButton(u"DlgHelpButton"_s, u":/help-icon-48.png"_s, header);
    closeButton = makeButton(u"DlgCloseButton"_s, u":/close-icon-48.png"_s, header);
    helpButton->hide();
    closeButton->setVisible(withButtons);
    for (QToolButton *button : {helpButton, closeButton}) {
        button->setFixedSize(DialogTheme::headerHeight, DialogTheme::headerHeight);
        button->setIconSize(DialogTheme::headerIcon);
    }
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins(DialogTheme::spacing, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(titleLabel, 1);
    row->addWidget(helpButton);
    row->addWidget(closeButton);
}

void QvexDialogBorder::Private::makeBars()
{
    const QList<std::pair<Direction, QString>> names {
        {Up, u"up"_s}, {Down, u"down"_s}, {Left, u"left"_s}, {Right, u"right"_s}};
    for (const auto &[direction, name] : names) {
        QToolButton *bar =
            makeButton(u"DlgMoveBar_%1"_s.arg(name), u":/images/bar_%1.png"_s.arg(name), q);
        const bool lying = direction == Up || direction == Down;
        bar->setFixedSize(lying ? DialogTheme::moveBar : DialogTheme::moveBar.transposed());
        bar->setIconSize(bar->size());
        bar->setAutoRepeat(true);
        bars.insert(direction, bar);
    }
}

void QvexDialogBorder::Private::updateTexts()
{
    helpButton->setAccessibleName(tr("Help"));
    closeButton->setAccessibleName(tr("Close"));
    const QHash<Direction, QString> names {{Up, tr("Move up")},
                                           {Down, tr("Move down")},
                                           {Left, tr("Move left")},
                                           {Right, tr("Move right")}};
    for (auto bar = bars.cbegin(); bar != bars.cend(); ++bar) {
        bar.value()->setAccessibleName(names.value(bar.key()));
    }
}

void QvexDialogBorder::Private::updateHeader()
{
    titleLabel->setVisible(titleVisible);
    const bool titled = titleVisible && !title.isEmpty();
    header->setVisible(titled || !helpButton->isHidden() || !closeButton->isHidden());
}

void QvexDialogBorder::Private::elideTitle()
{
    titleLabel->ensurePolished();
    const QString elided =
        titleLabel->fontMetrics().elidedText(title, Qt::ElideRight, titleLabel->width());
    titleLabel->setText(elided);
    titleLabel->setToolTip(elided == title ? QString() : title);
}

QRect QvexDialogBorder::Private::panelRect() const
{
    const int bar = movable ? DialogTheme::moveBar.height() : 0;
    return q->rect().adjusted(bar, bar, -bar, -bar);
}

void QvexDialogBorder::Private::placeBars()
{
    const auto place = [this](Direction direction, Qt::Alignment side) {
        QToolButton *bar = bars.value(direction);
        bar->setGeometry(QStyle::alignedRect(Qt::LeftToRight, side, bar->size(), q->rect()));
    };
    place(Up, Qt::AlignTop | Qt::AlignHCenter);
    place(Down, Qt::AlignBottom | Qt::AlignHCenter);
    place(Left, Qt::AlignLeft | Qt::AlignVCenter);
    place(Right, Qt::AlignRight | Qt::AlignVCenter);
}

QvexDialogBorder::QvexDialogBorder(bool withButtons, bool movable, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    setObjectName(u"DlgBorder"_s);
    setAttribute(Qt::WA_NoMousePropagation);
    d->movable = movable;
    d->makeHeader(withButtons);
    if (movable) {
        d->makeBars();
    }
    d->updateTexts();
    d->updateHeader();
    DialogTheme::apply(this, &DialogTheme::borderStyle);
}

QvexDialogBorder::~QvexDialogBorder() = default;

bool QvexDialogBorder::isMovable() const
{
    return d->movable;
}

QMargins QvexDialogBorder::panelMargins() const
{
    const int padding = DialogTheme::panelPadding;
    const int top = d->header->isHidden() ? padding : DialogTheme::headerHeight + 1 + padding;
    return {padding, top, padding, padding};
}

QMargins QvexDialogBorder::margins() const
{
    return panelMargins() + (d->movable ? DialogTheme::moveBar.height() : 0);
}

QAbstractButton *QvexDialogBorder::closeButton() const
{
    return d->closeButton;
}

QAbstractButton *QvexDialogBorder::helpButton() const
{
    return d->helpButton;
}

QAbstractButton *QvexDialogBorder::moveBar(Direction direction) const
{
    return d->bars.value(direction);
}

void QvexDialogBorder::setTitle(const QString &title)
{
    d->title = title;
    d->updateHeader();
    d->elideTitle();
}

void QvexDialogBorder::setTitleVisible(bool visible)
{
    d->titleVisible = visible;
    d->updateHeader();
}

void QvexDialogBorder::setCloseVisible(bool visible)
{
    d->closeButton->setVisible(visible);
    d->updateHeader();
}

void QvexDialogBorder::setHelpVisible(bool visible)
{
    d->helpButton->setVisible(visible);
    d->updateHeader();
}

void QvexDialogBorder::setVisible(bool visible)
{
    if (visible && !parentWidget()) {
        qCWarning(lcDialogs, "QvexDialogBorder::show() NULL parent");
        return;
    }
    if (visible) {
        DialogTheme::apply(this, &DialogTheme::borderStyle);
    }
    QWidget::setVisible(visible);
}

QWidget *QvexDialogBorder::applicationWindow(QWidget *widget)
{
    for (QWidget *ancestor = widget; ancestor; ancestor = ancestor->parentWidget()) {
        if (ancestor->objectName() == "FwMainWindow"_L1) {
            return ancestor;
        }
    }
    return widget ? widget->window() : nullptr;
}

void QvexDialogBorder::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        d->updateTexts();
    } else if (event->type() == QEvent::PaletteChange) {
        DialogTheme::apply(this, &DialogTheme::borderStyle);
    }
}

void QvexDialogBorder::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const QRect panel = d->panelRect();
    d->panel->setGeometry(panel);
    d->header->setGeometry(1, 1, panel.width() - 2, DialogTheme::headerHeight);
    // Between the bars there is nothing of the border to be touched.
    QRegion touchable(panel);
    if (d->movable) {
        d->placeBars();
        for (const QToolButton *bar : std::as_const(d->bars)) {
            touchable += bar->geometry();
        }
    }
    setMask(touchable);
    d->header->layout()->activate();
    d->elideTitle();
}
