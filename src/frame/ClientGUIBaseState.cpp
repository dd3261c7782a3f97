#include <properties/PropertiesManager.h>

#include "ClientGUIBase.h"
#include "ClientGUIBase_p.h"
#include "MeasurementInfo.h"

void ClientGUIBase::setApplicationStatus(const QString &status)
{
    Q_EMIT applicationStatusSet(status);
}

void ClientGUIBase::setApplicationIndicator(bool on)
{
    Q_EMIT applicationIndicatorSet(on);
}

void ClientGUIBase::setApplicationProgress(long complete, long total)
{
    Q_EMIT applicationProgressSet(complete, total);
}

void ClientGUIBase::setApplicationPassFail(AppPassFail state)
{
    Q_EMIT applicationPassFailSet(int(state));
}

void ClientGUIBase::setApplicationSummary(AppPassFail state)
{
    Q_EMIT applicationSummarySet(int(state));
}

void ClientGUIBase::setGUIAccessState(int state)
{
    Q_EMIT applicationGUIAccessSet(state);
}

void ClientGUIBase::Alert()
{
    Q_EMIT alert();
}

void ClientGUIBase::ApplicationClosed()
{
    Q_EMIT applicationClosed();
}

void ClientGUIBase::ApplicationCloseCanceled()
{
    Q_EMIT applicationCloseCanceled();
}

QString ClientGUIBase::getApplicationName() const
{
    return d->name;
}

QString ClientGUIBase::getApplicationPort() const
{
    return d->port;
}

void ClientGUIBase::setApplicationPort(const QString &port)
{
    d->port = port;
    Q_EMIT applicationPortSet(port);
}

QString ClientGUIBase::getApplicationInfo() const
{
    return d->info;
}

void ClientGUIBase::setApplicationInfo(const QString &info)
{
    d->info = info;
    Q_EMIT applicationInfoSet(info);
}

QString ClientGUIBase::getApplicationSetupExt() const
{
    return d->setupExt;
}

void ClientGUIBase::setApplicationSetupExt(const QString &extension)
{
    d->setupExt = extension;
}

QString ClientGUIBase::getApplicationResultExt() const
{
    return d->resultExt;
}

void ClientGUIBase::setApplicationResultExt(const QString &extension)
{
    d->resultExt = extension;
}

QString ClientGUIBase::getApplicationDescriptorId() const
{
    return d->descriptorId;
}

void ClientGUIBase::setApplicationDescriptorId(const QString &id)
{
    d->descriptorId = id;
}

int ClientGUIBase::isAutoSave() const
{
    return d->autoSave;
}

void ClientGUIBase::setAutoSave(int value)
{
    d->autoSave = value;
    Q_EMIT autoSaveChanged(value);
}

int ClientGUIBase::getCsvDelimiter() const
{
    return d->csvDelimiter;
}

void ClientGUIBase::setCsvDelimiter(int value)
{
    d->csvDelimiter = value;
    Q_EMIT csvDelimiterChanged(value);
}

int ClientGUIBase::getPvtPeriod() const
{
    return d->pvtPeriod;
}

void ClientGUIBase::setPvtPeriod(int value)
{
    d->pvtPeriod = value;
    Q_EMIT pvtPeriodChanged(value);
}

void ClientGUIBase::setBuzzerVolume(int value)
{
    Q_EMIT buzzerVolumeChanged(value);
}

void ClientGUIBase::updateMainframeUnitId(int value)
{
    Q_EMIT mainframeUnitIdChanged(value);
}

QString ClientGUIBase::getLanguage() const
{
    return d->language;
}

void ClientGUIBase::setLanguage(const QString &language)
{
    d->language = language;
    Q_EMIT languageChanged(language);
}

void ClientGUIBase::initLanguage(const QString &language)
{
    d->language = language;
}

QString ClientGUIBase::getResultsHomeDir() const
{
    return d->resultsHomeDir;
}

void ClientGUIBase::setResultsHomeDir(const QString &path)
{
    d->resultsHomeDir = path;
}

bool ClientGUIBase::isShowConfirmations() const
{
    return d->showConfirmations;
}

void ClientGUIBase::setShowConfirmations(bool show)
{
    d->showConfirmations = show;
}

int ClientGUIBase::getClientId() const
{
    return d->clientId;
}

void ClientGUIBase::setClientId(int id)
{
    d->clientId = id;
}

int ClientGUIBase::getServerId() const
{
    return d->serverId;
}

void ClientGUIBase::setServerId(int id)
{
    d->serverId = id;
}

bool ClientGUIBase::isRemoteLocked() const
{
    return d->remoteLocked;
}

void ClientGUIBase::setScpiFileProperties()
{
    const PropertiesManager *properties = PropertiesManager::instance();
    d->scpi.first = properties->getPropertyInt(140, 0);
    d->scpi.second = properties->getPropertyInt(142, 0);
    d->scpi.text = properties->getProperty(141);
}

void ClientGUIBase::loadFileToView(const QString &filename)
{
    Q_EMIT loadFileToViewRequested(filename);
}

void ClientGUIBase::updateArgs(QVector<QString> &) { }

void ClientGUIBase::executeAppCommand(const QString &) { }

bool ClientGUIBase::preprocessPythonFile()
{
    return true;
}

void ClientGUIBase::enableRemoteLogging(const QString &) { }

void ClientGUIBase::disableRemoteLogging() { }

void ClientGUIBase::setOperationLogging(bool) { }

void ClientGUIBase::getMeasurementInfo(MeasurementInfo &) { }

void ClientGUIBase::updateText() { }

void ClientGUIBase::requestRemoteUnlock() { }
