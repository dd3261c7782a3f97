#include "VerdictSign.h"

#include <dialogs/DialogTheme.h>

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include "ColorTheme.h"
#include "PanelLook.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Sign = 24;
constexpr int Gap = 10;
constexpr int Height = 40;

QColor groundOf(AppPassFail verdict)
{
    const ColorTheme &theme = ColorTheme::current();
    switch (verdict) {
    case AppPassFail::Pass:
        return theme.color("pass"_L1);
    case AppPassFail::Fail:
        return theme.color("fail"_L1);
    case AppPassFail::Summary:
        return theme.color("progress"_L1);
    case AppPassFail::None:
        break;
    }
    return Qt::transparent;
}

/// Around the origin, 24 by 24 at most.
QPainterPath signOf(AppPassFail verdict)
{
    QPainterPath path;
    const auto line = [&path](QPointF from, QPointF to) {
        path.moveTo(from);
        path.lineTo(to);
    };
    switch (verdict) {
    case AppPassFail::Pass:
        line({-9, 1}, {-3, 7});
        line({-3, 7}, {9, -7});
        break;
    case AppPassFail::Fail:
        line({-7, -7}, {7, 7});
        line({-7, 7}, {7, -7});
        break;
    case AppPassFail::Summary:
        line({-9, -7}, {9, -7});
        line({-9, 0}, {9, 0});
        line({-9, 7}, {3, 7});
        break;
    case AppPassFail::None:
        line({-7, 0}, {7, 0});
        break;
    }
    return path;
}

} // namespace

VerdictSign::VerdictSign(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFont(PanelLook::font(font(), DialogTheme::messageFontSize, true));
    updateText();
}

void VerdictSign::setVerdict(int verdict)
{
    const bool isKnown = verdict >= int(AppPassFail::None) && verdict <= int(AppPassFail::Summary);
    m_verdict = isKnown ? AppPassFail(verdict) : AppPassFail::None;
    updateText();
}

void VerdictSign::setSubject(const QString &subject)
{
    m_subject = subject;
    updateText();
}

QString VerdictSign::text() const
{
    QString word = tr("No result");
    if (m_verdict == AppPassFail::Pass) {
        word = tr("Pass");
    } else if (m_verdict == AppPassFail::Fail) {
        word = tr("Fail");
    } else if (m_verdict == AppPassFail::Summary) {
        word = tr("See results");
    }
    return m_subject.isEmpty() ? word : tr("%1: %2", "subject and verdict").arg(m_subject, word);
}

void VerdictSign::updateText()
{
    setAccessibleName(text());
    updateGeometry();
    update();
}

QSize VerdictSign::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 + Sign + 3 * Gap, Height};
}

void VerdictSign::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange) {
        updateText();
    }
}

void VerdictSign::paintEvent(QPaintEvent *)
{
    const bool isNone = m_verdict == AppPassFail::None;
    const QColor ground = groundOf(m_verdict);
    const QColor ink = isNone ? palette().color(QPalette::Active, QPalette::WindowText)
                              : DialogTheme::inkOn(ground);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(isNone ? QPen(DialogTheme::outline(palette()), 1) : QPen(Qt::NoPen));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);

    const auto visual = [this](const QRect &place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    painter.setPen(QPen(ink, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QRectF sign = visual({Gap, 0, Sign, height()});
    painter.drawPath(signOf(m_verdict).translated(sign.center()));
    painter.drawText(visual(rect().adjusted(Sign + 2 * Gap, 0, -Gap, 0)),
                     int(Qt::AlignVCenter | Qt::AlignLeading), text());
}
