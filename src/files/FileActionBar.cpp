#include "FileActionBar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

#include "FilesTheme.h"
#include "dialogs/DialogTheme.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int buttonWidth = DialogTheme::touchTarget + 4;

} // namespace

FileActionBar::FileActionBar(QWidget *parent)
    : QWidget(parent)
{
    const QString icons[ActionCount] {u"refresh"_s, u"new_folder"_s, u"rename"_s, u"copy"_s,
                                      u"move"_s,    u"paste"_s,      u"delete"_s};
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (int i = 0; i < ActionCount; ++i) {
        QToolButton *button = FilesTheme::toolButton(u"Action_"_s + icons[i], icons[i], this);
        connect(button, &QToolButton::clicked, this,
                [this, i] { Q_EMIT triggered(static_cast<Action>(i)); });
        row->addWidget(button);
        m_buttons.append(button);
    }
    updateText();
}

void FileActionBar::updateText()
{
    const QString names[ActionCount] {tr("List anew"), tr("New folder"), tr("Rename"), tr("Copy"),
                                      tr("Move"),      tr("Paste"),      tr("Delete")};
    for (int i = 0; i < ActionCount; ++i) {
        FilesTheme::setName(m_buttons[i], names[i]);
    }
}

void FileActionBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateText();
    }
}

void FileActionBar::setActionEnabled(Action action, bool enabled)
{
    m_buttons[action]->setEnabled(enabled);
}

QSize FileActionBar::minimumSizeHint() const
{
    return {(ActionCount - 1) * buttonWidth, buttonWidth};
}

void FileActionBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_buttons[Refresh]->setVisible(width() >= ActionCount * buttonWidth);
}
