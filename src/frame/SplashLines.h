#pragma once

#include <QPlainTextEdit>
#include <QStringList>

#include "VexExport.h"

/**
 * What an application tells while it starts: one line below the other, the last one in view. Errors
 * are marked by a sign and by colour. The oldest of more than 1000 lines go.
 */
class VEX_EXPORT SplashLines : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SplashLines(QWidget *parent = nullptr);

public Q_SLOTS:
    void addLine(const QString &line, bool error = false);
    void addLines(const QStringList &lines);

protected:
    void changeEvent(QEvent *event) override;

private:
    void colourErrors(int first);
};
