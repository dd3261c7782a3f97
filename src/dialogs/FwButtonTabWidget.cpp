#include "FwButtonTabWidget.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

#include "DialogTheme.h"
#include "TabButton.h"

using namespace Qt::StringLiterals;

struct FwButtonTabWidget::Private
{
    explicit Private(FwButtonTabWidget *widget)
        : q(widget)
    {
    }

    QToolButton *makeScroller(const QString &name, const QString &icon, int step);
    void updateTexts();

    bool isValid(int index) const { return index >= 0 && index < buttons.size(); }
    int enabledFrom(int index, int step) const;
    void dropGone();
    void leaveDisabledTab();
    void showCurrent();

    int lastShown() const;
    int roomForTabs() const;
    bool allFit() const;
    void scroll(int step);
    void reveal(int index);
    void placeRow();
    void placeTabs(int x, int until);

    FwButtonTabWidget *const q;
    QList<TabButton *> buttons;
    QList<const QWidget *> contents; ///< the page of each button; not to be followed
    QStackedWidget *pages = nullptr;
    QToolButton *back = nullptr;
    QToolButton *forth = nullptr;
    int first = 0; ///< the first tab in the row
};

QToolButton *FwButtonTabWidget::Private::makeScroller(const QString &name, const QString &icon,
                                                      int step)
{
    auto *button = new QToolButton(q);
    button->setObjectName(name);
    button->setIcon(DialogTheme::icon(u":/images/%1.png"_s.arg(icon)));
    button->setIconSize({DialogTheme::touchTarget, DialogTheme::touchTarget});
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRepeat(true);
    button->hide();
    connect(button, &QToolButton::clicked, q, [this, step] { scroll(step); });
    return button;
}

void FwButtonTabWidget::Private::updateTexts()
{
    back->setAccessibleName(tr("Previous tabs"));
    forth->setAccessibleName(tr("More tabs"));
}

/// @return The first enabled tab from @p index on, or -1.
int FwButtonTabWidget::Private::enabledFrom(int index, int step) const
{
    while (isValid(index) && !buttons.at(index)->isEnabled()) {
        index += step;
    }
    return isValid(index) ? index : -1;
}

/// Takes away the tabs whose pages were removed, deleted or given another parent.
void FwButtonTabWidget::Private::dropGone()
{
    for (qsizetype i = contents.size() - 1; i >= 0; --i) {
        if (pages->indexOf(contents.at(i)) >= 0) {
            continue;
        }
        contents.removeAt(i);
        TabButton *button = buttons.takeAt(i);
        button->hide();
        button->setAutoExclusive(false);
        // It may be this very button's click that removes the tab.
        button->deleteLater();
    }
}

void FwButtonTabWidget::Private::leaveDisabledTab()
{
    const int current = pages->currentIndex();
    if (isValid(current) && !buttons.at(current)->isEnabled()) {
        const int next = enabledFrom(current, 1);
        const int other = next >= 0 ? next : enabledFrom(current, -1);
        q->setCurrentIndex(other);
    }
}

void FwButtonTabWidget::Private::showCurrent()
{
    const int current = pages->currentIndex();
    for (int i = 0; i < buttons.size(); ++i) {
        // As with a group of radio buttons, Tab leads to the current one only.
        buttons.at(i)->setFocusPolicy(i == current ? Qt::StrongFocus : Qt::ClickFocus);
    }
    if (isValid(current)) {
        buttons.at(current)->setChecked(true);
        reveal(current);
    }
}

bool FwButtonTabWidget::Private::allFit() const
{
    int width = 0;
    for (const TabButton *button : buttons) {
        width += button->sizeHint().width();
    }
    return width <= q->width();
}

int FwButtonTabWidget::Private::roomForTabs() const
{
    return q->width() - (allFit() ? 0 : 2 * DialogTheme::touchTarget);
}

