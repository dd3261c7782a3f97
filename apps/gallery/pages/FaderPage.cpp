#include "FaderPage.h"

#include "../Controls.h"

#include <frame/FaderWidget.h>

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

QLabel *makeCovered(QWidget *parent)
{
    auto *label = new QLabel(FaderPage::tr("What is covered\nwhile it is swapped"), parent);
    label->setFixedSize(420, 220);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(u"background: #11705f; color: white; font-size: 24px;"_s);
    return label;
}

} // namespace

FaderPage::FaderPage()
    : Page(u"fader"_s, tr("FaderWidget"),
           tr("Covers a widget and fades, once, while it is swapped."))
{
}

QWidget *FaderPage::recipe(QWidget *parent)
{
    QLabel *covered = makeCovered(parent);
    connect(this, &FaderPage::fadeAsked, covered, [this, covered](bool in) {
        m_fader = new FaderWidget(covered); // closes and deletes itself after the fade
        m_fader->setFadeDuration(m_duration);
        connect(m_fader, &FaderWidget::fadeInStarted, this, [this] { note(u"fadeInStarted"_s); });
        connect(m_fader, &FaderWidget::fadeInStopped, this, [this] { note(u"fadeInStopped"_s); });
        connect(m_fader, &FaderWidget::fadeOutStarted, this, [this] { note(u"fadeOutStarted"_s); });
        connect(m_fader, &FaderWidget::fadeOutStopped, this, [this] { note(u"fadeOutStopped"_s); });
        in ? m_fader->startFadeIn() : m_fader->startFadeOut();
    });
    watch(tr("a fader exists"), [this] { return !m_fader.isNull(); });
    return covered;
}

QWidget *FaderPage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addButton(tr("Fade in"), [this] { Q_EMIT fadeAsked(true); });
    controls->addButton(tr("Fade out"), [this] { Q_EMIT fadeAsked(false); });
    controls->addChoice(tr("Duration: %1 ms"), {333, 1000, 3000},
                        [this](int duration) { m_duration = duration; });
    return controls;
}

QVector<Page::Scene> FaderPage::scenes()
{
    const auto play = [this] { Q_EMIT fadeAsked(true); };
    return {{{}, play, 200}};
}
