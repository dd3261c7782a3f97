#pragma once

#include <QFrame>

class QLabel;

/// A figure, large, below its name.
class FigureTile : public QFrame
{
    Q_OBJECT

public:
    explicit FigureTile(const QString &objectName, QWidget *parent = nullptr);

    void setCaption(const QString &caption);
    void setValue(const QString &value);
    QString value() const;
    /// Shows the value in the colour of a failure.
    void setFailed(bool failed);

protected:
    void changeEvent(QEvent *event) override;

private:
    void setColours();

    QLabel *m_caption;
    QLabel *m_value;
    bool m_failed = false;
};
