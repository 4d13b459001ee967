#include "drawingtest.h"

#include "Framework/orvikdebugclass.h"

#include <cstdarg>
#include <cstdio>
#include <future>
#include <iostream>
#include <streambuf>
#include <thread>

namespace {

/// The writes to the system log and to standard output, in order: "log: ...", "output: ..." (several writes in a row
/// are one entry) and "flush".
QStringList journal;
/// Whether the debug output's lock was held at every entry of the journal, so that nobody else could take it.
bool wasAlwaysLocked = true;

const QString outputMark = QStringLiteral("output: ");

/// A held lock stays taken however short the patience is; to find that a lock is free, the patience must be long.
bool isLockedForOthers(std::chrono::milliseconds patience)
{
    std::promise<void> taken;
    std::future<void> waiting = taken.get_future();
    std::thread([promise = std::move(taken)]() mutable {
        ORVIK_DEBUG_CLASS::init()->lock();
        ORVIK_DEBUG_CLASS::init()->unlock();
        promise.set_value();
    }).detach();
    return waiting.wait_for(patience) == std::future_status::timeout;
}

void enter(const QString &entry)
{
    wasAlwaysLocked = wasAlwaysLocked && isLockedForOthers(std::chrono::milliseconds(30));
    if (entry.startsWith(outputMark) && !journal.isEmpty() && journal.last().startsWith(outputMark))
        journal.last() += entry.mid(outputMark.size());
    else
        journal.append(entry);
}

/// Takes the place of std::cout's buffer while it lives and enters everything in the journal.
class OutputJournal : private std::streambuf {
public:
    OutputJournal()
        : former(std::cout.rdbuf(this))
    {
    }
    ~OutputJournal() override { std::cout.rdbuf(former); }

private:
    int_type overflow(int_type character) override
    {
        enter(outputMark + QLatin1Char(traits_type::to_char_type(character)));
        return character;
    }

    std::streamsize xsputn(const char *text, std::streamsize size) override
    {
        enter(outputMark + QString::fromLatin1(text, static_cast<int>(size)));
        return size;
    }

    int sync() override
    {
        enter(QStringLiteral("flush"));
        return 0;
    }

    std::streambuf *former;
};

} // namespace

static void enterLogLine(int priority, const char *format, va_list arguments)
{
    char text[1024];
    std::vsnprintf(text, sizeof text, format, arguments);
    enter(QStringLiteral("log: %1 %2 %3").arg(priority).arg(QLatin1String(format), QLatin1String(text)));
}

// Replaces the C library's system log in this program.
extern "C" void syslog(int priority, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    enterLogLine(priority, format, arguments);
    va_end(arguments);
}

// The names of the log in a build with checked library functions: g++ takes the first, clang the second.
extern "C" void __syslog_chk(int priority, int /*flag*/, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    enterLogLine(priority, format, arguments);
    va_end(arguments);
}

extern "C" void __vsyslog_chk(int priority, int /*flag*/, const char *format, va_list arguments)
{
    enterLogLine(priority, format, arguments);
}

/// How OpenGL errors that are pending are reported after each draw call.
class TestRxMap3DErrors : public DrawingTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pendingErrorsAreReported_data();
    void pendingErrorsAreReported();
    void theReportedCodeIsReadUnderTheLock();
    void drawingGoesOnAfterAnError();

private:
    /// The journal of one draw().
    QStringList journalOfDraw();
};

void TestRxMap3DErrors::init()
{
    DrawingTest::init();
    journal.clear();
    wasAlwaysLocked = true;
}

QStringList TestRxMap3DErrors::journalOfDraw()
{
    const OutputJournal redirected;
    map->draw(QMatrix4x4());
    return journal;
}

void TestRxMap3DErrors::pendingErrorsAreReported_data()
{
    QTest::addColumn<QList<unsigned int>>("pending");
    QTest::addColumn<QList<unsigned int>>("reported");
    using Codes = QList<unsigned int>;
    QTest::newRow("none") << Codes{0} << Codes{};
    QTest::newRow("one is consumed by the test") << Codes{1280, 0, 0} << Codes{0};
    QTest::newRow("the second of two") << Codes{1280, 1281, 0} << Codes{1281};
    QTest::newRow("three") << Codes{1280, 1281, 1282, 0, 0} << Codes{1281, 0};
}

void TestRxMap3DErrors::pendingErrorsAreReported()
{
    QFETCH(QList<unsigned int>, pending);
    QFETCH(QList<unsigned int>, reported);
    map->init();
    addBank(3);
    gl->clear();
    gl->pend(pending);
    const QStringList entries = journalOfDraw();
    QCOMPARE(gl->count(QStringLiteral("glGetError")), pending.size());
    QCOMPARE(entries.size(), 3 * reported.size());
    for (int i = 0; i < reported.size(); ++i) {
        static const QRegularExpression form(QStringLiteral(
            "^log: 3 %s (ERROR: An error occurred in: OpenGL: Plugins/uiPluginRxMap/rxmap3d\\([1-9]\\d*\\) %1\n)$"));
        const QRegularExpression expected(form.pattern().arg(reported.at(i)));
        const QRegularExpressionMatch match = expected.match(entries.at(3 * i));
        QVERIFY2(match.hasMatch(), qPrintable(entries.at(3 * i)));
        QCOMPARE(entries.at(3 * i + 1), outputMark + match.captured(1) + QLatin1Char('\n'));
        QCOMPARE(entries.at(3 * i + 2), QStringLiteral("flush"));
    }
    QVERIFY(wasAlwaysLocked);
    ORVIK_DEBUG_CLASS::init()->lock();
    ORVIK_DEBUG_CLASS::init()->unlock();
}

void TestRxMap3DErrors::theReportedCodeIsReadUnderTheLock()
{
    map->init();
    addBank(3);
    gl->pend({1280, 1281, 0});
    QList<bool> locked;
    gl->watch([&locked](const QString &call) {
        if (call != QLatin1String("glGetError"))
            return;
        const bool isSecondRead = locked.size() == 1;
        locked.append(isLockedForOthers(isSecondRead ? std::chrono::milliseconds(30) : std::chrono::seconds(10)));
    });
    journalOfDraw();
    QCOMPARE(locked, (QList<bool>{false, true, false}));
}

void TestRxMap3DErrors::drawingGoesOnAfterAnError()
{
    map->init();
    addBank(3);
    addBank(6);
    gl->clear();
    gl->pend({1280, 0, 0});
    const QStringList entries = journalOfDraw();
    QCOMPARE(gl->count(QStringLiteral("glDrawArrays")), 2);
    QCOMPARE(entries.filter(QStringLiteral("log: ")).size(), 1);
}

RXMAP_TEST(TestRxMap3DErrors, Widgets)
#include "tst_rxmap3d_errors.moc"
