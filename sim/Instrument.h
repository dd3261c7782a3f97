#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

/** @file What a simulated instrument consists of. Texts are sent as UTF-8. */

struct Resource
{
    int id = 0;
    QByteArray type;
    QByteArray name;
};

struct Port
{
    int id = 0;
    QByteArray image;
    QVector<Resource> resources;
};

struct Module
{
    int id = 0;
    QByteArray type;
    QByteArray name;
    QByteArray serial;
    QVector<QByteArray> options;
    QByteArray image;
    QVector<Port> ports;
    bool isPresent = true;
};

/** A test that can be launched; see TestRunner for what its process does. */
struct AvailableTest
{
    /** The runnable state with which a test can be launched. */
    static constexpr int Runnable = 1;

    QByteArray name;
    int runnableState = Runnable;
    QByteArray options;
    QStringList command; ///< empty: the simulator's own test process
    int startMilliseconds = 200; ///< until it opens its port
    int runMilliseconds = 5000; ///< until it begins to close; 0: only when it is told to
    int closeMilliseconds = 200;
};

struct Instrument
{
    QByteArray model;
    QByteArray serial;
    QByteArray image;
    QVector<Module> modules;
    QVector<AvailableTest> tests;
    int maxClients = 16;
};

/**
 * Reads an instrument's description.
 * @param error what is wrong, in one line: the file, the place in it, what was expected and found
 */
bool readInstrument(const QString &fileName, Instrument &instrument, QString &error);