/// The last tab that has room in the row when it begins with the first one shown.
int FwButtonTabWidget::Private::lastShown() const
{
    int room = roomForTabs();
    int last = first;
    for (int i = first; i < buttons.size(); ++i) {
        room -= buttons.at(i)->sizeHint().width();
        if (room < 0) {
            break;
        }
        last = i;
    }
    return last;
}

void FwButtonTabWidget::Private::scroll(int step)
{
    first = qBound(0, first + step, int(buttons.size()) - 1);
    placeRow();
}

void FwButtonTabWidget::Private::reveal(int index)
{
    first = qMin(first, index);
    while (lastShown() < index) {
        ++first;
    }
    placeRow();
}

void FwButtonTabWidget::Private::placeRow()
{
    const bool fits = allFit();
    if (fits) {
        first = 0;
    }
    // No room is left empty behind the last tab.
    while (first > 0) {
        --first;
        if (lastShown() != buttons.size() - 1) {
            ++first;
            break;
        }
    }
    const int side = fits ? 0 : DialogTheme::touchTarget;
    const int height = DialogTheme::tabHeight;
    const auto visual = [this](const QRect &rect) {
        return QStyle::visualRect(q->layoutDirection(), q->rect(), rect);
    };
    back->setVisible(!fits);
    forth->setVisible(!fits);
    back->setGeometry(visual({0, 0, side, height}));
    forth->setGeometry(visual({q->width() - side, 0, side, height}));
    const int last = lastShown();
    back->setEnabled(first > 0);
    forth->setEnabled(last < buttons.size() - 1);
    placeTabs(side, last);
    pages->setGeometry(0, height, q->width(), q->height() - height);
}

void FwButtonTabWidget::Private::placeTabs(int x, int until)
{
    for (int i = 0; i < buttons.size(); ++i) {
        TabButton *button = buttons.at(i);
        const bool shown = i >= first && i <= until;
        if (shown) {
            const int width = qMin(button->sizeHint().width(), roomForTabs());
            const QRect place(x, 0, width, DialogTheme::tabHeight);
            button->setGeometry(QStyle::visualRect(q->layoutDirection(), q->rect(), place));
            x += width;
        }
        button->setVisible(shown);
    }
}

FwButtonTabWidget::FwButtonTabWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    d->pages = new QStackedWidget(this);
    d->pages->setObjectName(u"TabPages"_s);
    d->back = d->makeScroller(u"TabsBack"_s, u"back"_s, -1);
    d->forth = d->makeScroller(u"TabsForward"_s, u"forward"_s, 1);
    d->updateTexts();
    connect(d->pages, &QStackedWidget::currentChanged, this, [this](int index) {
        d->dropGone(); // this comes before widgetRemoved()
        d->showCurrent();
        Q_EMIT currentChanged(index);
    });
    connect(d->pages, &QStackedWidget::widgetRemoved, this, [this] {
        d->dropGone();
        d->placeRow();
        d->leaveDisabledTab();
    });
}

FwButtonTabWidget::~FwButtonTabWidget()
{
    // The pages go with their tabs, one by one; nobody wants to hear of it.
    d->pages->disconnect(this);
}

int FwButtonTabWidget::addTab(QWidget *page, const QString &text)
{
    return addTab(page, {}, text);
}

int FwButtonTabWidget::addTab(QWidget *page, const QIcon &icon, const QString &text)
{
    return insertTab(count(), page, icon, text);
}

int FwButtonTabWidget::insertTab(int index, QWidget *page, const QIcon &icon, const QString &text)
{
    if (!page || indexOf(page) >= 0) {
        return indexOf(page);
    }
    const int at = index < 0 ? count() : qMin(index, count());
    auto *button = new TabButton(this);
    button->setObjectName(u"TabButton"_s);
    button->setIcon(icon);
    button->setTabText(text);
    button->setEnabled(page->isEnabled());
    d->buttons.insert(at, button);
    d->contents.insert(at, page);
    connect(button, &QAbstractButton::clicked, this,
            [this, button] { setCurrentIndex(int(d->buttons.indexOf(button))); });
    d->pages->insertWidget(at, page);
    d->showCurrent();
    d->placeRow();
    return at;
}

