#include "testmain.h"

#include "ownlooks.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QMap>
#include <QScopedPointer>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

namespace {

struct Entry {
    TestApplication application = TestApplication::None;
    QObject *(*make)() = nullptr;
};

QMap<QString, Entry> &entries()
{
    static QMap<QString, Entry> all;
    return all;
}

/// Makes texts as wide in a test as on the terminal, and colours the same, whatever the desktop.
QCoreApplication *makeGuiApplication(int &argc, char *argv[])
{
    OwnLooks::fixResolution();
    auto *application = new QApplication(argc, argv);
    OwnLooks::apply();
    return application;
}

QCoreApplication *makeApplication(TestApplication kind, int &argc, char *argv[])
{
    switch (kind) {
    case TestApplication::Core:
        return new QCoreApplication(argc, argv);
    case TestApplication::Widgets:
        return makeGuiApplication(argc, argv);
    case TestApplication::None:
        break;
    }
    return nullptr;
}

} // namespace

TestRegistration::TestRegistration(const char *file, TestApplication application, QObject *(*make)())
{
    entries().insert(QFileInfo(QString::fromLocal8Bit(file)).completeBaseName(), {application, make});
}

int main(int argc, char *argv[])
{
    const auto entry = entries().constFind(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (entry == entries().constEnd()) {
        std::fprintf(stderr, "usage: %s TEST [QtTest's options]; the tests are:\n", argv[0]);
        for (auto test = entries().keyBegin(); test != entries().keyEnd(); ++test)
            std::fprintf(stderr, "  %s\n", qPrintable(*test));
        return 1;
    }
    // Qt finds its own arguments behind the program's name.
    argv[1] = argv[0];
    --argc;
    ++argv;
    // Tests must not touch what the terminal remembers of its operator.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    // Numbers are written as on an English terminal, whatever the computer's language.
    QLocale::setDefault(QLocale::English);
    const QScopedPointer<QCoreApplication> application(makeApplication(entry->application, argc, argv));
    const QScopedPointer<QObject> test(entry->make());
    return QTest::qExec(test.data(), argc, argv);
}
