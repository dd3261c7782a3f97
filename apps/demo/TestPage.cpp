#include "TestPage.h"

#include "EventList.h"
#include "FigureTile.h"
#include "Look.h"
#include "PlotPanel.h"
#include "StatusChip.h"
#include "Wording.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int progressSteps = 1000;

} // namespace

TestPage::TestPage(Meter &meter, QWidget *parent)
    : QWidget(parent)
    , m_meter(meter)
    , m_plot(new PlotPanel(this))
    , m_events(new EventList(this))
{
    setObjectName(u"TestPage"_s);
    setAutoFillBackground(true);
    m_events->setFixedHeight(112);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, Look::spacing, 60, 40);
    layout->setSpacing(Look::spacing);
    layout->addWidget(makeHeader());
    layout->addWidget(makeFigures());
    layout->addWidget(m_plot, 1);
    layout->addWidget(m_events);
    connectMeter();
    m_plot->setRun(&m_meter.run());
    retranslate();
}

QWidget *TestPage::makeHeader()
{
    auto *header = new QWidget(this);
    m_startStop = Look::mainButton(u"StartStop"_s, header);
    m_save = Look::button(u"Save"_s, header);
    m_save->setMinimumSize(150, 60);
    m_state = new QLabel(header);
    m_state->setObjectName(u"RunState"_s);
    m_state->setWordWrap(true);
    m_progress = new QProgressBar(header);
    m_progress->setObjectName(u"Progress"_s);
    m_progress->setRange(0, progressSteps);
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(16);
    m_verdict = new StatusChip(header);
    m_verdict->setObjectName(u"Verdict"_s);
    m_verdict->setFont(Look::scaled(m_verdict->font(), 1.4, true));
    m_verdict->setFixedSize(220, 60);

    auto *middle = new QVBoxLayout;
    middle->setSpacing(4);
    middle->addWidget(m_state);
    middle->addWidget(m_progress);
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::spacing * 2);
    layout->addWidget(m_startStop);
    layout->addLayout(middle, 1);
    layout->addWidget(m_verdict);
    layout->addWidget(m_save);
    connect(m_startStop, &QPushButton::clicked, this, &TestPage::startOrStop);
    connect(m_save, &QPushButton::clicked, this, &TestPage::saveWanted);
    return header;
}

QWidget *TestPage::makeFigures()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::spacing);
    const auto add = [row, layout](const QString &objectName) {
        auto *tile = new FigureTile(objectName, row);
        layout->addWidget(tile, 1);
        return tile;
    };
    m_level = add(u"Level"_s);
    m_lowest = add(u"Lowest"_s);
    m_mean = add(u"Mean"_s);
    m_errors = add(u"Errors"_s);
    m_ratio = add(u"Ratio"_s);
    m_time = add(u"Time"_s);
    return row;
}

void TestPage::connectMeter()
{
    connect(&m_meter, &Meter::started, this, &TestPage::beginRun);
    connect(&m_meter, &Meter::stateChanged, this, &TestPage::showState);
    connect(&m_meter, &Meter::eventAdded, m_events, &EventList::addEvent);
    connect(&m_meter, &Meter::measured, this, [this] {
        m_plot->refresh();
        showFigures();
    });
    connect(&m_meter, &Meter::finished, this, [this] {
        m_isSaved = m_meter.run().samples().isEmpty();
        m_plot->refresh();
        showFigures();
        showState();
    });
}

void TestPage::setCanStart(bool canStart)
{
    m_canStart = canStart;
    showState();
}

void TestPage::setSaved(bool saved)
{
    m_isSaved = saved;
    showState();
}

void TestPage::beginRun()
{
    m_events->clear();
    m_plot->setRun(&m_meter.run());
    showFigures();
}

void TestPage::startOrStop()
{
    if (m_meter.isBusy()) {
        m_meter.stop();
    } else {
        Q_EMIT startWanted();
    }
}

void TestPage::showState()
{
    const bool isBusy = m_meter.isBusy();
    m_startStop->setText(isBusy ? tr("Stop") : tr("Start"));
    m_startStop->setEnabled(isBusy ? m_meter.state() != Meter::State::Stopping : m_canStart);
    m_save->setText(m_isSaved && !m_meter.run().samples().isEmpty() && !isBusy ? tr("Saved")
                                                                               : tr("Save result"));
    m_save->setEnabled(!isBusy && !m_isSaved);
    m_state->setText(stateText());
    showVerdict();
}

QString TestPage::stateText() const
{
    switch (m_meter.state()) {
    case Meter::State::Launching:
        return tr("The instrument launches its test \"%1\" ...")
            .arg(m_meter.run().settings.testName);
    case Meter::State::Running:
        return tr("Measuring");
    case Meter::State::Interrupted:
        return tr("The link is lost. The run goes on when it is back.");
    case Meter::State::Stopping:
        return tr("The instrument ends its test ...");
    case Meter::State::Idle:
        break;
    }
    if (!m_meter.run().events.isEmpty()) {
        return m_meter.run().events.constLast().text;
    }
    return m_canStart ? tr("Ready") : tr("No link to the instrument, so no test can be started.");
}

void TestPage::showVerdict()
{
    const Verdict verdict = m_meter.run().verdict();
    const bool isEarly = m_meter.isBusy() && verdict == Verdict::None;
    if (m_meter.state() == Meter::State::Interrupted) {
        m_verdict->setStatus(tr("Interrupted"), "warning");
        return;
    }
    m_verdict->setStatus(isEarly ? tr("Running") : Wording::verdict(verdict),
                         isEarly ? QByteArray("progress") : Wording::verdictColour(verdict));
}

void TestPage::showFigures()
{
    const Run &run = m_meter.run();
    const RunFigures &figures = run.figures();
    const auto level = [&figures](double value) {
        return figures.count() == 0 ? QString(u'-') : Wording::level(value);
    };
    m_level->setValue(level(figures.count() == 0 ? 0 : run.samples().constLast().level));
    m_lowest->setValue(level(figures.lowest()));
    m_lowest->setFailed(!figures.levelPasses(run.settings));
    m_mean->setValue(level(figures.mean()));
    m_errors->setValue(QString::number(figures.errors()));
    m_ratio->setValue(Wording::ratio(figures.ratio()));
    m_ratio->setFailed(!figures.ratioPasses(run.settings));
    m_time->setValue(tr("%1 s").arg(m_meter.elapsed(), 0, 'f', 1));
    m_progress->setValue(
        qRound(progressSteps * m_meter.elapsed() / qMax(1, run.settings.duration)));
    showVerdict();
}

void TestPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void TestPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool isCompact = width() < Look::compactWidth;
    m_startStop->setMinimumWidth(isCompact ? 112 : 200);
    m_save->setMinimumWidth(isCompact ? 112 : 150);
    m_verdict->setFixedWidth(isCompact ? 150 : 220);
    // The last event is in the header, too.
    m_events->setVisible(!isCompact);
    m_mean->setVisible(!isCompact);
    m_time->setVisible(!isCompact);
    m_plot->setCompact(isCompact);
}

void TestPage::retranslate()
{
    m_level->setCaption(tr("Level now"));
    m_lowest->setCaption(tr("Lowest level"));
    m_mean->setCaption(tr("Mean power"));
    m_errors->setCaption(tr("Bit errors"));
    m_ratio->setCaption(tr("Error ratio"));
    m_time->setCaption(tr("Time"));
    m_progress->setAccessibleName(tr("Progress of the run"));
    showState();
    showFigures();
}
