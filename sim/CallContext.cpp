#include "CallContext.h"

namespace {

thread_local CallContext *theCall = nullptr;

} // namespace

CallContext *CallContext::current()
{
    return theCall;
}

CallContext::Scope::Scope(CallContext &context)
{
    theCall = &context;
}

CallContext::Scope::~Scope()
{
    theCall = nullptr;
}
