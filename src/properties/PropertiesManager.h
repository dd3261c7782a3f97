#pragma once

#include <QString>
#include <QVector>

#include <memory>

#include "VexExport.h"

class PropertiesListener;

/**
 * The store of the application's numbered properties.
 *
 * A property has an id, a tag (its name), a default and a current text, a group, and is either a
 * setup property, which is kept in a file, or a status property, which lasts as long as the
 * process. The applications say which properties there are; one that was not registered has no
 * value.
 *
 * @code
 * PropertiesManager *properties = PropertiesManager::instance();
 * properties->registerSetupProperty(101, u"DirectionKeysPosition"_s, u"100"_s, 1);
 * properties->loadProperties(path, PropertiesManager::DamagedFile::MoveAside);
 * const int position = properties->getPropertyInt(101, 100);
 * @endcode
 *
 * ### Threads
 * Every method may be called from any thread. Listeners are called on the thread that set the
 * property, after the value is in place and with no lock held.
 *
 * A listener that was unregistered is not called any more. When another thread is just calling it,
 * unregistering waits for that call to return, so that a listener may be deleted once it is
 * unregistered everywhere. It does not wait for a call on its own thread, from inside which it was
 * called; nor when two threads are each inside a call that the other waits for, where the one that
 * comes second does not wait. Because of the waiting, do not unregister while holding a lock that
 * the listener takes, nor on a thread that the listener is waiting for.
 *
 * ### The file
 * UTF-8 with a byte-order mark: a root element "properties" with an element "vex" for each setup
 * property, in the order of the ids, which has the attributes "key" (the id), "tag" and "val". A
 * text with characters that XML can't hold (control characters, halves of surrogate pairs) has each
 * of them, and each backslash, written as \\uXXXX, and the element then has the attribute
 * escaped="true"; in a tag they become U+FFFD.
 *
 * Saving replaces the file at once: at any moment, also after a power cut, it is the whole old or
 * the whole new one. The one before is kept as PATH.bak. A file that can't be read as properties is
 * never replaced but moved aside as PATH.corrupt-YYYYMMDD-HHMMSS, with a number behind it when
 * there is one of that name already. A symbolic link is followed.
 */
class VEX_EXPORT PropertiesManager
{
public:
    /** What loadProperties() does with a file that can't be read as properties. */
    enum class DamagedFile {
        Leave, ///< it stays where it is
        MoveAside, ///< it is renamed to PATH.corrupt-YYYYMMDD-HHMMSS
    };

    /** The one manager of the process. It is made on first use and stays to the end. */
    static PropertiesManager *instance();

    PropertiesManager(const PropertiesManager &) = delete;
    PropertiesManager &operator=(const PropertiesManager &) = delete;

    /**
     * Adds a property that is kept in the file; its value is the default.
     * @return false when there is a property with this id already, which stays as it is.
     */
    bool registerSetupProperty(long id, QString tag, QString defaultValue, long group);
    /** The same for a property that is not kept. */
    bool registerStatusProperty(long id, QString tag, QString defaultValue, long group);

    /** The value; null when there is no such property. */
    QString getProperty(long id) const;
    /** The value as a decimal number; @p defaultValue when it is none, or no such property. */
    int getPropertyInt(long id, int defaultValue) const;
    /** The value that the property was registered with; null when there is no such property. */
    QString getDefault(long id) const;
    /** The values of several properties at one moment, in the order of @p ids. */
    QVector<QString> getProperties(const QVector<long> &ids) const;

    /**
     * Sets the value and tells the listeners, first those of the property, then those of its group,
     * each in the order of registration. When the value is the one that it has, nothing happens,
     * unless @p force is true. Neither does it when there is no such property.
     */
    void setProperty(long id, QString value, bool force);
    /**
     * Sets several properties at one moment, each as setProperty() without force does, then tells
     * the listeners pair by pair. Ids or values that have no partner are left out.
     */
    void setProperties(const QVector<long> &ids, const QVector<QString> &values);

    /**
     * Has @p listener told when the property @p id is set, which need not be registered yet. Of a
     * change that others are just told of it may hear or not. The listener is not owned.
     * @return false when it is null or is registered there already.
     */
    bool registerListener(long id, PropertiesListener *listener);
    /** The same for all properties of a group. */
    bool registerGroupListener(long group, PropertiesListener *listener);
    /** Ends a registration, and waits for calls on other threads. */
    void unregisterListener(long id, PropertiesListener *listener);
    void unregisterGroupListener(long group, PropertiesListener *listener);
    /** Ends all registrations of the listener, and waits for calls on other threads. */
    void unregisterListener(PropertiesListener *listener);

    /**
     * Writes the setup properties to a file, see above. After success they are on the medium.
     * @return false on any failure, with a warning in the log. The old file is there then: under
     * its own name, moved aside when it was no properties file, or as PATH.bak when the medium
     *     failed only after the new one had taken its name.
     */
    bool saveProperties(const QString &path);
    /**
     * Sets the properties that are in the file, as setProperties() does. Elements without "val",
     * and those whose "key" is no number or the id of no property, change nothing.
     * @return false when there is no such file, when it can't be read, or when it is damaged, which
     *     includes document types, entities, a nesting of more than 64 elements, more than 64
     *     attributes on one, and more than 16 MiB. No property has changed then.
     */
    bool loadProperties(const QString &path, DamagedFile damaged = DamagedFile::Leave);

protected:
    /** For a store beside the one of the process, as tests want it. */
    PropertiesManager();
    ~PropertiesManager();

private:
    static PropertiesManager *s_instance;

    struct Private;
    const std::unique_ptr<Private> d;
};
