#pragma once

#include <QScrollArea>

class QLabel;

/// The texts of a message box. They wrap, and scroll where there is too little room for them.
class MessageText : public QScrollArea
{
    Q_OBJECT

public:
    explicit MessageText(QWidget *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    QString informativeText() const { return m_informativeText; }
    void setInformativeText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateWidth();

    QString m_text;
    QString m_informativeText;
    QLabel *m_label = nullptr;
    QLabel *m_informativeLabel = nullptr;
    int m_width = 0; ///< that the texts would like to have
};