void FwButtonTabWidget::removeTab(int index)
{
    if (QWidget *page = widget(index)) {
        d->pages->removeWidget(page); // hides it
    }
}

int FwButtonTabWidget::count() const
{
    return int(d->buttons.size());
}

int FwButtonTabWidget::currentIndex() const
{
    return d->pages->currentIndex();
}

QWidget *FwButtonTabWidget::currentWidget() const
{
    return d->pages->currentWidget();
}

QWidget *FwButtonTabWidget::widget(int index) const
{
    return d->pages->widget(index);
}

int FwButtonTabWidget::indexOf(const QWidget *page) const
{
    return d->pages->indexOf(page);
}

TabButton *FwButtonTabWidget::tabButton(int index) const
{
    return d->buttons.value(index);
}

QString FwButtonTabWidget::tabText(int index) const
{
    return d->isValid(index) ? d->buttons.at(index)->text() : QString();
}

void FwButtonTabWidget::UpdateText(int index, const QString &text)
{
    if (d->isValid(index)) {
        d->buttons.at(index)->setTabText(text);
        d->placeRow();
    }
}

void FwButtonTabWidget::setTabIcon(int index, const QIcon &icon)
{
    if (d->isValid(index)) {
        d->buttons.at(index)->setIcon(icon);
        d->placeRow();
    }
}

bool FwButtonTabWidget::isTabEnabled(int index) const
{
    return d->isValid(index) && d->buttons.at(index)->isEnabled();
}

void FwButtonTabWidget::setTabEnabled(int index, bool enabled)
{
    if (d->isValid(index)) {
        d->buttons.at(index)->setEnabled(enabled);
        widget(index)->setEnabled(enabled);
        d->leaveDisabledTab();
    }
}

QSize FwButtonTabWidget::sizeHint() const
{
    int row = 0;
    for (const TabButton *button : std::as_const(d->buttons)) {
        row += button->sizeHint().width();
    }
    const QSize page = d->pages->sizeHint();
    return QSize(qMax(page.width(), row), page.height() + DialogTheme::tabHeight)
        .expandedTo(minimumSizeHint());
}

QSize FwButtonTabWidget::minimumSizeHint() const
{
    const QSize page = d->pages->minimumSizeHint();
    const int row = 2 * DialogTheme::touchTarget + DialogTheme::narrowestTab;
    return {qMax(page.width(), row), page.height() + DialogTheme::tabHeight};
}

void FwButtonTabWidget::setCurrentIndex(int index)
{
    if (d->isValid(index)) {
        d->pages->setCurrentIndex(index);
    }
}

bool FwButtonTabWidget::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LanguageChange) {
        d->updateTexts();
    } else if (event->type() == QEvent::LayoutDirectionChange
               || event->type() == QEvent::LayoutRequest) {
        d->placeRow();
        updateGeometry();
    }
    return handled;
}

void FwButtonTabWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    d->placeRow();
    if (d->isValid(currentIndex())) {
        d->reveal(currentIndex());
    }
}

void FwButtonTabWidget::keyPressEvent(QKeyEvent *event)
{
    const bool onTabs = qobject_cast<TabButton *>(focusWidget());
    const int forwards = layoutDirection() == Qt::LeftToRight ? Qt::Key_Right : Qt::Key_Left;
    int next = -1;
    if (event->key() == Qt::Key_Home) {
        next = d->enabledFrom(0, 1);
    } else if (event->key() == Qt::Key_End) {
        next = d->enabledFrom(count() - 1, -1);
    } else if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
        const int step = event->key() == forwards ? 1 : -1;
        next = d->enabledFrom(currentIndex() + step, step);
    }
    if (!onTabs || next < 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const QPointer<TabButton> button = d->buttons.at(next);
    setCurrentIndex(next);
    if (button) { // else a slot has removed its tab
        button->setFocus(Qt::TabFocusReason);
    }
}
