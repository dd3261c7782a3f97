#include "FileActionBar.h"

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
    const std::pair<QString, QString> actions[ActionCount] {
        {u"refresh"_s, tr("List anew")}, {u"new_folder"_s, tr("New folder")},
        {u"rename"_s, tr("Rename")},     {u"copy"_s, tr("Copy")},
        {u"move"_s, tr("Move")},         {u"paste"_s, tr("Paste")},
        {u"delete"_s, tr("Delete")},
    };
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (int i = 0; i < ActionCount; ++i) {
        QToolButton *button =
            FilesTheme::toolButton(u"Action_"_s + actions[i].first, actions[i].first, this);
        FilesTheme::setName(button, actions[i].second);
        connect(button, &QToolButton::clicked, this,
                [this, i] { Q_EMIT triggered(static_cast<Action>(i)); });
        row->addWidget(button);
        m_buttons.append(button);
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
