#include "PropertiesManager.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include "PropertiesFile.h"
#include "PropertiesLogging.h"
#include "PropertiesNotifier.h"
#include "PropertiesXml.h"

struct PropertiesManager::Private
{
    struct Property
    {
        QString tag;
        QString defaultValue;
        QString value;
        long group;
        bool isSetup;
    };

    /// What came of setting a property.
    struct Change
    {
        enum class Kind { UnknownId, Same, Changed };

        long id;
        Kind kind = Kind::UnknownId;
        long group = 0;
    };

    bool add(long id, const Property &property);
    QString valueOf(long id) const; ///< with the mutex held
    Change set(long id, QString value, bool force); ///< with the mutex held
    void tell(const Change &change);
    QVector<StoredProperty> setupProperties() const;

    mutable std::mutex mutex; ///< guards the properties; nothing is called or logged under it
    std::map<long, Property> properties;

    /// One save or load at a time: a file is not moved aside that somebody has just replaced.
    std::mutex fileMutex;
    QByteArray lastWholeFile;
    PropertiesNotifier notifier;
};

bool PropertiesManager::Private::add(long id, const Property &property)
{
    const std::lock_guard lock(mutex);
    return properties.emplace(id, property).second;
}

QString PropertiesManager::Private::valueOf(long id) const
{
    const auto found = properties.find(id);
    return found == properties.end() ? QString() : found->second.value;
}

PropertiesManager::Private::Change PropertiesManager::Private::set(long id, QString value,
                                                                   bool force)
{
    const auto found = properties.find(id);
    if (found == properties.end()) {
        return {id};
    }
    Property &property = found->second;
    if (!force && property.value == value) {
        return {id, Change::Kind::Same};
    }
    property.value = std::move(value);
    return {id, Change::Kind::Changed, property.group};
}

void PropertiesManager::Private::tell(const Change &change)
{
    switch (change.kind) {
    case Change::Kind::UnknownId:
        qCDebug(lcProperties) << "there is no property" << change.id << "to be set";
        break;
    case Change::Kind::Same:
        break;
    case Change::Kind::Changed:
        notifier.notify(change.id, change.group);
        break;
    }
}

QVector<StoredProperty> PropertiesManager::Private::setupProperties() const
{
    const std::lock_guard lock(mutex);
    QVector<StoredProperty> found;
    for (const auto &[id, property] : properties) {
        if (property.isSetup) {
            found.append({id, property.tag, property.value});
        }
    }
    return found;
}

PropertiesManager *PropertiesManager::s_instance = nullptr;

PropertiesManager *PropertiesManager::instance()
{
    // Never deleted: listeners that live as long as the process unregister when it ends.
    static std::once_flag once;
    std::call_once(once, [] { s_instance = new PropertiesManager; });
    return s_instance;
}

PropertiesManager::PropertiesManager()
    : d(std::make_unique<Private>())
{
}

PropertiesManager::~PropertiesManager() = default;

bool PropertiesManager::registerSetupProperty(long id, QString tag, QString defaultValue,
                                              long group)
{
    return d->add(id, {std::move(tag), defaultValue, defaultValue, group, true});
}

bool PropertiesManager::registerStatusProperty(long id, QString tag, QString defaultValue,
                                               long group)
{
    return d->add(id, {std::move(tag), defaultValue, defaultValue, group, false});
}

QString PropertiesManager::getProperty(long id) const
{
    const std::lock_guard lock(d->mutex);
    return d->valueOf(id);
}

int PropertiesManager::getPropertyInt(long id, int defaultValue) const
{
    bool isNumber = false;
    const int number = getProperty(id).toInt(&isNumber);
    return isNumber ? number : defaultValue;
}

QString PropertiesManager::getDefault(long id) const
{
    const std::lock_guard lock(d->mutex);
    const auto found = d->properties.find(id);
    return found == d->properties.end() ? QString() : found->second.defaultValue;
}

QVector<QString> PropertiesManager::getProperties(const QVector<long> &ids) const
{
    QVector<QString> values;
    values.reserve(ids.size());
    const std::lock_guard lock(d->mutex);
    for (const long id : ids) {
        values.append(d->valueOf(id));
    }
    return values;
}

void PropertiesManager::setProperty(long id, QString value, bool force)
{
    std::unique_lock lock(d->mutex);
    const Private::Change change = d->set(id, std::move(value), force);
    lock.unlock();
    d->tell(change);
}

void PropertiesManager::setProperties(const QVector<long> &ids, const QVector<QString> &values)
{
    const qsizetype count = std::min(ids.size(), values.size());
    std::vector<Private::Change> changes;
    changes.reserve(static_cast<size_t>(count));
    std::unique_lock lock(d->mutex);
    for (qsizetype i = 0; i < count; ++i) {
        changes.push_back(d->set(ids.at(i), values.at(i), false));
    }
    lock.unlock();
    for (const Private::Change &change : changes) {
        d->tell(change);
    }
}

bool PropertiesManager::registerListener(long id, PropertiesListener *listener)
{
    return d->notifier.add({PropertiesNotifier::Scope::Property, id}, listener);
}

bool PropertiesManager::registerGroupListener(long group, PropertiesListener *listener)
{
    return d->notifier.add({PropertiesNotifier::Scope::Group, group}, listener);
}

void PropertiesManager::unregisterListener(long id, PropertiesListener *listener)
{
    d->notifier.remove({PropertiesNotifier::Scope::Property, id}, listener);
}

void PropertiesManager::unregisterGroupListener(long group, PropertiesListener *listener)
{
    d->notifier.remove({PropertiesNotifier::Scope::Group, group}, listener);
}

void PropertiesManager::unregisterListener(PropertiesListener *listener)
{
    d->notifier.removeEverywhere(listener);
}

bool PropertiesManager::saveProperties(const QString &path)
{
    std::unique_lock lock(d->fileMutex);
    PropertiesFile file(path, d->lastWholeFile);
    const bool isSaved = file.write(d->setupProperties());
    lock.unlock();
    if (!file.report().isEmpty()) {
        qCWarning(lcProperties).noquote()
            << (isSaved ? "properties were saved, but not over what was there:"
                        : "properties were not saved:")
            << file.report();
    }
    return isSaved;
}

bool PropertiesManager::loadProperties(const QString &path, DamagedFile damaged)
{
    QVector<long> ids;
    QVector<QString> values;
    std::unique_lock lock(d->fileMutex);
    PropertiesFile file(path, d->lastWholeFile);
    const PropertiesFile::State state = file.read(ids, values);
    if (state == PropertiesFile::State::Damaged && damaged == DamagedFile::MoveAside) {
        file.moveAside();
    }
    lock.unlock();
    if (!file.report().isEmpty()) { // there is no file before the first one was saved
        qCWarning(lcProperties).noquote() << "properties were not loaded:" << file.report();
    }
    if (state == PropertiesFile::State::Whole) {
        setProperties(ids, values);
    }
    return state == PropertiesFile::State::Whole;
}
