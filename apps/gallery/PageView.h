#pragma once

#include <QTimer>
#include <QWidget>

class Page;
class QLabel;
class QLayout;
class QListWidget;

/// A page as it is seen: the live widget, its state, its last signals and its recipe.
class PageView : public QWidget
{
    Q_OBJECT

public:
    /// @p page must outlive the view.
    explicit PageView(Page &page, QWidget *parent = nullptr);

    /// Shows the state as it is now; happens by itself a few times a second.
    void refresh();

private:
    QWidget *makeHead();
    QWidget *makeStage();
    QLayout *makeAside();
    QWidget *makeState();
    QWidget *makeSignals();
    QWidget *makeSource();
    void log(const QString &line);

    Page &m_page;
    QVector<QLabel *> m_values;
    QListWidget *m_signals = nullptr;
    int m_count = 0;
    QTimer m_timer;
};
