#include "Instrument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct Failure
{
    QString text;
};

QString kindOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return u"null"_s;
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QJsonValue::Double:
        return u"the number %1"_s.arg(value.toDouble());
    case QJsonValue::String:
        return u"the text \"%1\""_s.arg(value.toString().left(40));
    case QJsonValue::Array:
        return u"a list"_s;
    case QJsonValue::Object:
        return u"an object"_s;
    case QJsonValue::Undefined:
        break;
    }
    return u"nothing"_s;
}

/// A JSON value together with where it stands, which every complaint begins with.
class Node
{
public:
    Node(const QJsonValue &value, const QString &place)
        : m_value(value)
        , m_place(place)
    {
    }

    [[noreturn]] void fail(const QString &expected) const
    {
        throw Failure {u"%1: expected %2, found %3"_s.arg(place(), expected, kindOf(m_value))};
    }

    bool isMissing() const { return m_value.isUndefined(); }
    bool isText() const { return m_value.isString(); }

    Node operator[](const QString &key) const
    {
        return {m_value.toObject().value(key), m_place.isEmpty() ? key : m_place + u'.' + key};
    }

    /// A misspelt key would be passed over silently otherwise.
    const Node &object(const QStringList &keys) const
    {
        if (!m_value.isObject()) {
            fail(u"an object"_s);
        }
        const QStringList found = m_value.toObject().keys();
        for (const QString &key : found) {
            if (!keys.contains(key)) {
                throw Failure {u"%1: unknown key \"%2\", known are %3"_s.arg(place(), key,
                                                                             keys.join(u", "_s))};
            }
        }
        return *this;
    }

    QByteArray text() const
    {
        if (!m_value.isString()) {
            fail(u"a text"_s);
        }
        QByteArray bytes = m_value.toString().toUtf8();
        if (bytes.contains('\0')) {
            fail(u"a text without a NUL character"_s);
        }
        return bytes;
    }
    QByteArray text(const QByteArray &missing) const { return isMissing() ? missing : text(); }

    int number(int least) const
    {
        const double value = m_value.toDouble(-1.5);
        if (!m_value.isDouble() || value != static_cast<int>(value) || value < least) {
            fail(u"a whole number of %1 or more"_s.arg(least));
        }
        return static_cast<int>(value);
    }
    int number(int least, int missing) const { return isMissing() ? missing : number(least); }

    QVector<Node> list() const
    {
        QVector<Node> nodes;
        if (isMissing()) {
            return nodes;
        }
        if (!m_value.isArray()) {
            fail(u"a list"_s);
        }
        const QJsonArray array = m_value.toArray();
        for (qsizetype i = 0; i < array.size(); ++i) {
            nodes.append({array.at(i), u"%1[%2]"_s.arg(m_place).arg(i)});
        }
        return nodes;
    }

private:
    QString place() const { return m_place.isEmpty() ? u"top level"_s : m_place; }

    QJsonValue m_value;
    QString m_place;
};

class Reader
{
public:
    explicit Reader(const QDir &directory)
        : m_directory(directory)
    {
    }

    Instrument read(const Node &root)
    {
        root.object({u"controller"_s, u"modules"_s, u"tests"_s, u"maxClients"_s});
        Instrument instrument;
        const Node controller = root[u"controller"_s];
        controller.object({u"model"_s, u"serial"_s, u"image"_s, u"imageBytes"_s});
        instrument.model = controller[u"model"_s].text();
        instrument.serial = controller[u"serial"_s].text({});
        instrument.image = image(controller);
        for (const Node &node : root[u"modules"_s].list()) {
            instrument.modules.append(module(node));
        }
        for (const Node &node : root[u"tests"_s].list()) {
            instrument.tests.append(test(node));
        }
        instrument.maxClients = root[u"maxClients"_s].number(0, instrument.maxClients);
        return instrument;
    }

private:
    /// An id that nothing else in @p taken has.
    static int newId(const Node &node, QSet<int> &taken)
    {
        const int id = node.number(0);
        if (taken.contains(id)) {
            node.fail(u"an id that is not used before"_s);
        }
        taken.insert(id);
        return id;
    }

