#pragma once

#include <QDir>
#include <QObject>
#include <QPixmap>
#include <QPointer>

#include "Page.h"

class GalleryWindow;

/**
 * Writes pictures of the gallery's pages: the window with everything that lies over it, put
 * together here because the platform without a display has no screen to be photographed.
 */
class Grabber : public QObject
{
    Q_OBJECT

public:
    /// Pictures are named PAGE[-SCENE]SUFFIX.png. @p window must outlive the grabber.
    Grabber(GalleryWindow &window, const QDir &directory, const QString &suffix);

    /// Grabs every scene of a page; an error in words, empty on success.
    [[nodiscard]] QString grabPage(int index);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void play(const Page::Scene &scene);
    QPixmap picture() const;
    QString save(const QPixmap &picture, const QString &name) const;

    GalleryWindow &m_window;
    const QDir m_directory;
    const QString m_suffix;
    QVector<QPointer<QWidget>> m_above; ///< windows over the gallery's, the top one last
    QPixmap m_picture;
};
