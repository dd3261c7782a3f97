#pragma once

#include <QString>

class QPushButton;
class QWidget;

/// What the pages share in their looks; the colours are those of the artwork's plates.
namespace Look {

constexpr int fingerSize = 48; ///< the least that a finger meets, in pixels

extern const QString plateSheet; ///< of a large button
extern const QString switchSheet; ///< of a button that stays down

/// A large button to begin with.
QPushButton *target(const QString &text, QWidget *parent);

} // namespace Look
