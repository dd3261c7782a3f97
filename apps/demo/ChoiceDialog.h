#pragma once

#include <dialogs/QvexDialog.h>

class QListWidget;

/// Lets one of several things be chosen by a tap.
class ChoiceDialog : public QvexDialog
{
    Q_OBJECT

public:
    /// @return the index of what was chosen; -1 when nothing was.
    static int choose(QWidget *parent, const QString &title, const QStringList &choices,
                      int current);

private:
    ChoiceDialog(QWidget *parent, const QStringList &choices, int current);

    QListWidget *m_list;
};
