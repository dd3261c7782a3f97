#include "ColorTheme.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QPointer>
#include <QToolTip>

#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcTheme, "vex.frame.theme", QtInfoMsg)

namespace {

struct Entry
{
    QLatin1StringView name;
    QRgb dark;
    QRgb light;
};

constexpr std::array table {
    Entry {"window"_L1, 0xff202428, 0xfff0f2f4},
    Entry {"windowText"_L1, 0xffeef1f4, 0xff101820},
    Entry {"base"_L1, 0xff15181b, 0xffffffff},
    Entry {"alternateBase"_L1, 0xff1c2024, 0xfff6f8fa},
    Entry {"text"_L1, 0xffeef1f4, 0xff101820},
    Entry {"button"_L1, 0xff292f36, 0xffe3e8ed},
    Entry {"buttonText"_L1, 0xfff2f5f7, 0xff101820},
    Entry {"highlight"_L1, 0xff4a9be0, 0xff1f66a8},
    Entry {"highlightedText"_L1, 0xff06121c, 0xffffffff},
    Entry {"panel"_L1, 0xff2b333b, 0xffe6ebef},
    Entry {"panelText"_L1, 0xfff2f5f7, 0xff101820},
    Entry {"toolTip"_L1, 0xff3a434c, 0xfffff8d6},
    Entry {"toolTipText"_L1, 0xfff2f5f7, 0xff101820},
    Entry {"disabledText"_L1, 0xffadb7c1, 0xff59636d},
    Entry {"link"_L1, 0xff7cc0ff, 0xff0b5ca8},
    Entry {"accent"_L1, 0xfff5b21a, 0xffa15c00},
    Entry {"border"_L1, 0xff8795a3, 0xff6b7783},
    Entry {"pass"_L1, 0xff5fd38a, 0xff0a6b34},
    Entry {"fail"_L1, 0xffff8a80, 0xffb3150f},
    Entry {"warning"_L1, 0xffffc247, 0xff7d4e00},
    Entry {"progress"_L1, 0xff6bb7ff, 0xff0b5ca8},
    Entry {"plot1"_L1, 0xffffd54f, 0xff1f66a8},
    Entry {"plot2"_L1, 0xff4fc3f7, 0xffb3471f},
    Entry {"plot3"_L1, 0xffff8a65, 0xff1f7a3d},
    Entry {"plot4"_L1, 0xff81e08a, 0xff7b3fa0},
    Entry {"grid"_L1, 0xff3a424a, 0xffc9d1d8},
};

QVector<QColor> colorsOf(QRgb Entry::*theme)
{
    QVector<QColor> colors;
    for (const Entry &entry : table) {
        colors.append(QColor(entry.*theme));
    }
    return colors;
}

qsizetype indexOf(QAnyStringView name)
{
    const auto found =
        std::find_if(table.begin(), table.end(), [name](const Entry &e) { return name == e.name; });
    return found == table.end() ? -1 : found - table.begin();
}

/// False, and the reason is logged, when @p entry is no "name=colour".
bool setColor(QVector<QColor> &colors, const QString &entry)
{
    const qsizetype sign = entry.indexOf(u'=');
    const QString name = entry.left(qMax<qsizetype>(sign, 0)).trimmed();
    const qsizetype index = indexOf(name);
    if (sign < 0 || index < 0) {
        qCWarning(lcTheme).noquote() << "Theme colour ignored, there is no such name:" << entry;
        return false;
    }
    // QColor complains itself, and in another category, about names that it doesn't know.
    const QString text = entry.mid(sign + 1).trimmed();
    const QColor color = QColor::isValidColor(text) ? QColor(text) : QColor();
    if (!color.isValid() || color.alpha() != 255) {
        qCWarning(lcTheme).noquote() << "Theme colour ignored, no opaque colour:" << entry;
        return false;
    }
    colors[index] = color;
    return true;
}

std::optional<ColorTheme> &applied()
{
    static std::optional<ColorTheme> theme;
    return theme;
}

/// One that hears of a change may delete another.
template<typename Action>
void forWidgets(Action &&action)
{
    const QWidgetList all = QApplication::allWidgets();
    const QVector<QPointer<QWidget>> widgets(all.begin(), all.end());
    for (const QPointer<QWidget> &widget : widgets) {
        if (widget) {
            action(*widget);
        }
    }
}

/// A style sheet has its "palette(...)" resolved once.
void resolveAgain()
{
    const auto usesPalette = [](const QString &sheet) { return sheet.contains("palette("_L1); };
    if (usesPalette(qApp->styleSheet())) {
        qApp->setStyleSheet(qApp->styleSheet());
    }
    forWidgets([&usesPalette](QWidget &widget) {
        if (usesPalette(widget.styleSheet())) {
            widget.setStyleSheet(widget.styleSheet());
        }
    });
}

/// Bevels, which the style makes of the ground of a button.
void setBevels(QPalette &palette, const QColor &button)
{
    palette.setColor(QPalette::Light, button.lighter(150));
    palette.setColor(QPalette::Midlight, button.lighter(120));
    palette.setColor(QPalette::Mid, button.darker(130));
    palette.setColor(QPalette::Dark, button.darker(160));
    palette.setColor(QPalette::Shadow, button.darker(300));
}

void tell(QWidget &widget, QEvent::Type what)
{
    QEvent event(what);
    QCoreApplication::sendEvent(&widget, &event);
}

void setApplicationPalette(const QPalette &palette)
{
    QApplication::setPalette(palette);
    // They would wait for the event loop, and who reads colours until then has some of each.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::ApplicationPaletteChange);
    // Windows hand the change down to their children, but not to those with a style sheet.
    forWidgets([](QWidget &widget) {
        if (widget.testAttribute(Qt::WA_StyleSheet) && !widget.isWindow()) {
            tell(widget, QEvent::ApplicationPaletteChange);
        }
    });
    resolveAgain();
}

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

} // namespace

