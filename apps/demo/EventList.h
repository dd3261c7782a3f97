#pragma once

#include <QListWidget>

#include "Run.h"

/// The events of a run, newest last; scrolled by a finger.
class EventList : public QListWidget
{
    Q_OBJECT

public:
    explicit EventList(QWidget *parent = nullptr);

    void setEvents(const QVector<RunEvent> &events);
    void addEvent(const RunEvent &event);

protected:
    void changeEvent(QEvent *event) override;

private:
    void colourItem(QListWidgetItem *item);
};
