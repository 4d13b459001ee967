#include "writeoutcome.h"

namespace {

thread_local WriteOutcome *waiting = nullptr;

} // namespace

WriteOutcome::WriteOutcome()
    : previous(waiting)
{
    waiting = this;
}

WriteOutcome::~WriteOutcome()
{
    waiting = previous;
}

void WriteOutcome::report(int code)
{
    if (waiting == nullptr)
        return;
    waiting->reported = code;
    waiting = nullptr;
}

WriteOutcome::Pause::Pause()
    : paused(waiting)
{
    waiting = nullptr;
}

WriteOutcome::Pause::~Pause()
{
    waiting = paused;
}
