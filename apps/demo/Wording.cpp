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

QString Wording::linkReason(const QString &reason)
{
    // "the link to HOST is lost: CAUSE; what follows of it (NAMES OF ERRORS)"
    const QString cause = reason.section(u" ("_s, 0, 0).section(u": "_s, -1).section(u';', 0, 0);
    const struct
    {
        QString known;
        QString sentence;
    } sentences[] = {
        {u"no answer within the time-out"_s, tr("The instrument did not answer in time.")},
        {u"the connection broke during a call"_s, tr("The connection broke.")},
        {u"nothing answers at that address"_s, tr("Nothing answers at that address.")},
        {u"the connection was closed"_s, tr("The connection was closed.")},
        {u"there is no controller at that address"_s, tr("There is no instrument there.")},
    };
    for (const auto &sentence : sentences) {
        if (cause == sentence.known) {
            return sentence.sentence;
        }
    }
    return cause.isEmpty() ? cause : cause.at(0).toUpper() + cause.mid(1);
}

QString Wording::level(double level)
{
    return u"%1 dBm"_s.arg(level, 0, 'f', 2);
}

QString Wording::ratio(double ratio)
{
    return ratio > 0 ? QString::number(ratio, 'e', 2) : u"0"_s;
}
