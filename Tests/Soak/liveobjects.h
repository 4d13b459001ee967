#pragma once

/// What the Qt objects of the process hold. Every object made after watch() is known, whoever owns it.
namespace LiveObjects {

/// Must be called once, before the first object is made.
void watch();

int count();
/// Of the calling thread's objects: running timers, and connections of their signals.
int timers();
int connections();

} // namespace LiveObjects
