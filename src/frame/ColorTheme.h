#pragma once

#include <QAnyStringView>
#include <QColor>
#include <QPalette>
#include <QStringList>
#include <QVector>

#include <VexExport.h>

/**
 * The colours of an application: a value for each name of a fixed list.
 *
 * | name | what it is |
 * |---|---|
 * | window, windowText | the ground of windows and dialogs, and texts on it |
 * | base, alternateBase, text | the grounds of lists and entry lines, and texts on them |
 * | button, buttonText | push buttons |
 * | highlight, highlightedText | what is selected or pressed |
 * | panel, panelText | panels that slide over the window, and texts on them |
 * | toolTip, toolTipText | tool tips |
 * | disabledText | texts of what can't be used, on window, base, button and panel |
 * | link | links, on window, base and panel |
 * | accent, border | what stands out; lines around what can be touched |
 * | pass, fail, warning, progress | verdicts and progress, as texts and as marks, on window, base
 *   and panel |
 * | plot1 ... plot4, grid | curves and grid lines of diagrams, on base |
 *
 * In both themes that come with the library a text has a contrast of 4.5:1 or more on its ground,
 * and border, accent and the curves have 3:1 or more.
 *
 * The colours are set through the application's palette. Widgets with colours that no palette has
 * take them from current() when they paint, and in changeEvent() on QEvent::PaletteChange, which
 * each widget gets on every change, of these colours, too. The style has to be one that paints with
 * the palette: "Fusion", which the application sets (QApplication::setStyle()).
 *
 * Style sheets may name roles of the palette ("palette(highlight)") and follow. Links of a rich
 * text keep the colour that they had when the text was set.
 *
 * For the GUI thread only. Logging category: "vex.frame.theme".
 */
class VEX_EXPORT ColorTheme
{
public:
    /** dark(). */
    ColorTheme();

    static ColorTheme dark();
    static ColorTheme light();
    /**
     * @p base with other values for the colours that are named in @p colors: "window=#202428", in
     * any notation that QColor::fromString() knows but transparent ones. The words "dark" and
     * "light" stand for that theme instead of @p base, wherever they are in the list; of several
     * entries the last one holds. What is not understood is logged as a warning and ignored.
     */
    static ColorTheme fromColors(const QStringList &colors, const ColorTheme &base);
    /** The colours by their names, in the form that fromColors() takes. */
    QStringList toColors() const;

    /** The names of all colours, in the order of the table above. */
    static QStringList names();
    /** Invalid, and logged as a warning, for a name that is none of names(). */
    QColor color(QAnyStringView name) const;
    QPalette palette() const;

    /**
     * Makes this the look of the whole application: of what is visible at once, of what is hidden
     * before it is seen. Does nothing when it is already. Needs the QApplication.
     */
    void apply() const;
    /** What was applied last; before, that of the two themes which suits the palette. */
    static const ColorTheme &current();

    /** The contrast ratio of WCAG 2.1 of two opaque colours, 1 to 21. */
    static double contrast(const QColor &one, const QColor &other);

    bool operator==(const ColorTheme &other) const { return m_colors == other.m_colors; }
    bool operator!=(const ColorTheme &other) const { return !(*this == other); }

private:
    explicit ColorTheme(const QVector<QColor> &colors);

    QVector<QColor> m_colors; ///< as many as there are names, in their order
};
