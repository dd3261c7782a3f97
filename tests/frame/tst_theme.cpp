#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTemporaryFile>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include <dialogs/QvexMessageBox.h>
#include <frame/AppHelpWidget.h>
#include <frame/AppMissionControlWidget.h>
#include <frame/ColorTheme.h>
#include <frame/FwLogView.h>
#include <input/QvexNumpadDlg.h>

#include "GuardedTest.h"

using namespace Qt::StringLiterals;

namespace {

/// Remembers the theme's colour of its last PaletteChange.
class Listener : public QWidget
{
public:
    using QWidget::QWidget;

    QVector<QColor> seen;

protected:
    void changeEvent(QEvent *event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) {
            seen.append(ColorTheme::current().color(u"plot1"));
        }
    }
};

/// What most of a widget's picture has.
QColor groundOf(QWidget *widget)
{
    const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return QColor(most.key());
}

bool isDark(const QColor &color)
{
    return color.lightness() < 100;
}

/// An application's window with some 400 widgets on it.
class FullWindow : public QWidget
{
public:
    FullWindow()
    {
        setObjectName(u"FwMainWindow"_s);
        resize(1280, 800);
        auto *grid = new QGridLayout(this);
        for (int i = 0; i < 200; ++i) {
            auto *button = new QPushButton(u"Button %1"_s.arg(i));
            if (i % 2 == 0) {
                button->setStyleSheet(u"QPushButton { border: 1px solid palette(highlight); }"_s);
            }
            grid->addWidget(button, i / 10, i % 10);
        }
        for (int i = 0; i < 200; ++i) {
            grid->addWidget(new QLabel(u"Label %1"_s.arg(i)), 20 + i / 20, i % 20);
        }
    }
};

} // namespace

class tst_theme : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void textsAreLegible_data();
    void textsAreLegible();
    void buttonsAreLegibleAsPainted();
    void takesColorsFromAList_data();
    void takesColorsFromAList();
    void widgetsHearOfEveryColor();
    void changesWhatIsOpenAndWhatIsHidden();
    void panelsAndTheirPagesFollow();
    void changesAFullWindowAtOnce();
};

void tst_theme::initTestCase()
{
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
}

void tst_theme::init()
{
    GuardedTest::init();
    messages().allow(u"This plugin does not support propagateSizeHints"_s);
}

void tst_theme::cleanup()
{
    ColorTheme::dark().apply();
    GuardedTest::cleanup();
}

void tst_theme::textsAreLegible_data()
{
    QTest::addColumn<QString>("theme");
    QTest::newRow("dark") << u"dark"_s;
    QTest::newRow("light") << u"light"_s;
}

void tst_theme::textsAreLegible()
{
    QFETCH(QString, theme);
    const ColorTheme colors = ColorTheme::fromColors({theme}, {});
    const QStringList grounds {u"window"_s, u"base"_s, u"alternateBase"_s, u"panel"_s};
    const QStringList withButton = grounds + QStringList {u"button"_s};
    const QVector<std::tuple<QStringList, QStringList, double>> pairs {
        {{u"windowText"_s, u"text"_s, u"panelText"_s}, grounds, 4.5},
        {{u"buttonText"_s}, {u"button"_s}, 4.5},
        {{u"highlightedText"_s}, {u"highlight"_s}, 4.5},
        {{u"toolTipText"_s}, {u"toolTip"_s}, 4.5},
        {{u"disabledText"_s}, withButton, 4.5},
        {{u"link"_s, u"pass"_s, u"fail"_s, u"warning"_s, u"progress"_s}, grounds, 4.5},
        {{u"border"_s, u"accent"_s}, withButton, 3},
        {{u"highlight"_s}, {u"window"_s, u"base"_s}, 3},
        {{u"plot1"_s, u"plot2"_s, u"plot3"_s, u"plot4"_s}, {u"base"_s}, 3},
    };
    for (const auto &[texts, on, least] : pairs) {
        for (const QString &text : texts) {
            for (const QString &ground : on) {
                const double is = ColorTheme::contrast(colors.color(text), colors.color(ground));
                QVERIFY2(is >= least, qPrintable(u"%1 on %2: %3"_s.arg(text, ground).arg(is)));
            }
        }
    }
    const QColor faint = colors.palette().color(QPalette::Disabled, QPalette::WindowText);
    QVERIFY(ColorTheme::contrast(faint, colors.color(u"windowText")) > 1.7);
}

/// The style makes a gradient of the button's colour.
void tst_theme::buttonsAreLegibleAsPainted()
{
    for (const ColorTheme &theme : {ColorTheme::dark(), ColorTheme::light()}) {
        theme.apply();
        QPushButton button;
        button.resize(120, 48);
        for (const bool enabled : {true, false}) {
            button.setEnabled(enabled);
            const QImage image = button.grab().toImage();
            const QColor text = theme.color(enabled ? u"buttonText" : u"disabledText");
            for (int y = 8; y < 40; ++y) {
                const double is = ColorTheme::contrast(text, image.pixelColor(20, y));
                QVERIFY2(is >= 4.5, qPrintable(u"%1 at %2: %3"_s.arg(text.name()).arg(y).arg(is)));
            }
        }
    }
}

