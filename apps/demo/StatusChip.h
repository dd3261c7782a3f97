#pragma once

#include <QAbstractButton>

/**
 * A word on a ground of its meaning's colour: the link, a verdict. Can be tapped if somebody has
 * connected clicked().
 */
class StatusChip : public QAbstractButton
{
    Q_OBJECT

public:
    explicit StatusChip(QWidget *parent = nullptr);

    /// @p colorName is one of the theme's names; empty for nothing in particular.
    void setStatus(const QString &text, const QByteArray &colorName);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QByteArray m_colorName;
};
