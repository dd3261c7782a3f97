#pragma once

#include <QCoreApplication>
#include <QString>

#include "Run.h"

/// The words for what a run can be, in the language of the user.
class Wording
{
    Q_DECLARE_TR_FUNCTIONS(Wording)

public:
    static QString verdict(Verdict verdict);
    static QString ending(Run::Ending ending);
    /// The theme's colour of a verdict; empty for none.
    static QByteArray verdictColour(Verdict verdict);

    /// The cause alone of what the library says of a link: no names of errors, no address.
    static QString linkReason(const QString &reason);

    /// "-13.72 dBm"
    static QString level(double level);
    /// "1.2e-09", "0" without errors.
    static QString ratio(double ratio);
};
