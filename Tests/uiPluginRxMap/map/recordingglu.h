#pragma once

#include <QStringList>

#include <map>

/// Stands between the code under test and GLU's tessellator in a program that links it: every call is recorded and
/// passed on. There is one record for the whole process, as for the library.
class RecordingGlu {
public:
    static void clear();
    /// The calls in order, such as "gluTessVertex 0 -4.5 -10 #2": locations as %.17g, which tells any two doubles
    /// apart, and vertex data after "#".
    static QStringList calls();
    /// Number of calls of one function.
    static int count(const QString &function);
    /// The callbacks registered since clear(), by GLU's number for them.
    static std::map<unsigned int, void (*)()> callbacks();
    /// Calls of gluNewTess minus calls of gluDeleteTess since the program started.
    static int living();
    /// Makes the next gluNewTess fail.
    static void failNext();
};
