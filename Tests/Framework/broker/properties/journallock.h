#pragma once

#include "accessjournal.h"

#include "Framework/grouplock.h"

/// A lock for a single thread that records what is done to it.
class JournalLock : public GroupLock {
public:
    explicit JournalLock(AccessJournal &journal);

    void lock(int mode) override;
    void unlock() override;
    bool isHeld() const { return depth > 0; }

private:
    AccessJournal &journal;
    int depth = 0;
};