ColorTheme::ColorTheme()
    : ColorTheme(colorsOf(&Entry::dark))
{
}

ColorTheme::ColorTheme(const QVector<QColor> &colors)
    : m_colors(colors)
{
}

ColorTheme ColorTheme::dark()
{
    return ColorTheme();
}

ColorTheme ColorTheme::light()
{
    return ColorTheme(colorsOf(&Entry::light));
}

ColorTheme ColorTheme::fromColors(const QStringList &colors, const ColorTheme &base)
{
    ColorTheme theme = base;
    QStringList entries;
    for (const QString &color : colors) {
        const QString entry = color.trimmed();
        if (entry == "dark"_L1 || entry == "light"_L1) {
            theme = entry == "dark"_L1 ? dark() : light();
        } else {
            entries.append(entry);
        }
    }
    for (const QString &entry : std::as_const(entries)) {
        setColor(theme.m_colors, entry);
    }
    return theme;
}

QStringList ColorTheme::toColors() const
{
    QStringList colors;
    for (size_t i = 0; i < table.size(); ++i) {
        colors.append(table[i].name + u'=' + m_colors.at(qsizetype(i)).name());
    }
    return colors;
}

QStringList ColorTheme::names()
{
    QStringList names;
    for (const Entry &entry : table) {
        names.append(entry.name);
    }
    return names;
}

QColor ColorTheme::color(QAnyStringView name) const
{
    const qsizetype index = indexOf(name);
    if (index < 0) {
        qCWarning(lcTheme).noquote() << "There is no theme colour" << name.toString();
        return {};
    }
    return m_colors.at(index);
}

QPalette ColorTheme::palette() const
{
    QPalette palette;
    setBevels(palette, color("button"_L1));
    palette.setColor(QPalette::Window, color("window"_L1));
    palette.setColor(QPalette::WindowText, color("windowText"_L1));
    palette.setColor(QPalette::Base, color("base"_L1));
    palette.setColor(QPalette::AlternateBase, color("alternateBase"_L1));
    palette.setColor(QPalette::Text, color("text"_L1));
    palette.setColor(QPalette::BrightText, color("accent"_L1));
    palette.setColor(QPalette::Button, color("button"_L1));
    palette.setColor(QPalette::ButtonText, color("buttonText"_L1));
    palette.setColor(QPalette::Highlight, color("highlight"_L1));
    palette.setColor(QPalette::HighlightedText, color("highlightedText"_L1));
    palette.setColor(QPalette::ToolTipBase, color("toolTip"_L1));
    palette.setColor(QPalette::ToolTipText, color("toolTipText"_L1));
    palette.setColor(QPalette::Link, color("link"_L1));
    palette.setColor(QPalette::LinkVisited, color("link"_L1));
    palette.setColor(QPalette::PlaceholderText, color("disabledText"_L1));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        palette.setColor(QPalette::Disabled, role, color("disabledText"_L1));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, color("button"_L1));
    return palette;
}

void ColorTheme::apply() const
{
    const QPalette old = QApplication::palette();
    const bool isNew = *this != current();
    applied() = *this;
    const QPalette colors = palette();
    if (colors != old) {
        QPalette tip = colors;
        tip.setColor(QPalette::Window, color("toolTip"_L1));
        tip.setColor(QPalette::WindowText, color("toolTipText"_L1));
        QToolTip::setPalette(tip);
        setApplicationPalette(colors);
    } else if (isNew) {
        forWidgets([](QWidget &widget) {
            tell(widget, QEvent::PaletteChange);
            widget.update();
        });
    }
}

const ColorTheme &ColorTheme::current()
{
    static const ColorTheme ofDark = dark();
    static const ColorTheme ofLight = light();
    if (applied()) {
        return *applied();
    }
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128 ? ofDark : ofLight;
}

double ColorTheme::contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return qMax(first, second) / qMin(first, second);
}
