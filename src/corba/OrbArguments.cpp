#include "OrbArguments.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct TaoWord
{
    QLatin1StringView name;
    int values;
};

/// TAO's ORB_init words that have no counterpart in omniORB, or whose effect is its default.
constexpr std::array taoWords {
    TaoWord {"-ORBAMICollocation"_L1, 1},
    TaoWord {"-ORBCDRTradeoff"_L1, 1},
    TaoWord {"-ORBCollocation"_L1, 1},
    TaoWord {"-ORBCollocationStrategy"_L1, 1},
    TaoWord {"-ORBDaemon"_L1, 0},
    TaoWord {"-ORBDebug"_L1, 0},
    TaoWord {"-ORBDebugLevel"_L1, 1},
    TaoWord {"-ORBDefaultSyncScope"_L1, 1},
    TaoWord {"-ORBDisableRTCollocation"_L1, 1},
    TaoWord {"-ORBDottedDecimalAddresses"_L1, 1},
    TaoWord {"-ORBEnforcePreferredInterfaces"_L1, 1},
    TaoWord {"-ORBForwardInvocationOnObjectNotExist"_L1, 1},
    TaoWord {"-ORBForwardOnceOnCommFailure"_L1, 1},
    TaoWord {"-ORBForwardOnceOnObjectNotExist"_L1, 1},
    TaoWord {"-ORBForwardOnceOnTransient"_L1, 1},
    TaoWord {"-ORBGestalt"_L1, 1},
    TaoWord {"-ORBIPHopLimit"_L1, 1},
    TaoWord {"-ORBKeepalive"_L1, 1},
    TaoWord {"-ORBLingerTimeout"_L1, 1},
    TaoWord {"-ORBLogFile"_L1, 1},
    TaoWord {"-ORBMaxMessageSize"_L1, 1},
    TaoWord {"-ORBMuxedConnectionMax"_L1, 1},
    TaoWord {"-ORBNameServicePort"_L1, 1},
    TaoWord {"-ORBNegotiateCodesets"_L1, 1},
    TaoWord {"-ORBNodelay"_L1, 1},
    TaoWord {"-ORBNoProprietaryActivation"_L1, 0},
    TaoWord {"-ORBObjRefStyle"_L1, 1},
    TaoWord {"-ORBParallelConnectDelay"_L1, 1},
    TaoWord {"-ORBPreferredInterfaces"_L1, 1},
    TaoWord {"-ORBRcvSock"_L1, 1},
    TaoWord {"-ORBServiceConfigLoggerKey"_L1, 1},
    TaoWord {"-ORBSingleReadOptimization"_L1, 1},
    TaoWord {"-ORBSkipServiceConfigOpen"_L1, 0},
    TaoWord {"-ORBSndSock"_L1, 1},
    TaoWord {"-ORBStdProfileComponents"_L1, 1},
    TaoWord {"-ORBSvcConf"_L1, 1},
    TaoWord {"-ORBSvcConfDirective"_L1, 1},
    TaoWord {"-ORBUseIMR"_L1, 1},
    TaoWord {"-ORBUseParallelConnects"_L1, 1},
    TaoWord {"-ORBUseSharedProfile"_L1, 1},
    TaoWord {"-ORBVerboseLogging"_L1, 1},
};

const TaoWord *findTaoWord(const QString &word)
{
    const auto found = std::find_if(taoWords.begin(), taoWords.end(), [&word](const TaoWord &tao) {
        return word.compare(tao.name, Qt::CaseInsensitive) == 0;
    });
    return found == taoWords.end() ? nullptr : &*found;
}

bool isEndpointWord(const QString &word)
{
    return word.compare("-ORBListenEndpoints"_L1, Qt::CaseInsensitive) == 0;
}

