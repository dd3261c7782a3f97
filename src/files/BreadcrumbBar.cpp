#include "BreadcrumbBar.h"

#include <QEvent>
#include <QToolButton>

#include "FileNames.h"
#include "FilePaths.h"
#include "FilesTheme.h"
#include "dialogs/DialogTheme.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int padding = 20;
constexpr int leastWidth = DialogTheme::touchTarget;
const auto mark = u"\u203a "_s; ///< before a name that has another in front

} // namespace

BreadcrumbBar::BreadcrumbBar(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Path"));
    QFont large = font();
    large.setPixelSize(DialogTheme::fontSize);
    setFont(large);
}

void BreadcrumbBar::setPath(const QString &path, const QString &rootName)
{
    if (path != m_path || rootName != m_rootName) {
        m_path = path;
        m_rootName = rootName;
        arrange();
    }
}

QSize BreadcrumbBar::sizeHint() const
{
    return {4 * leastWidth, leastWidth};
}

QSize BreadcrumbBar::minimumSizeHint() const
{
    return {2 * leastWidth, leastWidth};
}

void BreadcrumbBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void BreadcrumbBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Path"));
        arrange();
    }
}

QString BreadcrumbBar::textOf(const QString &path) const
{
    return path == "/"_L1 ? m_rootName : FilePaths::shownNameOf(path);
}

int BreadcrumbBar::widthOf(const QString &text) const
{
    QFont bold = font();
    bold.setBold(true);
    return qMax(leastWidth, QFontMetrics(bold).horizontalAdvance(text) + padding);
}

/// The last one is shown in any case, even if it has to be cut.
qsizetype BreadcrumbBar::firstShown(const QStringList &paths) const
{
    qsizetype first = paths.size() - 1;
    int room = width() - widthOf(mark + textOf(paths.constLast()));
    while (first > 0) {
        room -= widthOf(mark + textOf(paths[first - 1]));
        const int forDots = first > 1 ? leastWidth : 0;
        if (room < forDots) {
            break;
        }
        --first;
    }
    return first;
}

void BreadcrumbBar::clear()
{
    for (QToolButton *button : std::as_const(m_buttons)) {
        button->hide();
        button->deleteLater(); // a tap on it may be what led here
    }
    m_buttons.clear();
}

void BreadcrumbBar::arrange()
{
    clear();
    if (m_path.isEmpty()) {
        return;
    }
    const QStringList paths = FilePaths::ancestors(m_path);
    const qsizetype first = firstShown(paths);
    int x = 0;
    const auto add = [&](const QString &path, const QString &text) {
        QToolButton *button = makeButton(path, text);
        const int space = qMin(widthOf(text), width() - x);
        button->setText(FilePaths::buttonText(
            button->fontMetrics().elidedText(text, Qt::ElideMiddle, space - 16)));
        button->setGeometry(x, 0, space, leastWidth);
        x += space;
    };
    if (first > 0) {
        add(paths[first - 1], u"\u2026"_s);
    }
    for (qsizetype i = first; i < paths.size(); ++i) {
        add(paths[i], (i == first ? QString() : mark) + textOf(paths[i]));
    }
}

QToolButton *BreadcrumbBar::makeButton(const QString &path, const QString &text)
{
    auto *button = new QToolButton(this);
    button->setObjectName(u"Crumb_"_s + path);
    button->setAccessibleName(tr("Open %1").arg(FileNames::shown(path)));
    button->setText(FilePaths::buttonText(text));
    button->setFocusPolicy(Qt::TabFocus);
    QFont bold = font();
    bold.setBold(path == m_path);
    button->setFont(bold);
    connect(button, &QToolButton::clicked, this, [this, path] { Q_EMIT folderChosen(path); });
    m_buttons.append(button);
    button->show();
    return button;
}
