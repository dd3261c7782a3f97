#pragma once

#include <functional>
#include <string>

struct Fault;
class CallContext;
class omniCallHandle;

/**
 * Does to a call what @p fault wants, at the level of the ORB's connection. No thread is held by a
 * call that is never answered.
 * @param execute carries the call out and answers it
 * @return what @p execute has returned
 */
bool injectFault(const Fault &fault, omniCallHandle &call, CallContext &context,
                 const std::function<bool()> &execute);

/** Whether there is a CORBA system exception of this name ("COMM_FAILURE"). */
bool isSystemException(const std::string &name);
