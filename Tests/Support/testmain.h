#pragma once

#include <QObject>

/// What a test class needs of Qt while it runs.
enum class TestApplication { None, Core, Widgets };

/// Registers a test class with its program under the name of its source. Use through RXMAP_TEST.
class TestRegistration {
public:
    /// `file`: path of the source; `make` gives an object that the caller owns.
    TestRegistration(const char *file, TestApplication application, QObject *(*make)());
};

/// Written once in the source of each test class, in place of a main(): the program that holds the source runs the
/// class when it is called with the source's name ("tst_camera"), followed by QtTest's own arguments.
#define RXMAP_TEST(Class, application)                                                                                 \
    static const TestRegistration registered##Class(__FILE__, TestApplication::application,                            \
                                                    []() -> QObject * { return new Class; });
