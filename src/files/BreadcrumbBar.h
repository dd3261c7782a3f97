#pragma once

#include <QVector>
#include <QWidget>

class QToolButton;

/**
 * The names of a path, each of which leads to its folder. When there is no room for all, those in
 * front give way to one button that leads to the last of them.
 */
class BreadcrumbBar : public QWidget
{
    Q_OBJECT

public:
    explicit BreadcrumbBar(QWidget *parent);

    QString path() const { return m_path; }
    /** @p rootName is shown for "/". */
    void setPath(const QString &path, const QString &rootName);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void folderChosen(const QString &path);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QToolButton *makeButton(const QString &path, const QString &text);
    QString textOf(const QString &path) const;
    int widthOf(const QString &text) const;
    qsizetype firstShown(const QStringList &paths) const;
    void arrange();
    void clear();

    QString m_path;
    QString m_rootName;
    QVector<QToolButton *> m_buttons;
};
