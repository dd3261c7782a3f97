#pragma once

#include <QWidget>

#include <memory>

#include <VexExport.h>

/**
 * Shows the lines of FwLog as they come, the newest at the bottom; for a finger.
 *
 * The list stays at the bottom until it is scrolled up or paused. Lines are held while it is
 * paused, as many as FwLog keeps. Clearing empties the list only, not the log.
 */
class VEX_EXPORT FwLogView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool paused READ isPaused WRITE setPaused NOTIFY pausedChanged)

public:
    explicit FwLogView(QWidget *parent = nullptr);
    ~FwLogView() override;

    /** Shows lines from @p lowest on; debug, that is all, by default. */
    void setLevel(QtMsgType lowest);
    QtMsgType level() const;
    /** Shows lines of this category and those below it ("vex" has "vex.corba"); empty: all. */
    void setCategory(const QString &category);
    QString category() const;
    bool isPaused() const;

public Q_SLOTS:
    void setPaused(bool paused);
    void clear();

Q_SIGNALS:
    void pausedChanged(bool paused);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
