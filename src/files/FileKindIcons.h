#pragma once

#include <QAbstractFileIconProvider>

#include <memory>

class QFileIconProvider;

/**
 * Icons of files by what can be told without looking at them: whether they are folders.
 *
 * What QFileSystemModel asks for each of its entries, while the GUI waits, is the type and an icon
 * of a file: one and the same for all, and none. iconOf() is for those that are seen.
 */
class FileKindIcons : public QAbstractFileIconProvider
{
public:
    FileKindIcons();
    ~FileKindIcons() override;

    QIcon icon(IconType type) const override;
    QIcon icon(const QFileInfo &info) const override;
    QString type(const QFileInfo &info) const override;

    /** Null without a QApplication. */
    QIcon iconOf(IconType type) const;

private:
    mutable std::unique_ptr<QFileIconProvider> m_icons; ///< made when first asked for
};