/// What the link needs of the ORB, whatever the caller says further on.
QVector<QString> linkDefaults()
{
    return {
        // Calls and callbacks share one connection.
        u"-ORBofferBiDirectionalGIOP"_s,
        u"1"_s,
        u"-ORBclientTransportRule"_s,
        u"* unix,tcp,bidir"_s,
        u"-ORBmaxGIOPConnectionPerServer"_s,
        u"1"_s,
        u"-ORBoneCallPerConnection"_s,
        u"0"_s,
        u"-ORBmaxInterleavedCallsPerConnection"_s,
        u"10000"_s,
        // Events are delivered one after the other, in the order in which they were sent.
        u"-ORBmaxServerThreadPerConnection"_s,
        u"1"_s,
        // A dead connection is cleared away within seconds, so that a controller which calls back
        // on
        // it fails at once instead of hanging. One with a registered callback is not closed by this
        // while it is healthy, however long it is idle.
        u"-ORBoutConScanPeriod"_s,
        u"3"_s,
        u"-ORBscanGranularity"_s,
        u"1"_s,
        u"-ORBclientConnectTimeOutPeriod"_s,
        u"3000"_s,
        u"-ORBclientCallTimeOutPeriod"_s,
        u"180000"_s,
        u"-ORBsupportPerThreadTimeOut"_s,
        u"1"_s,
        // Pictures and listings of large directories exceed the default of 2 MiB.
        u"-ORBgiopMaxMsgSize"_s,
        u"1073741824"_s,
        // The first call of a link is checked when the link is made.
        u"-ORBverifyObjectExistsAndType"_s,
        u"0"_s,
    };
}

} // namespace

std::optional<ListenEndpoint> ListenEndpoint::parse(const QString &text)
{
    static const QRegularExpression pattern(
        uR"(^iiop://(?:\d+\.\d+@)?([^:/@,;]*)(?::(\d{1,5}))?(?:/portspan=(\d{1,5}))?(?:[,;].*)?$)"_s);
    const auto match = pattern.match(text);
    if (!match.hasMatch()) {
        return {};
    }
    ListenEndpoint endpoint;
    endpoint.host = match.captured(1);
    endpoint.firstPort = match.captured(2).toInt();
    endpoint.portCount = match.hasCaptured(3) ? match.captured(3).toInt() : 1;
    if (endpoint.portCount < 1 || endpoint.firstPort + endpoint.portCount - 1 > 65535) {
        return {};
    }
    return endpoint;
}

QString ListenEndpoint::forOmniOrb(int port) const
{
    return u"giop:tcp:%1:%2"_s.arg(host.isEmpty() ? u"0.0.0.0"_s : host).arg(port);
}

QString ListenEndpoint::describe() const
{
    return portCount == 1 ? u"port %1"_s.arg(firstPort)
                          : u"ports %1 to %2"_s.arg(firstPort).arg(firstPort + portCount - 1);
}

OrbArguments OrbArguments::translate(const QString &listenEndpoint, const QVector<QString> &args)
{
    OrbArguments result;
    result.words = linkDefaults();
    result.endpoint = ListenEndpoint::parse(listenEndpoint);

    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &word = args.at(i);
        if (!word.startsWith("-ORB"_L1)) {
            continue;
        }
        const TaoWord *tao = findTaoWord(word);
        const bool hasNext = i + 1 < args.size();
        const bool takesValue =
            tao ? tao->values > 0 : hasNext && !args.at(i + 1).startsWith("-ORB"_L1);
        if (takesValue && !hasNext) {
            result.error = u"the ORB argument \"%1\" lacks its value"_s.arg(word);
            break;
        }
        const QString value = takesValue ? args.at(++i) : QString();

        if (isEndpointWord(word)) {
            result.endpoint = ListenEndpoint::parse(value);
            if (!result.endpoint) {
                result.error = u"\"%1\" is no listen endpoint: %2 takes "
                               "\"iiop://[host]:port[/portspan=n]\""_s.arg(value, word);
                break;
            }
        } else if (tao) {
            result.ignored.append(takesValue ? word + u' ' + value : word);
        } else {
            if (word == "-ORBendPoint"_L1) {
                result.endpoint.reset();
            }
            result.words.append(word);
            if (takesValue) {
                result.words.append(value);
            }
        }
    }
    return result;
}
