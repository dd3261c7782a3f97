// What happens on the instrument and to the link: watch.

#include "CommandLine.h"
#include "Interrupt.h"
#include "Output.h"
#include "Text.h"

#include <corba/AppFcpCORBAImpl.h>
#include <corba/VexLinkSupervisor.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QJsonDocument>
#include <QMetaEnum>
#include <QSocketNotifier>

using namespace Qt::StringLiterals;

namespace {

QString eventName(int event)
{
    switch (event) {
    case TEST_STATUS:
        return u"TEST_STATUS"_s;
    case MODULE_STATUS:
        return u"MODULE_STATUS"_s;
    case RESOURCE_STATUS:
        return u"RESOURCE_STATUS"_s;
    case CLIENT_STATUS:
        return u"CLIENT_STATUS"_s;
    default:
        return QString::number(event);
    }
}

/// Writes one line for each thing that happened, at once. Ends the event loop when it can't.
class Journal
{
public:
    explicit Journal(bool json)
        : m_json(json)
    {
    }

    void event(int event)
    {
        const QString name = eventName(event);
        write(u"event"_s, {{u"event"_s, name}}, name);
    }

    void shutDown(bool canCancel)
    {
        write(u"shutdown"_s, {{u"canCancel"_s, canCancel}},
              canCancel ? u"may be refused"_s : u"may not be refused"_s);
    }

    void link(VexLinkSupervisor::State state, const QString &reason, const QDateTime &since)
    {
        const QString name = QString::fromLatin1(
            QMetaEnum::fromType<VexLinkSupervisor::State>().valueToKey(static_cast<int>(state)));
        write(u"link"_s, {{u"state"_s, name}, {u"reason"_s, reason}},
              reason.isEmpty() ? name : name + u": "_s + reason, since);
    }

    void restored() { write(u"restored"_s, {}, u"registered anew, events flow again"_s); }

private:
    void write(const QString &kind, QJsonObject object, const QString &words,
               const QDateTime &when = QDateTime::currentDateTime())
    {
        QByteArray text;
        if (m_json) {
            object[u"time"_s] = when.toUTC().toString(Qt::ISODateWithMs);
            object[u"kind"_s] = kind;
            text = QJsonDocument(object).toJson(QJsonDocument::Compact);
        } else {
            text = toShell(u"%1  %2  %3"_s.arg(when.toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s))
                               .arg(kind, -8)
                               .arg(Output::name(words)));
        }
        if (const int error = Output::tryWrite(text + '\n')) {
            Output::error(u"watch: cannot write to standard output: "_s + qt_error_string(error));
            QCoreApplication::exit(static_cast<int>(Exit::Failed));
        }
    }

    bool m_json;
};

int watch(const Invocation &invocation)
{
    const std::chrono::milliseconds interval = invocation.isSet(u"interval"_s)
        ? invocation.seconds(u"interval"_s)
        : std::chrono::milliseconds(0);
    const Interrupt interrupt;
    const Session session(invocation.address());
    FcpAppCORBA *controller = session.controller();
    Journal journal(invocation.json());

    VexLinkSupervisor supervisor(controller);
    if (interval.count() > 0) {
        supervisor.setInterval(interval);
        supervisor.setAnswerTimeOut(interval);
        supervisor.setSuspectAfter(interval / 2);
    }
    QObject context;
    QObject::connect(controller, &FcpAppCORBA::fcpEventReceived, &context,
                     [&journal](int event) { journal.event(event); });
    QObject::connect(controller->getCallback(), &AppFcpCORBAImpl::fcpShutDownReceived, &context,
                     [&journal](bool canCancel) { journal.shutDown(canCancel); });
    QObject::connect(&supervisor, &VexLinkSupervisor::stateChanged, &context,
                     [&journal](VexLinkSupervisor::State state, const QString &reason,
                                const QDateTime &since) { journal.link(state, reason, since); });
    QObject::connect(&supervisor, &VexLinkSupervisor::restored, &context,
                     [&journal] { journal.restored(); });
    QSocketNotifier end(interrupt.descriptor(), QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, &context,
                     [] { QCoreApplication::exit(static_cast<int>(Exit::Done)); });
    supervisor.start(session.address().host, session.address().port);
    return QCoreApplication::exec();
}

} // namespace

QList<Command> watchCommands()
{
    return {
        {.name = u"watch"_s,
         .summary = u"Print events and changes of the link until Ctrl-C."_s,
         .options = {{u"interval"_s,
                      u"Ask for a sign of life after that many quiet seconds, and wait as long for "
                      u"it (5)."_s,
                      u"SECONDS"_s}},
         .run = watch},
    };
}
