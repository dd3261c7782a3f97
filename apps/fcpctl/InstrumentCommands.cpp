// What the instrument is: info, modules, ports, resources.

#include "CommandLine.h"
#include "Output.h"
#include "Table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Done = static_cast<int>(Exit::Done);

QString number(qint64 value)
{
    return QString::number(value);
}

int info(const Invocation &invocation)
{
    const Session session(invocation.address());
    ControllerInformation controller;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getController(controller); });
    ControllerStatusInformation status;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getControllerStatus(status); });
    const long countOk = session.ask([](FcpAppCORBA &fcp) { return fcp.isMaximumClientCountOK(); });
    const qint32 clientId = session.controller()->clientId();

    if (invocation.json()) {
        Output::json(QJsonObject {
            {u"host"_s, session.address().host},
            {u"port"_s, session.address().port},
            {u"model"_s, controller.controllerModel},
            {u"serial"_s, controller.controllerSerial},
            {u"imageBytes"_s, controller.controllerImage.size()},
            {u"status"_s, status.bogusInformation},
            {u"clientId"_s, clientId},
            {u"clientCountOk"_s, countOk != 0},
        });
        return Done;
    }
    Output::line(u"Controller    "_s + session.address().toString());
    Output::line(u"Model         "_s + Output::name(controller.controllerModel));
    Output::line(u"Serial        "_s + Output::name(controller.controllerSerial));
    Output::line(u"Image         %1 bytes"_s.arg(controller.controllerImage.size()));
    Output::line(u"Status        %1"_s.arg(status.bogusInformation));
    Output::line(u"This client   %1"_s.arg(clientId));
    Output::line(u"Client count  "_s + (countOk != 0 ? u"ok"_s : u"over the limit"_s));
    return Done;
}

int modules(const Invocation &invocation)
{
    const Session session(invocation.address());
    QVector<ModuleInformation> modules;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getModules(modules); });

    QJsonArray array;
    Table table({{u"ID"_s, Table::Align::Right},
                 {u"TYPE"_s},
                 {u"NAME"_s},
                 {u"SERIAL"_s},
                 {u"IMAGE BYTES"_s, Table::Align::Right},
                 {u"OPTIONS"_s}});
    for (const ModuleInformation &module : modules) {
        QStringList options;
        for (const ModuleGenOptionInformation &fitted : module.moduleGenOptions) {
            options += fitted.option;
        }
        array += QJsonObject {
            {u"id"_s, module.moduleID},
            {u"type"_s, module.moduleType},
            {u"name"_s, module.moduleName},
            {u"serial"_s, module.moduleSerialNumber},
            {u"options"_s, QJsonArray::fromStringList(options)},
            {u"imageBytes"_s, module.moduleImage.size()},
        };
        table.add({number(module.moduleID), Output::name(module.moduleType),
                   Output::name(module.moduleName), Output::name(module.moduleSerialNumber),
                   number(module.moduleImage.size()), Output::name(options.join(u", "_s))});
    }
    invocation.json() ? Output::json(array) : Output::write(table.text());
    return Done;
}

int ports(const Invocation &invocation)
{
    const Session session(invocation.address());
    QVector<PortInformation> ports;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getPorts(ports); });

    QJsonArray array;
    Table table({{u"ID"_s, Table::Align::Right},
                 {u"MODULE"_s, Table::Align::Right},
                 {u"IMAGE BYTES"_s, Table::Align::Right}});
    for (const PortInformation &port : ports) {
        array += QJsonObject {
            {u"id"_s, port.portID},
            {u"module"_s, port.moduleID},
            {u"imageBytes"_s, port.portImage.size()},
        };
        table.add({number(port.portID), number(port.moduleID), number(port.portImage.size())});
    }
    invocation.json() ? Output::json(array) : Output::write(table.text());
    return Done;
}

QVector<ResourceStatusInformation> resourceStatuses(const Session &session)
{
    QVector<ResourceStatusInformation> statuses;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getResourcesStatus(statuses); });
    return statuses;
}

/// The status of @p resource, or null when the controller told none.
const ResourceStatusInformation *find(const QVector<ResourceStatusInformation> &statuses,
                                      const ResourceInformation &resource)
{
    const auto found = std::find_if(
        statuses.begin(), statuses.end(), [&resource](const ResourceStatusInformation &status) {
            return status.moduleID == resource.moduleID && status.resourceID == resource.resourceID;
        });
    return found == statuses.end() ? nullptr : &*found;
}

int resources(const Invocation &invocation)
{
    const Session session(invocation.address());
    QVector<ResourceInformation> resources;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getResources(resources); });
    const bool wantsStatus = invocation.isSet(u"status"_s);
    const QVector<ResourceStatusInformation> statuses =
        wantsStatus ? resourceStatuses(session) : QVector<ResourceStatusInformation>();

    QList<Table::Column> columns {{u"PORT"_s, Table::Align::Right},
                                  {u"MODULE"_s, Table::Align::Right},
                                  {u"ID"_s, Table::Align::Right},
                                  {u"TYPE"_s},
                                  {u"NAME"_s}};
    if (wantsStatus) {
        columns << Table::Column {u"SERVER"_s, Table::Align::Right}
                << Table::Column {u"STATUS"_s, Table::Align::Right};
    }
    QJsonArray array;
    Table table(columns);
    for (const ResourceInformation &resource : resources) {
        QJsonObject object {
            {u"port"_s, resource.portID},       {u"module"_s, resource.moduleID},
            {u"id"_s, resource.resourceID},     {u"type"_s, resource.resourceType},
            {u"name"_s, resource.resourceName},
        };
        QStringList row {number(resource.portID), number(resource.moduleID),
                         number(resource.resourceID), Output::name(resource.resourceType),
                         Output::name(resource.resourceName)};
        if (wantsStatus) {
            const ResourceStatusInformation *status = find(statuses, resource);
            object[u"server"_s] = status ? QJsonValue(status->serverID) : QJsonValue();
            object[u"status"_s] = status ? QJsonValue(status->status) : QJsonValue();
            row << (status ? number(status->serverID) : u"-"_s)
                << (status ? number(status->status) : u"-"_s);
        }
        array += object;
        table.add(row);
    }
    invocation.json() ? Output::json(array) : Output::write(table.text());
    return Done;
}

} // namespace

QList<Command> instrumentCommands()
{
    return {
        {.name = u"info"_s, .summary = u"Show the controller."_s, .run = info},
        {.name = u"modules"_s, .summary = u"List the modules plugged in."_s, .run = modules},
        {.name = u"ports"_s, .summary = u"List the modules' ports."_s, .run = ports},
        {.name = u"resources"_s,
         .summary = u"List the resources that tests can use."_s,
         .options = {{u"status"_s, u"Also show who holds each and its status."_s}},
         .run = resources},
    };
}
