#pragma once

#include <QtGlobal>

#include <memory>

#include <VexExport.h>

/**
 * Where VexHID gets the keypad's reports from.
 *
 * All of it is called from the keypad thread, in the order prepare(), open(), setActive(true),
 * listen() again and again, setActive(false), close(). Each returns Success, or another number
 * when it fails.
 */
class VEX_EXPORT VexHidDriver
{
public:
    enum Result { Success = 0, NothingYet = 3 };
    enum ReportType : quint8 { Button = 0, Wheel = 1 };

    struct Report
    {
        quint8 type = Button;
        /** Of the button: a word whose bit 1 is 0 while it is pressed. Of the wheel: a signed
           number of detents since the last report. */
        quint16 value = 0;
    };

    virtual ~VexHidDriver();

    virtual int prepare() = 0;
    virtual int open() = 0;
    virtual int setActive(bool on) = 0;
    /**
     * Waits for the next report, without using the processor. It gives up with NothingYet after a
     * fraction of a second, so that the thread can be stopped.
     */
    virtual int listen(Report &report) = 0;
    virtual int close() = 0;

    /** The keypad's own driver where it is installed, else the kernel's input devices. */
    static std::unique_ptr<VexHidDriver> forThisSystem();
};
