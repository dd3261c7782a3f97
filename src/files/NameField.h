#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

/**
 * Where the name of a file to save is typed. Stands at the top of its dialog, as an on-screen
 * keyboard covers the lower part, and says beside the name what is wrong with it.
 */
class NameField : public QWidget
{
    Q_OBJECT

public:
    explicit NameField(QWidget *parent);

    QString name() const;
    void setName(const QString &name);
    void setSuffix(const QString &suffix);
    QString suffix() const { return m_suffix; }
    /** The name with its suffix; empty when it can't be one. */
    QString fileName() const;

Q_SIGNALS:
    void nameChanged();
    void committed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateText();
    void check();

    QLabel *m_label;
    QLineEdit *m_edit;
    QLabel *m_fault;
    QString m_suffix;
};
