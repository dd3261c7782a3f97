#include "ThemesPage.h"

#include "../Controls.h"
#include "../Look.h"

#include <dialogs/FwButtonTabWidget.h>
#include <dialogs/QvexMessageBox.h>
#include <frame/ColorTheme.h>

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The colours that no palette has: verdicts and curves.
class Marks : public QWidget
{
public:
    explicit Marks(QWidget *parent)
        : QWidget(parent)
    {
        setMinimumSize(240, 120);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const ColorTheme &theme = ColorTheme::current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), theme.color("base"_L1));
        painter.setPen(theme.color("grid"_L1));
        for (int x = 0; x < width(); x += 24) {
            painter.drawLine(x, 0, x, height());
        }
        for (int i = 0; i < 4; ++i) {
            painter.setPen(QPen(theme.color(u"plot%1"_s.arg(i + 1)), 2));
            painter.drawPolyline(curve(i));
        }
        drawVerdicts(painter, theme);
    }

private:
    QPolygonF curve(int number) const
    {
        QPolygonF points;
        for (int x = 0; x < width(); x += 4) {
            points.append({qreal(x), height() * 0.6 + 30 * std::sin(x / 30.0 + number)});
        }
        return points;
    }
    void drawVerdicts(QPainter &painter, const ColorTheme &theme) const
    {
        int x = 8;
        for (const QString &verdict : {u"pass"_s, u"fail"_s, u"warning"_s, u"progress"_s}) {
            painter.setPen(theme.color(verdict));
            painter.drawText(x, 20, verdict);
            x += painter.fontMetrics().horizontalAdvance(verdict) + 16;
        }
    }
};

QListWidget *makeList()
{
    auto *list = new QListWidget;
    list->setAccessibleName(ThemesPage::tr("Ports"));
    list->setAlternatingRowColors(true);
    list->setMinimumHeight(120);
    for (int i = 1; i <= 4; ++i) {
        auto *item = new QListWidgetItem(ThemesPage::tr("Port %1").arg(i), list);
        item->setSizeHint({0, Look::fingerSize});
    }
    list->setCurrentRow(0);
    return list;
}

FwButtonTabWidget *makeTabs()
{
    auto *tabs = new FwButtonTabWidget;
    tabs->addTab(new QLabel(ThemesPage::tr("A text on the window")), ThemesPage::tr("Setup"));
    tabs->addTab(new QLabel(ThemesPage::tr("Results")), ThemesPage::tr("Results"));
    tabs->addTab(new QLabel, ThemesPage::tr("Off"));
    tabs->setTabEnabled(2, false);
    return tabs;
}

QPushButton *makeButton(const QString &text, const QString &sheet = {})
{
    auto *button = new QPushButton(text);
    button->setMinimumHeight(Look::fingerSize);
    button->setStyleSheet(sheet);
    return button;
}

QWidget *makeSampler(QWidget *parent)
{
    auto *sampler = new QWidget(parent);
    auto *entry = new QLineEdit;
    entry->setAccessibleName(ThemesPage::tr("Name"));
    entry->setPlaceholderText(ThemesPage::tr("Name of the test"));
    entry->setMinimumHeight(Look::fingerSize);
    auto *progress = new QProgressBar;
    progress->setValue(40);
    auto *off = makeButton(ThemesPage::tr("Disabled"));
    off->setEnabled(false);
    auto *grid = new QGridLayout(sampler);
    grid->addWidget(entry, 0, 0);
    grid->addWidget(progress, 0, 1);
    grid->addWidget(makeButton(ThemesPage::tr("Button")), 1, 0);
    grid->addWidget(off, 1, 1);
    grid->addWidget(makeButton(ThemesPage::tr("Palette in a style sheet"),
                               u"color: palette(highlighted-text); border-radius: 6px;"
                               "background: palette(highlight);"_s),
                    2, 0);
    grid->addWidget(new QCheckBox(ThemesPage::tr("Check box")), 2, 1);
    grid->addWidget(makeTabs(), 3, 0);
    grid->addWidget(makeList(), 3, 1, 2, 1);
    grid->addWidget(new Marks(sampler), 4, 0);
    return sampler;
}

} // namespace

ThemesPage::ThemesPage()
    : Page(u"themes"_s, tr("ColorTheme"),
           tr("The colours of an application, changed while it runs; here for this page only."))
{
}

QWidget *ThemesPage::recipe(QWidget *parent)
{
    m_sampler = makeSampler(parent);
    m_sampler->installEventFilter(this);
    watch(u"window"_s, [] { return ColorTheme::current().color(u"window").name(); });
    watch(u"windowText"_s, [] { return ColorTheme::current().color(u"windowText").name(); });
    watch(u"accent"_s, [] { return ColorTheme::current().color(u"accent").name(); });
    return m_sampler;
}

void ThemesPage::choose(const QStringList &colors)
{
    if (!m_isChosen) {
        m_before = QApplication::palette();
        m_isChosen = true;
    }
    ColorTheme::fromColors(colors, ColorTheme::current()).apply();
    note(u"applied"_s, colors.join(u", "_s));
}

bool ThemesPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_sampler && event->type() == QEvent::Hide && m_isChosen) {
        ColorTheme::light().apply();
        QApplication::setPalette(m_before);
        m_isChosen = false;
    }
    return Page::eventFilter(watched, event);
}

QWidget *ThemesPage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addButton(tr("Dark"), [this] { choose({u"dark"_s}); });
    controls->addButton(tr("Light"), [this] { choose({u"light"_s}); });
    controls->addButton(tr("Own colours"), [this] {
        choose({u"dark"_s, u"window=#10243a"_s, u"button=#1d3a58"_s, u"base=#0a1828"_s});
    });
    controls->addButton(tr("Dialog"), [this] { ask(); });
    return controls;
}

void ThemesPage::ask()
{
    auto *box = new QvexMessageBox(m_sampler);
    box->setWindowTitle(tr("Results"));
    box->setText(tr("Save the results before the test is closed?"));
    box->setStandardButtons(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    connect(box, &QDialog::finished, box, &QObject::deleteLater);
    box->open();
}

QVector<Page::Scene> ThemesPage::scenes()
{
    return {{{}, [] {}},
            {u"light"_s, [this] { choose({u"light"_s}); }},
            {u"dark"_s, [this] { choose({u"dark"_s}); }},
            {u"dialog"_s, [this] {
                 choose({u"light"_s});
                 ask();
                 choose({u"dark"_s});
             }}};
}
