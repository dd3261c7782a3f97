#include "StylesPage.h"

#include "../Look.h"

#include <frame/ElidedButtonStyle.h>
#include <frame/ElidedLabelStyle.h>
#include <frame/MyMenuStyle.h>
#include <frame/RoundedRect.h>

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStyleFactory>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString longText = u"A text that is far too long for such a narrow button"_s;
const QString path = u"/Internal/results/2026-03-14/loss-map-of-the-long-span.csv"_s;

// A style is not owned by the widget that uses it.
template<typename Style>
void setStyle(QWidget *widget)
{
    auto *style = new Style(QStyleFactory::create(u"Fusion"_s));
    style->setParent(widget);
    widget->setStyle(style);
}

template<typename Widget>
Widget *add(QLayout *layout, const QString &text)
{
    auto *widget = new Widget(text);
    widget->setFixedSize(320, Look::fingerSize);
    layout->addWidget(widget);
    return widget;
}

QMenu *makeMenu(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    menu->setStyleSheet(
        u"QMenu::item { padding: 14px 24px 14px 12px; } QMenu::icon { padding-left: 12px; }"_s);
    menu->addAction(QIcon(u":/images/home.png"_s), StylesPage::tr("To the first page"));
    menu->addAction(QIcon(u":/images/back.png"_s), StylesPage::tr("Back"));
    menu->addAction(QIcon(u":/help-icon-48.png"_s), StylesPage::tr("Help"));
    return menu;
}

} // namespace

StylesPage::StylesPage()
    : Page(u"styles"_s, tr("Styles"),
           tr("Texts that fit their button or label, larger icons in menus, round corners."))
{
}

QWidget *StylesPage::recipe(QWidget *parent)
{
    auto *layout = new QVBoxLayout(new QWidget(parent));
    setStyle<ElidedButtonStyle>(add<QPushButton>(layout, longText));
    setStyle<ElidedLabelStyle>(add<QLabel>(layout, path));

    m_menuButton = add<QPushButton>(layout, tr("A menu"));
    m_menuButton->setMenu(makeMenu(m_menuButton));
    setStyle<MyMenuStyle>(m_menuButton->menu());

    auto *round = add<QLabel>(layout, tr("roundedRect()"));
    round->setAlignment(Qt::AlignCenter);
    round->setStyleSheet(u"background: #2b4257; color: white;"_s);
    round->setMask(roundedRect(round->rect(), 16));
    return layout->parentWidget();
}

QVector<Page::Scene> StylesPage::scenes()
{
    return {{{}, [] {}}, {u"menu"_s, [this] { m_menuButton->showMenu(); }}};
}
