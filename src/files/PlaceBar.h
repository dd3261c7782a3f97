#pragma once

#include <QVector>
#include <QWidget>

#include <optional>

#include "FilePlace.h"

class QBoxLayout;
class QToolButton;

/** A button for each place, below one another or side by side; the shown one stays down. */
class PlaceBar : public QWidget
{
    Q_OBJECT

public:
    PlaceBar(Qt::Orientation orientation, QWidget *parent);

    QVector<FilePlace> places() const { return m_places; }
    void setPlaces(const QVector<FilePlace> &places);
    void setCurrent(const FilePlace &place);

Q_SIGNALS:
    void placeChosen(const FilePlace &place);

private:
    QToolButton *makeButton(const FilePlace &place);
    void showCurrent();

    const Qt::Orientation m_orientation;
    QBoxLayout *m_layout;
    QVector<FilePlace> m_places;
    QVector<QToolButton *> m_buttons;
    std::optional<FilePlace> m_current;
};
