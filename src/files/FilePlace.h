#pragma once

#include <QStringList>

#include <functional>

class FcpAppCORBA;
class QObject;
class QvexFileModel;

/** Somewhere that files are: the instrument, this computer, or a medium plugged into it. */
struct FilePlace
{
    enum class Kind { Instrument, Computer, Medium };

    Kind kind = Kind::Computer;
    QString title; ///< for a person
    QString home; ///< the folder that is shown first

    bool isLocal() const { return kind != Kind::Instrument; }
    bool operator==(const FilePlace &other) const
    {
        return kind == other.kind && home == other.home;
    }
};

/**
 * Where a load/save dialog gets its files from. The dialog has stores of its own; others are for
 * trying it with models of one's own.
 */
struct FileStores
{
    /** Makes a model that belongs to the object given; without one there is no such place. */
    using MakeModel = std::function<QvexFileModel *(QObject *owner)>;

    MakeModel makeInstrument;
    MakeModel makeComputer;
    FcpAppCORBA *controller = nullptr; ///< whose link is watched; not owned, may be null
    QString instrumentHome = QStringLiteral("/");
    QString computerHome;
    /** Mounts one or two folders below these are removable media. */
    QStringList mediaRoots {QStringLiteral("/media"), QStringLiteral("/run/media"),
                            QStringLiteral("/mnt")};
    QString mountTable = QStringLiteral("/proc/self/mountinfo");
};
