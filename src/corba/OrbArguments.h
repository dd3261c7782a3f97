#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/** Where the ORB is to listen: the first free port of a range. */
struct ListenEndpoint
{
    QString host; ///< empty: all interfaces
    int firstPort = 0; ///< 0: any free port
    int portCount = 1;

    bool operator==(const ListenEndpoint &) const = default;

    /**
     * Reads "iiop://[version@][host][:port][/portspan=n]", as TAO writes it. Of a list separated by
     * "," or ";" the first entry counts, since the link needs exactly one listen point.
     */
    static std::optional<ListenEndpoint> parse(const QString &text);
    /** The endpoint at @p port as omniORB writes it. */
    QString forOmniOrb(int port) const;
    /** For messages: "port 5700" or "ports 5700 to 5749". */
    QString describe() const;
};

/**
 * The application's ORB arguments, written for TAO or for omniORB, in omniORB's words.
 *
 * Words that don't begin with "-ORB" are left out: they are the application's own.
 */
struct OrbArguments
{
    /// Goes to ORB_init, apart from the listen endpoint.
    QVector<QString> words;
    /// Not set when the caller gave omniORB's own endpoint word.
    std::optional<ListenEndpoint> endpoint;
    /// Words that have no counterpart here, with their values.
    QStringList ignored;
    /// What is wrong with the arguments; empty when nothing is.
    QString error;

    static OrbArguments translate(const QString &listenEndpoint, const QVector<QString> &args);
};
