#pragma once

#include <QFileSystemModel>

/** The toolkit's model without icons of single files, which would take most of its time. */
class PlainModel : public QFileSystemModel
{
public:
    PlainModel();
};
