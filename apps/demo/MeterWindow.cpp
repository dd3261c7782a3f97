#include "MeterWindow.h"

#include "ControlButtons.h"
#include "ControllerLink.h"
#include "LinkPanel.h"
#include "LogPanel.h"
#include "Look.h"
#include "Meter.h"
#include "ResultFiles.h"
#include "ResultPage.h"
#include "Settings.h"
#include "SetupPage.h"
#include "StatusChip.h"
#include "TestPage.h"
#include "Toast.h"

#include <QApplication>
#include <QEvent>

using namespace Qt::StringLiterals;

namespace {

const auto helpPage = u":/levelmeter/help/index.html"_s;

} // namespace

MeterWindow::MeterWindow(QVector<QString> &args, Settings &settings, Meter &meter,
                         ControllerLink &link, const QString &resultsFolder)
    : ClientGUIBase(args)
    , m_settings(settings)
    , m_meter(meter)
    , m_link(link)
    , m_files(std::make_unique<ResultFiles>(resultsFolder, *this, link.controller()))
{
    setApplicationResultExt(RunFile::suffix());
    setResultsHomeDir(resultsFolder);
    setApplicationPort(u"1/1"_s);
    // The windows are made in their colours, which is faster than changing them.
    applyColours();
    makeWindows();
    makePanels();
    connectRun();
    connectFiles();
    connectLink();
    connect(&m_settings, &Settings::changed, this, &MeterWindow::applyProperty);
    applyProperty(Settings::Theme);
    applyProperty(Settings::Language);
    updateText();
    showLink();
}

MeterWindow::~MeterWindow() = default;

void MeterWindow::makeWindows()
{
    m_setup = new SetupPage(m_settings);
    m_test = new TestPage(m_meter);
    m_result = new ResultPage(m_files->folder());
    // Without names of their own they are called as every application's windows are.
    registerApplicationWindow(m_setup);
    registerApplicationWindow(m_test);
    registerApplicationWindow(m_result);
}

void MeterWindow::makePanels()
{
    m_linkPanel = new LinkPanel(m_link);
    registerMiniMcWidget(m_linkPanel, LinkPanel::panelSize.width(), LinkPanel::panelSize.height(),
                         0);
    m_linkChip = new StatusChip(this);
    m_linkChip->setObjectName(u"LinkChip"_s);
    connect(m_linkChip, &QAbstractButton::clicked, this, [this] { showMiniMcPanel(m_linkPanel); });
    m_toast = new Toast(this);
    connect(this, &ClientGUIBase::showToast, m_toast, &Toast::showText);
    m_logPanel = new LogPanel;
    registerCustomPanelWidget(m_logPanel);
    makeControlButtons();
    qApp->installEventFilter(this);
}

void MeterWindow::makeControlButtons()
{
    m_controlButtons = new ControlButtons;
    registerMissionControlWidget(m_controlButtons);
    connect(m_controlButtons, &ControlButtons::logWanted, this, [this] {
        contractMisionControl();
        showCustomPanel();
    });
    connect(m_controlButtons, &ControlButtons::autoSaveWanted, this,
            [this](bool on) { setAutoSave(on ? 1 : 0); });
}

bool MeterWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        const auto *touched = qobject_cast<QWidget *>(watched);
        for (const QWidget *page : std::initializer_list<QWidget *> {m_setup, m_test, m_result}) {
            if (touched && (touched == page || page->isAncestorOf(touched))) {
                hideMiniMcPanel(m_linkPanel);
            }
        }
    }
    return ClientGUIBase::eventFilter(watched, event);
}

void MeterWindow::connectRun()
{
    connect(m_setup, &SetupPage::startWanted, this, &MeterWindow::startRun);
    connect(m_test, &TestPage::startWanted, this, &MeterWindow::startRun);
    connect(m_setup, &SetupPage::helpWanted, this, [this] { showHelpWindow(helpPage); });

    connect(&m_meter, &Meter::launchWanted, &m_link, &ControllerLink::launch);
    connect(&m_meter, &Meter::terminateWanted, &m_link, &ControllerLink::terminate);
    connect(&m_meter, &Meter::phaseWanted, &m_link, &ControllerLink::askPhase);
    connect(&m_link, &ControllerLink::launched, &m_meter, &Meter::testLaunched);
    connect(&m_link, &ControllerLink::phaseKnown, &m_meter, &Meter::testPhaseKnown);
    connect(&m_link, &ControllerLink::testsChanged, &m_meter, &Meter::testsChanged);
    connect(&m_link, &ControllerLink::lost, &m_meter, &Meter::linkLost);
    connect(&m_link, &ControllerLink::up, &m_meter, &Meter::linkRestored);

    connect(&m_meter, &Meter::stateChanged, this, &MeterWindow::reportRun);
    connect(&m_meter, &Meter::measured, this, &MeterWindow::reportRun);
    connect(&m_meter, &Meter::finished, this, [this] {
        m_isSaved = m_meter.run().samples().isEmpty();
        if (!m_isSaved && isAutoSave() != 0) {
            m_files->saveAtOnce(m_meter.run());
        }
    });
}

