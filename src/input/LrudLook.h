#pragma once

#include <QString>

class QFrame;
class QPushButton;

/// What the frames and the keys of the direction keys' panel have in common.
namespace LrudLook {

void dress(QFrame *frame);
/// @p picture is the resource of the key's look; it determines the size, too.
void dress(QPushButton *key, const QString &picture);

} // namespace LrudLook
