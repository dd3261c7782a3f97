#include "TabButton.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>
#include <QStyle>

#include "DialogTheme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Mark = 4; ///< the height of the line that marks the current tab

/// Tells assistive technology that the button is a tab.
class TabButtonAccessible : public QAccessibleWidget
{
public:
    explicit TabButtonAccessible(TabButton *button)
        : QAccessibleWidget(button, QAccessible::PageTab)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? button()->text() : given;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = button()->isChecked();
        return state;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString &name) override
    {
        if (name == pressAction()) {
            button()->click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    TabButton *button() const { return static_cast<TabButton *>(widget()); }
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *button = qobject_cast<TabButton *>(object);
    return button ? new TabButtonAccessible(button) : nullptr;
}

} // namespace

TabButton::TabButton(QWidget *parent)
    : QAbstractButton(parent)
{
    static const bool installed = (QAccessible::installFactory(makeAccessible), true);
    Q_UNUSED(installed)
    setCheckable(true);
    setAutoExclusive(true);
    setIconSize({DialogTheme::tabIcon, DialogTheme::tabIcon});
    QFont larger = font();
    larger.setPixelSize(DialogTheme::fontSize);
    setFont(larger);
}

void TabButton::setTabText(const QString &text)
{
    setText(text);
    updateGeometry();
    updateToolTip();
}

QSize TabButton::sizeHint() const
{
    const int icon = this->icon().isNull() ? 0 : iconSize().width() + DialogTheme::spacing;
    const int text = fontMetrics().horizontalAdvance(this->text()) + 2;
    const int width = icon + text + 2 * DialogTheme::spacing;
    return {qBound(DialogTheme::narrowestTab, width, DialogTheme::widestTab),
            DialogTheme::tabHeight};
}

QSize TabButton::minimumSizeHint() const
{
    return {DialogTheme::narrowestTab, DialogTheme::tabHeight};
}

QRect TabButton::iconRect() const
{
    if (icon().isNull()) {
        return {};
    }
    const QRect inner = rect().adjusted(DialogTheme::spacing, 0, -DialogTheme::spacing, -Mark);
    return QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, iconSize(),
                               inner);
}

QRect TabButton::textRect() const
{
    const int margin = DialogTheme::spacing;
    const int icon = this->icon().isNull() ? 0 : iconSize().width() + margin;
    const QRect inner = rect().adjusted(margin + icon, 0, -margin, -Mark);
    return QStyle::visualRect(layoutDirection(), rect(), inner);
}

QString TabButton::elidedText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, textRect().width());
}

void TabButton::updateToolTip()
{
    setToolTip(elidedText() == text() ? QString() : text());
}

void TabButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateGeometry();
        updateToolTip();
    }
}

void TabButton::resizeEvent(QResizeEvent *event)
{
    QAbstractButton::resizeEvent(event);
    updateToolTip();
}

void TabButton::paintEvent(QPaintEvent *)
{
    const QPalette colors = palette();
    const auto color = [&colors](QPalette::ColorRole role) {
        // Those of the disabled group are too faint to be read.
        return colors.color(QPalette::Active, role);
    };
    const QColor window = color(QPalette::Window);
    const QColor highlight = color(QPalette::Highlight);
    QColor ground = isChecked()
        ? window
        : DialogTheme::mixed(color(QPalette::Button), color(QPalette::Dark), 0.8);
    QColor ink = color(QPalette::ButtonText);
    if (isDown()) {
        ground = highlight;
        ink = DialogTheme::inkOn(highlight);
    } else if (!isEnabled()) {
        ground = window;
        ink = DialogTheme::mixed(color(QPalette::WindowText), window, 0.6);
    }
    QPainter painter(this);
    painter.setPen(
        QPen(DialogTheme::outline(colors), 1, isEnabled() ? Qt::SolidLine : Qt::DashLine));
    painter.setBrush(ground);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (isChecked()) {
        painter.fillRect(rect().adjusted(1, height() - Mark, -1, 0), highlight);
    }
    icon().paint(&painter, iconRect(), Qt::AlignCenter,
                 isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.setPen(ink);
    painter.drawText(textRect(), int(Qt::AlignCenter), elidedText());
    if (hasFocus()) {
        painter.setPen(QPen(highlight, 3));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(4, 4, -5, -5 - Mark));
    }
}
