#pragma once

#include "VexExport.h"

/**
 * What wants to be told when properties change; see PropertiesManager for where to register.
 *
 * Both operations run on the thread that set the property, with no lock held: they may read and set
 * properties, and register and unregister listeners, themselves included. They say that there was a
 * change, not which: the value to work with is the one that PropertiesManager::getProperty()
 * returns then. No exception may leave them.
 *
 * A listener is unregistered before it is deleted (PropertiesManager::unregisterListener()). A copy
 * is registered nowhere.
 */
class VEX_EXPORT PropertiesListener
{
public:
    PropertiesListener() = default;
    PropertiesListener(const PropertiesListener &) = default;
    PropertiesListener &operator=(const PropertiesListener &) = default;

    /** The property @p id was set. Does nothing by default. */
    virtual void PropertyChanged(long id);
    /** A property of @p group was set. Does nothing by default. */
    virtual void PropertyGroupChanged(long group);

    virtual ~PropertiesListener();
};
