#pragma once

#include <QStringList>

#include <map>

/// Stands between the code under test and GLU's tessellator in a program that links it: every call is recorded and
/// handed on. Process-wide, as the library is.
class RecordingGlu {
public:
    static void clear();
    /// Calls in order, such as "gluTessVertex 0 -4.5 -10 #2", with locations as %.17g, which tells any two doubles
    /// apart, and vertex data after "#".
    static QStringList calls();
    /// Calls of one function.
    static int count(const QString &function);
    /// The callbacks registered since clear(), by GLU's number.
    static std::map<unsigned int, void (*)()> callbacks();
    /// gluNewTess minus gluDeleteTess since the program started.
    static int living();
    /// Lets the next gluNewTess fail.
    static void failNext();
};
