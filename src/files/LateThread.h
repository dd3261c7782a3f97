#pragma once

#include <QThread>

#include <memory>

class FcpAppCORBA;

/** What becomes of a thread whose owner goes while it may be in a call of the controller's. */
namespace LateThread {

/**
 * Lets a thread that has been told to end do so by itself, and be deleted then: whoever goes does
 * not wait for a controller that does not answer. What @p thread tells must reach nobody any more.
 *
 * @p controller waits for it in its destructor. On the thread that @p thread belongs to.
 */
void letGo(std::unique_ptr<QThread> thread, FcpAppCORBA *controller);

} // namespace LateThread
