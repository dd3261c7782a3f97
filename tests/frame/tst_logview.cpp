#include <QComboBox>
#include <QListView>
#include <QLoggingCategory>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <frame/FwLog.h>
#include <frame/FwLogView.h>

#include "GuardedTest.h"

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcRoot, "view")
Q_LOGGING_CATEGORY(lcChild, "view.child")
Q_LOGGING_CATEGORY(lcOther, "viewer")

constexpr int kept = 50;

} // namespace

class tst_logview : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsWhatPassesItsFilters();
    void holdsTheNewestLines();
    void waitsWhilePaused();
    void staysWhereItWasScrolledTo();
    void fitsAFinger();

private:
    QString shown() const;
    template<typename Widget>
    Widget *find(const QString &name) const
    {
        return m_view->findChild<Widget *>(name);
    }

    std::unique_ptr<FwLogView> m_view;
};

void tst_logview::init()
{
    GuardedTest::init();
    messages().allow(u"This plugin does not support propagateSizeHints"_s);
    FwLog::Options options;
    options.standardError = false;
    options.shownLines = kept;
    FwLog::instance().start(options);
    m_view = std::make_unique<FwLogView>();
    m_view->setCategory(u"view"_s); // not what the platform has to say
    m_view->resize(700, 400);
    m_view->show();
}

void tst_logview::cleanup()
{
    m_view.reset();
    FwLog::instance().stop();
    GuardedTest::cleanup();
}

/// The last words of the lines.
QString tst_logview::shown() const
{
    const QAbstractItemModel *model = find<QListView>(u"LogLines"_s)->model();
    QStringList words;
    for (int row = 0; row < model->rowCount(); ++row) {
        words += model->index(row, 0).data().toString().section(u' ', -1);
    }
    return words.join(u' ');
}

void tst_logview::showsWhatPassesItsFilters()
{
    qCWarning(lcRoot) << 1;
    qCInfo(lcChild) << 2;
    qCWarning(lcOther) << 3;
    qCCritical(lcChild) << 4;
    QTRY_COMPARE(shown(), u"1 2 4"_s);
    m_view->setLevel(QtWarningMsg);
    QCOMPARE(shown(), u"1 4"_s);
    auto *categories = find<QComboBox>(u"LogCategory"_s);
    categories->setCurrentIndex(categories->findText(u"viewer"_s));
    QCOMPARE(shown(), u"3"_s);
    qCInfo(lcOther) << 5;
    qCCritical(lcOther) << 6;
    QTRY_COMPARE(shown(), u"3 6"_s);
    find<QPushButton>(u"LogClear"_s)->click();
    m_view->setLevel(QtDebugMsg);
    QCOMPARE(shown(), QString());
}

void tst_logview::holdsTheNewestLines()
{
    for (int i = 0; i < 6000; ++i) {
        qCWarning(lcRoot) << i;
        if (i % kept == 0) {
            QVERIFY(FwLog::instance().flush());
            m_view->hide(), m_view->show(); // takes at once what is there
        }
    }
    QTRY_VERIFY(shown().endsWith(u" 5998 5999"_s));
    QVERIFY(find<QListView>(u"LogLines"_s)->model()->rowCount() <= 5000);
}

void tst_logview::waitsWhilePaused()
{
    QSignalSpy spy(m_view.get(), &FwLogView::pausedChanged);
    auto *pause = find<QPushButton>(u"LogPause"_s);
    pause->click();
    qCWarning(lcRoot) << 1;
    QVERIFY(FwLog::instance().flush());
    m_view->hide(), m_view->show();
    QCOMPARE(shown(), QString());
    pause->click();
    QCOMPARE(shown(), u"1"_s);
    QCOMPARE(spy.count(), 2);
}

void tst_logview::staysWhereItWasScrolledTo()
{
    const auto log = [this](int count) {
        for (int i = 0; i < count; ++i) {
            qCWarning(lcRoot) << i;
        }
        QTRY_VERIFY(FwLog::instance().flush() && shown().endsWith(QString::number(count - 1)));
    };
    QScrollBar *bar = find<QListView>(u"LogLines"_s)->verticalScrollBar();
    log(40);
    QTRY_VERIFY(bar->maximum() > 0 && bar->value() == bar->maximum());
    bar->setValue(10);
    log(45);
    QCOMPARE(bar->value(), 10);
}

void tst_logview::fitsAFinger()
{
    const QList<QWidget *> controls {
        find<QComboBox>(u"LogLevel"_s), find<QComboBox>(u"LogCategory"_s),
        find<QPushButton>(u"LogPause"_s), find<QPushButton>(u"LogClear"_s)};
    for (const QWidget *control : controls) {
        QVERIFY(control->height() >= 48 && control->width() >= 48);
    }
    auto *levels = find<QComboBox>(u"LogLevel"_s);
    levels->showPopup();
    QVERIFY(levels->view()->sizeHintForRow(0) >= 48);
    levels->hidePopup();
}

QTEST_MAIN(tst_logview)
#include "tst_logview.moc"
