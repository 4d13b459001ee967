#pragma once

/// What Qt's objects of the process hold. Every object that is made after watch() is known, whoever owns it.
namespace LiveObjects {

/// To be called once, before the first object is made.
void watch();

int count();
/// Of the calling thread's objects: timers that run, and connections of their signals.
int timers();
int connections();

} // namespace LiveObjects
