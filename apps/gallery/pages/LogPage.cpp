#include "LogPage.h"

#include "../Controls.h"

#include <frame/FwLog.h>

#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcLink, "gallery.link")
Q_LOGGING_CATEGORY(lcTest, "gallery.test")

} // namespace

LogPage::LogPage()
    : Page(u"log"_s, tr("FwLog, FwLogView"),
           tr("The framework log: to the standard error output, a file, and a list on the screen."))
{
}

LogPage::~LogPage()
{
    FwLog::instance().stop();
}

QWidget *LogPage::recipe(QWidget *parent)
{
    FwLog::Options options;
    options.filePath = m_directory.filePath(u"gallery.log"_s);
    options.standardError = false;
    FwLog::instance().start(options);
    FwLog::instance().setLevel(u"gallery.*"_s, QtDebugMsg);

    m_view = new FwLogView(parent);
    m_view->setCategory(u"gallery"_s);
    connect(m_view, &FwLogView::pausedChanged, this,
            [this](bool paused) { note(u"pausedChanged"_s, paused); });
    watch(u"newestLine()"_s, [] { return FwLog::instance().newestLine(); });
    watch(u"droppedLines()"_s, [] { return FwLog::instance().droppedLines(); });
    watch(u"isPaused()"_s, [this] { return m_view->isPaused(); });
    return m_view;
}

QWidget *LogPage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addButton(tr("Run a test"), [this] { startTest(); });
    controls->addButton(tr("A thousand lines"), [] {
        for (int i = 1; i <= 1000; ++i) {
            qCInfo(lcTest) << "Point" << i << "of 1000";
        }
    });
    return controls;
}

void LogPage::startTest()
{
    ++m_tests;
    qCInfo(lcLink) << "Connected to the controller";
    qCInfo(lcTest) << "Test" << m_tests << "started";
    qCDebug(lcTest) << "Wavelength 1550 nm, range 20 km";
    qCWarning(lcTest) << "The loss is near its limit: 0.48 dB of 0.50 dB";
    qCCritical(lcLink) << "The controller does not answer";
    qCInfo(lcTest) << "Test" << m_tests << "finished";
}

QVector<Page::Scene> LogPage::scenes()
{
    const auto run = [this] {
        m_view->setLevel(QtDebugMsg);
        startTest();
    };
    const auto filter = [this] {
        startTest();
        m_view->setLevel(QtWarningMsg);
    };
    return {{{}, run, 400}, {u"warnings"_s, filter, 400}};
}
