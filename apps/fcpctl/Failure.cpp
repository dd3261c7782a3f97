#include "Failure.h"

#include "Text.h"

using namespace Qt::StringLiterals;

Failure fileFailure(const QString &path, const QString &reason)
{
    return {Exit::Failed, printable(path) + u": "_s + reason};
}
