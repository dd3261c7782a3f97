#pragma once

#include <QIcon>
#include <QWidget>

#include <memory>

#include "VexExport.h"

class TabButton;

/**
 * A stack of pages with a row of TabButtons on top.
 *
 * Tabs that don't fit beside one another are reached by buttons at the ends of the row; no tab is
 * ever shown in part. From a keyboard the arrow keys, Home and End change the page. The page of a
 * disabled tab is disabled, too, and can't be chosen by the user.
 */
class VEX_EXPORT FwButtonTabWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)

public:
    explicit FwButtonTabWidget(QWidget *parent = nullptr);
    ~FwButtonTabWidget() override;

    /** Takes ownership of @p page. @return Its index. The first tab becomes the current one. */
    int addTab(QWidget *page, const QString &text);
    int addTab(QWidget *page, const QIcon &icon, const QString &text);
    /** At the end if @p index is out of range. */
    int insertTab(int index, QWidget *page, const QIcon &icon, const QString &text);
    /**
     * Hides the page but doesn't delete it. A page that is deleted or gets another parent takes its
     * tab along.
     */
    void removeTab(int index);

    int count() const;
    /** -1 without tabs. */
    int currentIndex() const;
    QWidget *currentWidget() const;
    /** Null if @p index is out of range, as for tabButton(). */
    QWidget *widget(int index) const;
    /** -1 if @p page is not one of the pages. */
    int indexOf(const QWidget *page) const;
    TabButton *tabButton(int index) const;

    QString tabText(int index) const;
    /** Sets the text of a tab. Does nothing if @p index is out of range; so do the others. */
    void UpdateText(int index, const QString &text);
    void setTabIcon(int index, const QIcon &icon);
    bool isTabEnabled(int index) const;
    /** When the current tab is disabled, the next one that is not becomes the current one. */
    void setTabEnabled(int index, bool enabled);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /** Also to a disabled tab. */
    void setCurrentIndex(int index);

Q_SIGNALS:
    /** The page shown is another one; @p index is -1 when the last is gone. */
    void currentChanged(int index);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
