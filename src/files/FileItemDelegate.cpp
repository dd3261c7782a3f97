#include "FileItemDelegate.h"

#include <QIcon>
#include <QLineEdit>
#include <QPainter>

#include "FileNames.h"
#include "FilesTheme.h"
#include "QvexFileModel.h"
#include "dialogs/DialogTheme.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int textMargin = 8;

bool isDir(const QModelIndex &index)
{
    return index.data(QvexFileModel::IsDirRole).toBool();
}

bool isSelected(const QStyleOptionViewItem &option)
{
    return option.state.testFlag(QStyle::State_Selected);
}

QColor inkOf(const QStyleOptionViewItem &option)
{
    return isSelected(option) ? DialogTheme::inkOn(option.palette.color(QPalette::Highlight))
                              : option.palette.color(QPalette::Text);
}

QRect nameRect(const QRect &cell)
{
    return cell.adjusted(FilesTheme::tickWidth + FilesTheme::entryIcon + textMargin, 0, -textMargin,
                         0);
}

QRect boxRect(const QRect &cell)
{
    QRect box(0, 0, FilesTheme::tickBox, FilesTheme::tickBox);
    box.moveCenter({cell.left() + FilesTheme::tickWidth / 2, cell.center().y()});
    return box;
}

void paintTick(QPainter *painter, const QRect &box, const QColor &ink, bool ticked)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(ink, 2));
    painter->drawRoundedRect(box.adjusted(1, 1, -1, -1), 4, 4);
    if (ticked) {
        painter->setPen(QPen(ink, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF corner = box.topLeft();
        painter->drawPolyline(
            QPolygonF {corner + QPointF(7, 13), corner + QPointF(12, 18), corner + QPointF(20, 8)});
    }
    painter->restore();
}

void paintText(QPainter *painter, const QRect &rect, const QString &text, Qt::Alignment align)
{
    const QString shown = painter->fontMetrics().elidedText(text, Qt::ElideMiddle, rect.width());
    painter->drawText(rect, int(align | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

void paintName(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QRect cell = option.rect;
    const QColor faint =
        DialogTheme::mixed(inkOf(option), option.palette.color(QPalette::Base), 0.6);
    paintTick(painter, boxRect(cell), isSelected(option) ? inkOf(option) : faint,
              isSelected(option));
    QRect icon(0, 0, FilesTheme::entryIcon, FilesTheme::entryIcon);
    icon.moveCenter(
        {cell.left() + FilesTheme::tickWidth + FilesTheme::entryIcon / 2, cell.center().y()});
    FilesTheme::icon(isDir(index) ? u"folder"_s : u"file"_s).paint(painter, icon);
    const QString name = index.data(QvexFileModel::FileNameRole).toString();
    paintText(painter, nameRect(cell), FileNames::shown(name), Qt::AlignLeft);
}

void paintGround(QPainter *painter, const QStyleOptionViewItem &option)
{
    const QPalette &palette = option.palette;
    if (isSelected(option)) {
        painter->fillRect(option.rect, palette.color(QPalette::Highlight));
    }
    const QColor line =
        DialogTheme::mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.15);
    painter->fillRect(QRect(option.rect.bottomLeft(), option.rect.bottomRight()), line);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        const QRect mark(option.rect.left(), option.rect.top() + 4, 4, option.rect.height() - 8);
        painter->fillRect(mark, inkOf(option));
    }
}

} // namespace

FileItemDelegate::FileItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

void FileItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    painter->save();
    painter->setFont(option.font);
    paintGround(painter, option);
    painter->setPen(inkOf(option));
    if (index.column() == QvexFileModel::NameColumn) {
        paintName(painter, option, index);
    } else {
        const bool isSize = index.column() == QvexFileModel::SizeColumn;
        paintText(painter, option.rect.adjusted(textMargin, 0, -textMargin, 0),
                  index.data().toString(), isSize ? Qt::AlignRight : Qt::AlignLeft);
    }
    painter->restore();
}

QSize FileItemDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {FilesTheme::rowHeight, FilesTheme::rowHeight};
}

QWidget *FileItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &) const
{
    auto *editor = new QLineEdit(parent);
    editor->setObjectName(u"RenameEdit"_s);
    editor->setAccessibleName(tr("New name"));
    return editor;
}

void FileItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString name = index.data(QvexFileModel::FileNameRole).toString();
    const qsizetype dot = isDir(index) ? -1 : name.lastIndexOf(u'.');
    auto *field = static_cast<QLineEdit *>(editor);
    if (field->isModified()) {
        return; // the file's line has changed under the typing hand
    }
    field->setText(name);
    field->setSelection(0, int(dot > 0 ? dot : name.size()));
}

void FileItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                    const QModelIndex &index) const
{
    const QString name = static_cast<QLineEdit *>(editor)->text();
    if (name != index.data(QvexFileModel::FileNameRole).toString()) {
        Q_EMIT renamed(index, name);
    }
}

void FileItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &) const
{
    editor->setGeometry(nameRect(option.rect).adjusted(-textMargin, 2, textMargin, -2));
}
