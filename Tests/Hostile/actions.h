#pragma once

#include "sequence.h"

class HostileHost;

/// Something that a host, or its operator, does.
struct Action {
    const char *name;
    int weight;      ///< How often it is drawn, relative to the others.
    bool inDialog;   ///< Needs an open dialog.
    bool mayIntrude; ///< Also done by hooks, validators and subscribers.
    void (*run)(HostileHost &host, int a, int b);
};

/// Null for an unknown name.
const Action *findAction(const QString &name);
/// Action `number`, counted in a circle, among those that may intrude.
const Action &intruder(int number);

/// A working day of `length` steps.
Sequence hostileSequence(unsigned int seed, int length);
/// A settings dialog over some maps, with `length` touches of an operator, until it is closed.
Sequence dialogSequence(unsigned int seed, int length);
