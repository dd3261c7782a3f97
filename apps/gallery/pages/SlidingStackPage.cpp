#include "SlidingStackPage.h"

#include "../Controls.h"

#include <frame/SlidingStackedWidget.h>

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

QLabel *makeCard(const QString &text, const QString &colour)
{
    auto *card = new QLabel(text);
    card->setAlignment(Qt::AlignCenter);
    card->setStyleSheet(u"background: %1; color: white; font-size: 40px;"_s.arg(colour));
    return card;
}

} // namespace

SlidingStackPage::SlidingStackPage()
    : Page(u"sliding-stack"_s, tr("SlidingStackedWidget"),
           tr("A stack of pages that slide when the page changes, one slide at a time."))
{
}

QWidget *SlidingStackPage::recipe(QWidget *parent)
{
    m_stack = new SlidingStackedWidget(parent);
    m_stack->setFixedSize(480, 200);
    m_stack->addWidget(makeCard(tr("First"), u"#1f66a8"_s));
    m_stack->addWidget(makeCard(tr("Second"), u"#11705f"_s));
    m_stack->addWidget(makeCard(tr("Third"), u"#8a3a12"_s));
    connect(m_stack, &SlidingStackedWidget::animationStarted, this,
            [this] { note(u"animationStarted"_s); });
    connect(m_stack, &SlidingStackedWidget::animationFinished, this,
            [this] { note(u"animationFinished"_s); });
    for (const char *name : {"currentIndex", "speed", "vertical", "wrap", "locked"}) {
        watch(QLatin1StringView(name), [this, name] { return m_stack->property(name); });
    }
    return m_stack;
}

QWidget *SlidingStackPage::controls(QWidget *parent)
{
    auto *both = new QWidget(parent);
    auto *layout = new QVBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *moves = new Controls(both);
    moves->addButton(tr("slideInPrev()"), [this] { m_stack->slideInPrev(); });
    moves->addButton(tr("slideInNext()"), [this] { m_stack->slideInNext(); });
    moves->addChoice(tr("Speed: %1 ms"), {500, 1500, 0},
                     [this](int speed) { m_stack->setSpeed(speed); });
    layout->addWidget(moves);
    auto *modes = new Controls(both);
    modes->addSwitch(tr("Vertical"), [this](bool on) { m_stack->setVerticalMode(on); });
    modes->addSwitch(tr("Wrap"), [this](bool on) { m_stack->setWrap(on); });
    modes->addSwitch(tr("Locked"), [this](bool on) { m_stack->setRemoteLocked(on); });
    layout->addWidget(modes);
    return both;
}

QVector<Page::Scene> SlidingStackPage::scenes()
{
    return {{{}, [this] { m_stack->slideInNext(); }, 150}};
}