void MeterWindow::connectFiles()
{
    connect(m_test, &TestPage::saveWanted, this, [this] { m_files->save(m_meter.run()); });
    connect(m_files.get(), &ResultFiles::saved, this, [this](const QString &path) {
        m_isSaved = true;
        m_test->setSaved(true);
        m_files->open(path);
    });
    connect(m_files.get(), &ResultFiles::opened, this, &MeterWindow::openResult);
    connect(m_files.get(), &ResultFiles::removed, m_result, &ResultPage::refresh);
    connect(m_result, &ResultPage::openWanted, m_files.get(), &ResultFiles::open);
    connect(m_result, &ResultPage::browseWanted, m_files.get(), &ResultFiles::browse);
    connect(m_result, &ResultPage::uploadWanted, m_files.get(), &ResultFiles::upload);
    connect(m_result, &ResultPage::transferWanted, m_files.get(), &ResultFiles::transfer);
    connect(m_result, &ResultPage::deleteWanted, m_files.get(), &ResultFiles::remove);
    connect(m_files.get(), &ResultFiles::uploadProgressed, m_result, &ResultPage::showUpload);
    connect(m_files.get(), &ResultFiles::uploaded, m_result, &ResultPage::endUpload);
    connect(this, &ClientGUIBase::loadFileToViewRequested, m_files.get(), &ResultFiles::open);
}

void MeterWindow::connectLink()
{
    connect(&m_link, &ControllerLink::stateChanged, this, &MeterWindow::showLink);
    connect(&m_link, &ControllerLink::testsListed, m_setup, &SetupPage::setTests);
    connect(&m_link, &ControllerLink::controllerKnown, this,
            [this](const QString &model, const QString &serial) {
                m_files->setServerId(serial);
                setApplicationInfo(u"%1, %2"_s.arg(model, serial));
            });
    connect(&m_link, &ControllerLink::lost, this,
            [this](const QString &) { Q_EMIT disconnectCatched(getClientId()); });
}

bool MeterWindow::hasUnsavedRun() const
{
    return m_meter.isBusy() || !m_isSaved;
}

void MeterWindow::startRun()
{
    setActiveApplicationWindow(m_test);
    m_meter.start(m_settings.meterSettings());
}

void MeterWindow::openResult(const QString &path, const RunFile &file)
{
    m_result->refresh();
    m_result->showRun(path, file);
    setActiveApplicationWindow(m_result);
}

/// Only names that it knows: the file could hold anything.
void MeterWindow::applyColours()
{
    const bool isLight = m_settings.text(Settings::Theme) == u"light"_s;
    setColorTheme({isLight ? u"light"_s : u"dark"_s});
}

void MeterWindow::applyProperty(long id)
{
    if (id == Settings::Theme) {
        applyColours();
        for (QWidget *part : std::initializer_list<QWidget *> {
                 m_setup, m_test, m_result, m_linkPanel, m_logPanel, m_controlButtons}) {
            part->setStyleSheet(Look::sheet());
        }
    } else if (id == Settings::Language) {
        m_language.apply(m_settings.text(Settings::Language));
        setLanguage(m_settings.text(Settings::Language));
    }
}

void MeterWindow::showLink()
{
    const ControllerLink::State state = m_link.state();
    m_linkChip->setStatus(LinkPanel::stateText(state), LinkPanel::stateColour(state));
    setClientId(m_link.isUp() ? m_link.clientId() : -1);
    m_test->setCanStart(m_link.isUp());
    m_result->setCanUpload(m_link.isUp());
}

/// To the framework, and the mission control.
void MeterWindow::reportRun()
{
    const Run &run = m_meter.run();
    const bool isBusy = m_meter.isBusy();
    m_setup->setLocked(isBusy);
    setApplicationIndicator(isBusy);
    setApplicationStatus(isBusy ? tr("Measuring") : tr("Ready"));
    setApplicationProgress(qRound(m_meter.elapsed() * 10), run.settings.duration * 10L);
    const AppPassFail verdicts[] = {AppPassFail::None, AppPassFail::Pass, AppPassFail::Fail};
    setApplicationPassFail(verdicts[static_cast<int>(run.verdict())]);
}

void MeterWindow::updateText()
{
    setApplicationName(tr("Level meter"));
    setWindowTitle(tr("Level meter"));
    showLink();
    // The button is narrow, so that it covers nothing of the windows: it has no text.
    setMiniMcExpandButtonText(m_linkPanel, {});
    setMiniMcExpandButtonSize(m_linkPanel, {Look::fingerSize, Look::fingerSize});
}

void MeterWindow::resizeEvent(QResizeEvent *event)
{
    ClientGUIBase::resizeEvent(event);
    // In the free strip above the windows, where it is seen whatever is shown.
    m_linkChip->resize(200, Look::fingerSize);
    m_linkChip->move(width() - m_linkChip->width() - 20, 1);
}
