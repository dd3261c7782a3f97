#include "PropertiesRows.h"

#include <QFile>
#include <QHash>
#include <QMutex>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>

#include "harness/Stopwatch.h"
#include "properties/PropertiesListener.h"
#include "properties/PropertiesManager.h"

using namespace Qt::StringLiterals;

namespace {

constexpr long Group = 7;

/// The store under test, beside the one of the process.
class Store : public PropertiesManager
{
};

struct CountingListener : PropertiesListener
{
    void PropertyChanged(long) override { ++calls; }

    int calls = 0;
};

/// What a store of values with listeners can't do without.
class BareStore
{
public:
    explicit BareStore(std::array<CountingListener, 10> &listeners)
    {
        for (CountingListener &listener : listeners) {
            m_listeners.append(&listener);
        }
    }

    void set(long id, const QString &value)
    {
        m_mutex.lock();
        QString &current = m_values[id];
        const bool isChanged = current != value;
        current = value;
        m_mutex.unlock();
        if (isChanged) {
            for (PropertiesListener *listener : std::as_const(m_listeners)) {
                listener->PropertyChanged(id);
            }
        }
    }

private:
    QMutex m_mutex;
    QHash<long, QString> m_values;
    QVector<PropertiesListener *> m_listeners;
};

/// Ten listeners of one property among a thousand, in both stores.
class SettingTest
{
public:
    explicit SettingTest(double scale)
        : m_bare(m_listeners)
        , m_count(std::max(1000, static_cast<int>(200000 * scale)))
    {
        for (long id = 0; id < 1000; ++id) {
            m_store.registerStatusProperty(id, u"Property"_s, u"0"_s, Group);
            m_bare.set(id, u"0"_s);
        }
        for (CountingListener &listener : m_listeners) {
            m_store.registerListener(Id, &listener);
        }
    }

    int count() const { return m_count; }

    double managed()
    {
        return run([this](const QString &value) { m_store.setProperty(Id, value, false); });
    }

    double bare()
    {
        return run([this](const QString &value) { m_bare.set(Id, value); });
    }

private:
    static constexpr long Id = 500;

    template<typename Set>
    double run(Set &&set)
    {
        const std::array values {u"first value"_s, u"second value"_s};
        set(values[1]);
        const int before = m_listeners.back().calls;
        const double seconds = secondsOf([&] {
            for (int i = 0; i < m_count; ++i) {
                set(values[static_cast<size_t>(i % 2)]);
            }
        });
        if (m_listeners.back().calls - before != m_count) {
            throw std::runtime_error("listeners were not told of every change");
        }
        return seconds;
    }

    std::array<CountingListener, 10> m_listeners;
    Store m_store;
    BareStore m_bare;
    const int m_count;
};

void addSettingRows(Suite &suite, double scale)
{
    const auto test = std::make_shared<SettingTest>(scale);
    Comparison comparison;
    comparison.name = u"setting a property with ten listeners"_s;
    comparison.work = {double(test->count()), u"ns"_s, 1e-9};
    comparison.subject = {u"manager"_s, [test] { return test->managed(); }, {}, {}};
    comparison.rivals = {{u"QMutex and QHash"_s, [test] { return test->bare(); }, {}, {}}};
    suite.add(comparison);

    LimitedFigure more;
    more.name = u"what that takes more than QMutex and QHash"_s;
    more.unit = u"µs"_s;
    more.atMost = 2;
    more.rounds = 5;
    more.measure = [test] { return (test->managed() - test->bare()) / test->count() * 1e6; };
    suite.add(more);
}

/// Many properties in a store and in a file.
class FileTest
{
public:
    explicit FileTest(const ProgramOptions &options)
        : m_path(options.directory + u"/properties.xml"_s)
        , m_count(std::max(100, static_cast<int>(10000 * options.scale)))
    {
        for (long id = 0; id < m_count; ++id) {
            m_ids.append(id);
            m_values.append(u"the value of property %1"_s.arg(id));
            m_store.registerSetupProperty(id, tag(id), {}, Group);
        }
    }

    int count() const { return m_count; }

    double save()
    {
        m_store.setProperties(m_ids, m_values);
        return secondsOf([this] { check(m_store.saveProperties(m_path)); });
    }

    double load()
    {
        check(m_store.saveProperties(m_path));
        m_store.setProperties(m_ids, QVector<QString>(m_count));
        const double seconds = secondsOf([this] { check(m_store.loadProperties(m_path)); });
        check(m_store.getProperties(m_ids) == m_values);
        return seconds;
    }

    /// Writes the same file.
    double plainWrite()
    {
        const QString path = m_path + u".plain"_s;
        const double seconds = secondsOf([&] {
            QFile file(path);
            check(file.open(QIODevice::WriteOnly));
            file.write("\xEF\xBB\xBF");
            QXmlStreamWriter xml(&file);
            xml.writeStartElement(u"properties"_s);
            xml.setAutoFormatting(true);
            xml.setAutoFormattingIndent(1);
            for (long id = 0; id < m_count; ++id) {
                xml.writeEmptyElement(u"vex"_s);
                xml.writeAttribute(u"key"_s, QString::number(id));
                xml.writeAttribute(u"tag"_s, tag(id));
                xml.writeAttribute(u"val"_s, m_values.at(id));
            }
            xml.writeEndDocument();
        });
        check(m_store.saveProperties(m_path));
        check(contentsOf(path) == contentsOf(m_path));
        return seconds;
    }

    /// Reads what is in the file and keeps it.
    double plainRead()
    {
        check(m_store.saveProperties(m_path));
        QHash<long, QString> values;
        const double seconds = secondsOf([&] {
            QFile file(m_path);
            check(file.open(QIODevice::ReadOnly));
            QXmlStreamReader xml(&file);
            while (!xml.atEnd()) {
                if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "vex"_L1) {
                    const QXmlStreamAttributes attributes = xml.attributes();
                    values.insert(attributes.value("key"_L1).toLong(),
                                  attributes.value("val"_L1).toString());
                }
            }
            check(!xml.hasError());
        });
        check(values.size() == m_count);
        return seconds;
    }

private:
    static QString tag(long id) { return u"Property%1"_s.arg(id); }

    static QByteArray contentsOf(const QString &path)
    {
        QFile file(path);
        check(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    static void check(bool isFine)
    {
        if (!isFine) {
            throw std::runtime_error("the file is not what it should be");
        }
    }

    const QString m_path;
    const int m_count;
    QVector<long> m_ids;
    QVector<QString> m_values;
    Store m_store;
};

void addFileRows(Suite &suite, const ProgramOptions &options)
{
    const auto test = std::make_shared<FileTest>(options);
    Comparison saving;
    saving.name = u"saving of %L1 properties"_s.arg(test->count());
    saving.work = {1, u"ms"_s, 1e-3};
    saving.subject = {u"manager"_s, [test] { return test->save(); }, {}, {}};
    saving.rivals = {
        {u"QXmlStreamWriter"_s, [test] { return test->plainWrite(); }, Demand::timeAtMost(3), {}}};
    saving.rounds = 9;
    suite.add(saving);

    Comparison loading = saving;
    loading.name = u"loading of %L1 properties"_s.arg(test->count());
    loading.subject = {u"manager"_s, [test] { return test->load(); }, {}, {}};
    loading.rivals = {
        {u"QXmlStreamReader"_s, [test] { return test->plainRead(); }, Demand::timeAtMost(3), {}}};
    suite.add(loading);
}

} // namespace

void addPropertiesRows(Suite &suite, const ProgramOptions &options)
{
    addSettingRows(suite, options.scale);
    addFileRows(suite, options);
}
