#include "Wrappers.h"

#include <QDebug>

#include <algorithm>

#include <corba/FcpAppCORBA.h>

#include "FakeController.h"
#include "Pattern.h"

using namespace Qt::StringLiterals;

namespace {

// Texts of one, two, three and four bytes a character in UTF-8.
const QString Text = u"ä€日本🙂"_s;
const QString Path = u"/Internal/Prüfung №1/日本.xml"_s;

QJsonObject listOf(const QVector<QJsonObject> &entries)
{
    QJsonArray list;
    for (const QJsonObject &entry : entries) {
        list.append(entry);
    }
    return {{u"list"_s, list}};
}

QJsonObject result(const QJsonValue &value)
{
    return {{u"result"_s, value}};
}

QJsonObject pattern(qint64 size, qint64 seed)
{
    return {{u"size"_s, size}, {u"seed"_s, seed}};
}

template<typename Record>
QVariant records(const QVector<Record> &list)
{
    return QVariant::fromValue(list);
}

/// For a method whose only out-argument is a vector, which is not empty before the call.
template<typename Record, typename Call>
std::function<QVariantList(FcpAppCORBA &)> fills(const QVector<Record> &before, Call &&method)
{
    return [before, method](FcpAppCORBA &proxy) -> QVariantList {
        QVector<Record> list = before;
        method(proxy, list);
        return {records(list)};
    };
}

/// For a method without out-arguments.
template<typename Call>
std::function<QVariantList(FcpAppCORBA &)> returns(Call &&method)
{
    return [method](FcpAppCORBA &proxy) -> QVariantList {
        return {QVariant::fromValue(method(proxy))};
    };
}

QVector<Wrapper> testWrappers()
{
    const QVector<AvailableTestInformation> oldAvailable = {{u"old"_s, 1, u"x"_s}};
    const QVector<TestInformation> oldActive = {{1, 2, u"old"_s}};
    const QVector<ClientInformation> oldClients = {{1, u"old"_s, u"old"_s, true}};
    return {
        {u"getAvailableTests"_s,
         listOf({{{u"testName"_s, wireText(Text)},
                  {u"runnableState"_s, -2},
                  {u"expOptions"_s, u"a=1"_s}},
                 {}}),
         {},
         fills(oldAvailable, [](auto &proxy, auto &list) { proxy.getAvailableTests(list); }),
         {records<AvailableTestInformation>({{Text, -2, u"a=1"_s}, {}})},
         {records(oldAvailable)}},
        {u"getActiveTests"_s,
         listOf({{{u"testID"_s, 2147483647},
                  {u"testTcpPort"_s, 65535},
                  {u"testName"_s, wireText(Text)}}}),
         {wireText(Text)},
         fills(oldActive, [](auto &proxy, auto &list) { proxy.getActiveTests(list, Text); }),
         {records<TestInformation>({{2147483647, 65535, Text}})},
         {records(oldActive)}},
        {u"getActiveClients"_s,
         listOf({{{u"clientId"_s, 5},
                  {u"clientName"_s, wireText(Text)},
                  {u"clientHost"_s, u"10.0.0.7"_s},
                  {u"clientReadOnly"_s, true}}}),
         {-7},
         fills(oldClients, [](auto &proxy, auto &list) { proxy.getActiveClients(-7, list); }),
         {records<ClientInformation>({{5, Text, u"10.0.0.7"_s, true}})},
         {records(oldClients)}},
        {u"setActiveClientReadWrite"_s,
         {},
         {3, 4},
         [](auto &proxy) -> QVariantList {
             proxy.setActiveClientReadWrite(3, 4);
             return {};
         },
         {},
         {}},
        {u"isMaximumClientCountOK"_s,
         result(17),
         {},
         returns([](auto &proxy) { return proxy.isMaximumClientCountOK(); }),
         {QVariant::fromValue(17L)},
         {QVariant::fromValue(0L)}},
        {u"launchTest"_s,
         result(-2147483648LL),
         {wireText(Text), QJsonArray {wireText(Text), u""_s, u"--x=1"_s}},
         returns([](auto &proxy) {
             return proxy.launchTest(Text, {Text, u""_s, u"--x=1"_s});
         }),
         {QVariant::fromValue(-2147483648L)},
         {QVariant::fromValue(0L)}},
        {u"terminateTest"_s,
         result(true),
         {12, true},
         returns([](auto &proxy) { return proxy.terminateTest(12, true); }),
         {true},
         {false}},
        {u"getTestStatus"_s,
         result(int(TEST_CLOSING)),
         {12},
         returns([](auto &proxy) { return int(proxy.getTestStatus(12)); }),
         {int(TEST_CLOSING)},
         {int(TEST_NA)}},
        {u"getTestTcpPort"_s,
         result(6001),
         {12},
         returns([](auto &proxy) { return proxy.getTestTcpPort(12); }),
         {6001},
         {0}},
    };
}

QVector<Wrapper> instrumentWrappers()
{
    const ControllerInformation oldController = {u"old"_s, u"old"_s, "old"};
    const ControllerStatusInformation oldStatus = {77};
    const QVector<PortInformation> oldPorts = {{1, 2, "old"}};
    const QVector<ModuleInformation> oldModules = {{1, u"old"_s, {}, {}, {}, {}}};
    const QVector<ResourceInformation> oldResources = {{1, 2, 3, u"old"_s, u"old"_s}};
    const QVector<ResourceStatusInformation> oldStatuses = {{1, 2, 3, 4}};
    return {
        {u"getController"_s,
         {{u"controllerModel"_s, wireText(Text)},
          {u"controllerSerial"_s, u"SN-1"_s},
          {u"controllerImage"_s, pattern(1000, 3)}},
         {},
         [oldController](auto &proxy) -> QVariantList {
             ControllerInformation controller = oldController;
             proxy.getController(controller);
             return {QVariant::fromValue(controller)};
         },
         {QVariant::fromValue(ControllerInformation {Text, u"SN-1"_s, patternBytes(1000, 3)})},
         {QVariant::fromValue(oldController)}},
        {u"getControllerStatus"_s,
         {{u"bogusInformation"_s, -1}},
         {},
         [oldStatus](auto &proxy) -> QVariantList {
             ControllerStatusInformation status = oldStatus;
             proxy.getControllerStatus(status);
             return {status.bogusInformation};
         },
         {-1},
         {77}},
        {u"getPorts"_s,
         listOf({{{u"portID"_s, 1}, {u"moduleID"_s, 2}, {u"portImage"_s, pattern(70000, 4)}},
                 {{u"portID"_s, 3}, {u"moduleID"_s, 2}, {u"portImage"_s, u""_s}}}),
         {},
         fills(oldPorts, [](auto &proxy, auto &list) { proxy.getPorts(list); }),
         {records<PortInformation>({{1, 2, patternBytes(70000, 4)}, {3, 2, {}}})},
         {records(oldPorts)}},
        {u"getModules"_s,
         listOf({{{u"moduleID"_s, 2},
                  {u"moduleType"_s, u"OTDR"_s},
                  {u"moduleName"_s, wireText(Text)},
                  {u"moduleSerialNumber"_s, u"42"_s},
                  {u"moduleGenOptions"_s,
                   QJsonArray {QJsonObject {{u"option"_s, wireText(Text)}},
                               QJsonObject {{u"option"_s, u""_s}}}},
                  {u"moduleImage"_s, pattern(1, 5)}}}),
         {},
         fills(oldModules, [](auto &proxy, auto &list) { proxy.getModules(list); }),
         {records<ModuleInformation>(
             {{2, u"OTDR"_s, Text, u"42"_s, {{Text}, {u""_s}}, patternBytes(1, 5)}})},
         {records(oldModules)}},
        {u"getResources"_s,
         listOf({{{u"portID"_s, 1},
                  {u"moduleID"_s, 2},
                  {u"resourceID"_s, 3},
                  {u"resourceType"_s, u"laser"_s},
                  {u"resourceName"_s, wireText(Text)}}}),
         {},
         fills(oldResources, [](auto &proxy, auto &list) { proxy.getResources(list); }),
         {records<ResourceInformation>({{1, 2, 3, u"laser"_s, Text}})},
         {records(oldResources)}},
        {u"getResourcesStatus"_s,
         listOf(
             {{{u"moduleID"_s, 2}, {u"resourceID"_s, 3}, {u"serverID"_s, 4}, {u"status"_s, -5}}}),
         {},
         fills(oldStatuses, [](auto &proxy, auto &list) { proxy.getResourcesStatus(list); }),
         {records<ResourceStatusInformation>({{2, 3, 4, -5}})},
         {records(oldStatuses)}},
        {u"requestResources"_s,
         result(99),
         {QJsonArray {QJsonArray {2, 3}, QJsonArray {-1, 5}}, 8},
         returns([](auto &proxy) {
             return proxy.requestResources({{2, 3}, {-1, 5}}, 8);
         }),
         {QVariant::fromValue(99L)},
         {QVariant::fromValue(0L)}},
    };
}

QVector<Wrapper> directoryWrappers()
{
    const auto zero = QVariant::fromValue(0L);
    const auto five = QVariant::fromValue(5L);
    const QDir::Filters filters = QDir::Dirs | QDir::Files | QDir::Hidden;
    const QVector<FileSystemItem> oldItems = {{u"old"_s, {}, 1, false, 0}};
    return {
        {u"newDirectory"_s,
         result(wireText(Path)),
         {wireText(Text)},
         returns([](auto &proxy) { return proxy.newDirectory(Text); }),
         {Path},
         {QString()}},
        {u"renameFileDirectory"_s,
         result(5),
         {wireText(Path), u"a"_s, wireText(Text)},
         returns([](auto &proxy) { return proxy.renameFileDirectory(Path, u"a"_s, Text); }),
         {five},
         {zero}},
        {u"moveFileDirectory"_s,
         result(5),
         {wireText(Path), wireText(Text)},
         returns([](auto &proxy) { return proxy.moveFileDirectory(Path, Text); }),
         {five},
         {zero}},
        {u"copyFileDirectory"_s,
         result(5),
         {wireText(Path), wireText(Text)},
         returns([](auto &proxy) { return proxy.copyFileDirectory(Path, Text); }),
         {five},
         {zero}},
        {u"deleteFileDirectory"_s,
         result(5),
         {wireText(Path)},
         returns([](auto &proxy) { return proxy.deleteFileDirectory(Path); }),
         {five},
         {zero}},
        {u"getFileSystemItems"_s,
         {{u"result"_s, true},
          {u"list"_s,
           QJsonArray {QJsonObject {{u"name"_s, wireText(Text)},
                                    {u"date"_s, u"2024-02-29 23:59"_s},
                                    {u"size"_s, qint64(5'000'000'000)},
                                    {u"isdir"_s, false},
                                    {u"dircount"_s, 0}},
                       QJsonObject {{u"name"_s, u"d"_s}, {u"isdir"_s, true}, {u"dircount"_s, 3}}}}},
         {wireText(Path), int(filters), QJsonArray {u"*.xml"_s, wireText(Text)}},
         [=](auto &proxy) -> QVariantList {
             QVector<FileSystemItem> items = oldItems;
             const bool done = proxy.getFileSystemItems(Path, {u"*.xml"_s, Text}, filters, items);
             return {done, records(items)};
         },
         {true,
          records<FileSystemItem>(
              {{Text, u"2024-02-29 23:59"_s, 5'000'000'000, false, 0}, {u"d"_s, {}, 0, true, 3}})},
         {false, records(oldItems)}},
    };
}

QVector<Wrapper> fileWrappers()
{
    return {
        {u"openFile"_s,
         {{u"result"_s, int(FS_EXISTS)}, {u"handle"_s, 31}},
         {wireText(Path), true, false},
         [](auto &proxy) -> QVariantList {
             long handle = -9;
             const int done = proxy.openFile(Path, true, false, handle);
             return {done, QVariant::fromValue(handle)};
         },
         {int(FS_EXISTS), QVariant::fromValue(31L)},
         {int(FS_OK), QVariant::fromValue(-9L)}},
        {u"closeFile"_s,
         result(int(FS_ERROR)),
         {31},
         returns([](auto &proxy) { return int(proxy.closeFile(31)); }),
         {int(FS_ERROR)},
         {int(FS_OK)}},
        {u"pushFileContents"_s,
         result(int(FS_ERROR)),
         {31, 4,
          // SHA-256 of the bytes 00 ff 80 41
          u"3507b01e644277ad3cd10dadd6e33cb801151e62e3cb899a67409ef701d6079c"_s},
         returns(
             [](auto &proxy) { return int(proxy.pushFileContents(31, "\x00\xff\x80\x41", 4)); }),
         {int(FS_ERROR)},
         {int(FS_OK)}},
        {u"pullFileContents"_s,
         {{u"result"_s, int(FS_NOMORE)}, {u"bytes"_s, pattern(4096, 6)}},
         {31, 5000},
         [](auto &proxy) -> QVariantList {
             long got = -9;
             QByteArray buffer(5000, 'x');
             const int done = proxy.pullFileContents(31, 5000, got, buffer.data());
             return {done, QVariant::fromValue(got), buffer};
         },
         {int(FS_NOMORE), QVariant::fromValue(4096L),
          patternBytes(4096, 6) + QByteArray(5000 - 4096, 'x')},
         {int(FS_OK), QVariant::fromValue(-9L), QByteArray(5000, 'x')}},
    };
}

} // namespace

const QVector<Wrapper> &wrappers()
{
    static const QVector<Wrapper> all =
        testWrappers() + instrumentWrappers() + directoryWrappers() + fileWrappers();
    return all;
}

const Wrapper &wrapper(const QString &operation)
{
    const auto found =
        std::find_if(wrappers().cbegin(), wrappers().cend(),
                     [&](const Wrapper &candidate) { return candidate.operation == operation; });
    Q_ASSERT(found != wrappers().cend());
    return *found;
}

QString describe(const QVariantList &outcome)
{
    QString text;
    QDebug(&text) << outcome;
    return text;
}