    /// A picture file, or as many bytes as asked for, to see how clients bear big ones.
    QByteArray image(const Node &node) const
    {
        const Node bytes = node[u"imageBytes"_s];
        if (!bytes.isMissing()) {
            QByteArray made(bytes.number(0), Qt::Uninitialized);
            for (qsizetype i = 0; i < made.size(); ++i) {
                made[i] = static_cast<char>(i * 31 + (i >> 8));
            }
            return made;
        }
        const Node name = node[u"image"_s];
        if (name.isMissing()) {
            return {};
        }
        QFile file(m_directory.filePath(QString::fromUtf8(name.text())));
        if (!file.open(QIODevice::ReadOnly)) {
            name.fail(u"a readable file (%1: %2)"_s.arg(file.fileName(), file.errorString()));
        }
        return file.readAll();
    }

    Module module(const Node &node)
    {
        node.object({u"id"_s, u"type"_s, u"name"_s, u"serial"_s, u"options"_s, u"image"_s,
                     u"imageBytes"_s, u"ports"_s});
        Module module;
        module.id = newId(node[u"id"_s], m_modules);
        module.type = node[u"type"_s].text({});
        module.name = node[u"name"_s].text();
        module.serial = node[u"serial"_s].text({});
        for (const Node &option : node[u"options"_s].list()) {
            module.options.append(option.text());
        }
        module.image = image(node);
        m_ports.clear();
        m_resources.clear();
        for (const Node &child : node[u"ports"_s].list()) {
            module.ports.append(port(child));
        }
        return module;
    }

    Port port(const Node &node)
    {
        node.object({u"id"_s, u"image"_s, u"imageBytes"_s, u"resources"_s});
        Port port;
        port.id = newId(node[u"id"_s], m_ports);
        port.image = image(node);
        for (const Node &child : node[u"resources"_s].list()) {
            child.object({u"id"_s, u"type"_s, u"name"_s});
            port.resources.append({newId(child[u"id"_s], m_resources), child[u"type"_s].text({}),
                                   child[u"name"_s].text()});
        }
        return port;
    }

    AvailableTest test(const Node &node)
    {
        node.object({u"name"_s, u"runnableState"_s, u"options"_s, u"command"_s, u"startMs"_s,
                     u"runMs"_s, u"closeMs"_s});
        AvailableTest test;
        test.name = node[u"name"_s].text();
        if (test.name.isEmpty() || m_tests.contains(test.name)) {
            node[u"name"_s].fail(u"a name that is not used before"_s);
        }
        m_tests.insert(test.name);
        test.runnableState =
            node[u"runnableState"_s].number(std::numeric_limits<int>::min(), test.runnableState);
        test.options = node[u"options"_s].text({});
        for (const Node &word : node[u"command"_s].list()) {
            test.command.append(QString::fromUtf8(word.text()));
        }
        test.startMilliseconds = node[u"startMs"_s].number(0, test.startMilliseconds);
        test.runMilliseconds = node[u"runMs"_s].number(0, test.runMilliseconds);
        test.closeMilliseconds = node[u"closeMs"_s].number(0, test.closeMilliseconds);
        return test;
    }

    const QDir m_directory;
    QSet<int> m_modules;
    QSet<int> m_ports;
    QSet<int> m_resources;
    QSet<QByteArray> m_tests;
};

QString placeOf(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(offset);
    return u"line %1, column %2"_s.arg(before.count('\n') + 1)
        .arg(before.size() - before.lastIndexOf('\n'));
}

} // namespace

bool readInstrument(const QString &fileName, Instrument &instrument, QString &error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        error = u"%1: %2"_s.arg(fileName, file.errorString());
        return false;
    }
    const QByteArray text = file.readAll();
    QJsonParseError syntax;
    const QJsonDocument document = QJsonDocument::fromJson(text, &syntax);
    if (syntax.error != QJsonParseError::NoError) {
        error = u"%1: %2: %3"_s.arg(fileName, placeOf(text, syntax.offset), syntax.errorString());
        return false;
    }
    try {
        const Node root(document.isObject() ? QJsonValue(document.object())
                                            : QJsonValue(document.array()),
                        QString());
        instrument = Reader(QFileInfo(fileName).dir()).read(root);
        return true;
    } catch (const Failure &failure) {
        error = fileName + u": "_s + failure.text;
        return false;
    }
}
