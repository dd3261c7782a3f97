#include "PlainModel.h"

#include <QAbstractFileIconProvider>

using namespace Qt::StringLiterals;

namespace {

class NoIcons : public QAbstractFileIconProvider
{
public:
    QIcon icon(IconType) const override { return {}; }
    QIcon icon(const QFileInfo &) const override { return {}; }
    /// Rows without a type are not shown.
    QString type(const QFileInfo &) const override { return u"File"_s; }
};

} // namespace

PlainModel::PlainModel()
{
    // It is asked until the model is gone.
    static NoIcons icons;
    setIconProvider(&icons);
    setFilter(QDir::AllEntries | QDir::NoDotAndDotDot);
}
