#include "ButtonTabsPage.h"

#include "../Controls.h"

#include <dialogs/FwButtonTabWidget.h>

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

QLabel *makePage(const QString &text)
{
    auto *page = new QLabel(text);
    page->setAlignment(Qt::AlignCenter);
    page->setStyleSheet(u"font-size: 24px;"_s);
    return page;
}

} // namespace

ButtonTabsPage::ButtonTabsPage()
    : Page(u"button-tabs"_s, tr("FwButtonTabWidget"),
           tr("Pages under a row of buttons; more tabs than fit are reached at the row's ends."))
{
}

QWidget *ButtonTabsPage::recipe(QWidget *parent)
{
    m_tabs = new FwButtonTabWidget(parent);
    m_tabs->setMinimumSize(560, 200);
    m_tabs->addTab(makePage(tr("Setup page")), QIcon(u":/images/home.png"_s), tr("Setup"));
    m_tabs->addTab(makePage(tr("Test page")), tr("Test"));
    m_tabs->addTab(makePage(tr("Result page")), tr("Result"));
    m_tabs->setTabEnabled(2, false);
    connect(m_tabs, &FwButtonTabWidget::currentChanged, this,
            [this](int index) { note(u"currentChanged"_s, index); });
    watch(u"count()"_s, [this] { return m_tabs->count(); });
    watch(u"currentIndex()"_s, [this] { return m_tabs->currentIndex(); });
    watch(u"isTabEnabled(2)"_s, [this] { return m_tabs->isTabEnabled(2); });
    return m_tabs;
}

QWidget *ButtonTabsPage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addSwitch(tr("Result enabled"), [this](bool on) { m_tabs->setTabEnabled(2, on); });
    controls->addSwitch(tr("Long text"), [this](bool on) {
        m_tabs->UpdateText(1, on ? tr("Test with a rather long name") : tr("Test"));
    });
    controls->addButton(tr("Ten more"), [this] { addMany(); });
    return controls;
}

void ButtonTabsPage::addMany()
{
    for (int i = 0; i < 10; ++i) {
        const QString name = tr("Tab %1").arg(m_tabs->count() + 1);
        m_tabs->addTab(makePage(name), name);
    }
}

QVector<Page::Scene> ButtonTabsPage::scenes()
{
    const auto many = [this] {
        addMany();
        m_tabs->setCurrentIndex(6);
    };
    return {{{}, [] {}}, {u"many"_s, many}};
}
