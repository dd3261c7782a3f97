#include "Wording.h"

using namespace Qt::StringLiterals;

QString Wording::verdict(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Pass:
        return tr("PASS");
    case Verdict::Fail:
        return tr("FAIL");
    default:
        return tr("No verdict");
    }
}

QString Wording::ending(Run::Ending ending)
{
    switch (ending) {
    case Run::Ending::Complete:
        return tr("Complete");
    case Run::Ending::Stopped:
        return tr("Stopped");
    case Run::Ending::EndedByInstrument:
        return tr("Ended by the instrument");
    default:
        return tr("Not started");
    }
}

QByteArray Wording::verdictColour(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Pass:
        return "pass";
    case Verdict::Fail:
        return "fail";
    default:
        return {};
    }
}

QString Wording::level(double level)
{
    return u"%1 dBm"_s.arg(level, 0, 'f', 2);
}

QString Wording::ratio(double ratio)
{
    return ratio > 0 ? QString::number(ratio, 'e', 2) : u"0"_s;
}
