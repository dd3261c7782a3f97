#include "Recipe.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

QString recipeOf(const QString &className)
{
    QFile file(u":/gallery/%1.cpp"_s.arg(className));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    // The code's layout ends a function with the first brace that starts a line.
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    const auto first = lines.indexOf(QRegularExpression(u".*\\b%1::recipe\\(.*"_s.arg(className)));
    const auto last = lines.indexOf(u"}"_s, qMax(first, 0));
    return first < 0 ? QString() : lines.mid(first, last - first + 1).join(u'\n');
}