void tst_theme::takesColorsFromAList_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QStringList>("changed"); // against the light theme
    QTest::addColumn<int>("complaints");
    const auto row = [](const char *name, const QStringList &list, const QStringList &changed,
                        int complaints) { QTest::newRow(name) << list << changed << complaints; };
    row("nothing", {}, {}, 0);
    row("colours", {u"window=#123456"_s, u" plot1 = red "_s},
        {u"window=#123456"_s, u"plot1=#ff0000"_s}, 0);
    row("the last one holds", {u"link=#111111"_s, u"link=#222222"_s}, {u"link=#222222"_s}, 0);
    row("the base behind", {u"link=#111111"_s, u"light"_s}, {u"link=#111111"_s}, 0);
    row("unknown", {u"wall=#111111"_s, u"Window=#111111"_s, u"=#111111"_s, u"window"_s, QString()},
        {}, 5);
    row("no colours",
        {u"window="_s, u"window=#12345"_s, u"window=reddish"_s, u"window=a=b"_s,
         u"window=transparent"_s, u"window=#80ffffff"_s},
        {}, 6);
}

void tst_theme::takesColorsFromAList()
{
    QFETCH(QStringList, list);
    QFETCH(QStringList, changed);
    QFETCH(int, complaints);
    static int heard;
    heard = 0;
    const auto count = [](QtMsgType, const QMessageLogContext &context, const QString &) {
        heard += qstrcmp(context.category, "vex.frame.theme") == 0 ? 1 : 1000;
    };
    const QtMessageHandler before = qInstallMessageHandler(count);
    const ColorTheme theme = ColorTheme::fromColors(list, ColorTheme::light());
    qInstallMessageHandler(before);
    QStringList differences;
    for (const QString &color : theme.toColors()) {
        if (!ColorTheme::light().toColors().contains(color)) {
            differences.append(color);
        }
    }
    QCOMPARE(differences, changed);
    QCOMPARE(heard, complaints);
    QVERIFY(ColorTheme::fromColors(theme.toColors(), ColorTheme::dark()) == theme);
}

void tst_theme::widgetsHearOfEveryColor()
{
    ColorTheme::dark().apply();
    QWidget window;
    Listener listener(&window);
    // One that is in the palette, and one that is in none.
    ColorTheme::fromColors({u"light"_s}, {}).apply();
    ColorTheme::fromColors({u"plot1=#123456"_s}, ColorTheme::light()).apply();
    ColorTheme::fromColors({u"plot1=#123456"_s}, ColorTheme::light()).apply();
    QCOMPARE(listener.seen,
             (QVector<QColor> {ColorTheme::light().color(u"plot1"), QColor(0x123456)}));
    QCOMPARE(listener.palette().color(QPalette::Window), ColorTheme::light().color(u"window"));
}

void tst_theme::changesWhatIsOpenAndWhatIsHidden()
{
    ColorTheme::light().apply();
    FullWindow window;
    window.show();
    QvexMessageBox open(&window);
    open.setText(u"Open"_s);
    open.addButton(QDialogButtonBox::Ok);
    open.open();
    QvexNumpadDlg hidden(&window);
    hidden.open();
    hidden.reject();
    FwLogView view(&window);
    QFrame styled(&window);
    styled.setStyleSheet(u"background: palette(base)"_s);
    styled.show();
    QVERIFY(!isDark(groundOf(&styled)));
    QPushButton *button = open.findChild<QPushButton *>();
    QVERIFY(!isDark(groundOf(button)));
    ColorTheme::dark().apply();
    QVERIFY(isDark(groundOf(button)));
    QVERIFY(isDark(groundOf(&open)));
    QVERIFY(isDark(groundOf(&styled)));
    open.reject();
    hidden.open();
    const auto keys = hidden.findChildren<QPushButton *>();
    for (QPushButton *key : keys) {
        if (key->isVisible() && key->isEnabled() && !key->isDefault()
            && key->objectName() != "NumpadOk"_L1) {
            QVERIFY2(isDark(groundOf(key)), qPrintable(key->objectName()));
        }
    }
    const auto entries = hidden.findChildren<QLineEdit *>();
    QVERIFY(!entries.isEmpty() && isDark(groundOf(entries.constFirst())));
    hidden.reject();
    view.resize(600, 300);
    view.show();
    QVERIFY(isDark(groundOf(&view)));
}

void tst_theme::panelsAndTheirPagesFollow()
{
    QTemporaryFile page(QDir::temp().filePath(u"XXXXXX.html"_s));
    QVERIFY(page.open());
    page.write("<a href='a.html'>a</a>" + QByteArray("<p>line</p>").repeated(200));
    page.close();
    ColorTheme::light().apply();
    QWidget window;
    window.resize(1280, 800);
    AppMissionControlWidget panel(&window);
    AppHelpWidget help(&window);
    panel.setApplicationPassFail(1);
    help.setDuration(0);
    window.show();
    help.showHelpWindow(page.fileName());
    const auto *browser = help.findChild<QTextBrowser *>();
    browser->verticalScrollBar()->setValue(100);

    ColorTheme::fromColors({u"panel=#102030"_s}, ColorTheme::dark()).apply();
    QCOMPARE(groundOf(&panel), QColor(0x102030));
    QCOMPARE(groundOf(panel.findChild<QWidget *>(u"McPassFail"_s)),
             ColorTheme::dark().color(u"pass"));
    const QTextFragment link = browser->document()->begin().begin().fragment();
    QCOMPARE(link.charFormat().foreground().color(), ColorTheme::dark().color(u"link"));
    QCOMPARE(browser->verticalScrollBar()->value(), 100);
}

void tst_theme::changesAFullWindowAtOnce()
{
    FullWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    ColorTheme::light().apply();
    window.grab();
    QElapsedTimer timer;
    timer.start();
    ColorTheme::dark().apply();
    const qint64 applied = timer.elapsed();
    window.repaint();
    const qint64 painted = timer.elapsed();
    qInfo("a theme change takes %lld ms, with painting %lld ms", applied, painted);
    QVERIFY(painted < 1000); // a machine that does something else besides
    QVERIFY(isDark(groundOf(&window)));
}

QTEST_MAIN(tst_theme)
#include "tst_theme.moc"
