#pragma once

#include <QString>

/**
 * What the head of a saved file tells about who wrote it: the texts of the elements of these
 * names, as they stand.
 */
struct FileData
{
    QString ServerId; ///< the controller that the file was written for
    QString AppType; ///< type of the application that wrote it
    QString AppTech; ///< technology (variant) of that application
    QString Ports; ///< the ports that it used
    QString Timestamp; ///< when it was written
};
