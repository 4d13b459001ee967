#include "currentcontext.h"
#include "maphost.h"
#include "recordinggl.h"
#include "rxmap3dprobe.h"
#include "testbase.h"

#include "Framework/dbgroupaam.h"
#include "Framework/orvikdebugclass.h"
#include "bePluginRxMap/dbgrouprxmap.h"

#include <QOpenGLShader>

#include <cstdarg>
#include <cstdio>
#include <future>
#include <iostream>
#include <streambuf>
#include <thread>

namespace {

/// What reached the system log and standard output, in order: "log: ...", "output: ..." (several writes in a row are
/// one entry) and "flush".
QStringList journal;
/// Whether nobody else could take the debug output's lock at any entry of the journal.
bool wasAlwaysLocked = true;

const QString outputMark = QStringLiteral("output: ");

bool isLockedForOthers()
{
    std::promise<void> taken;
    std::future<void> waiting = taken.get_future();
    std::thread([promise = std::move(taken)]() mutable {
        ORVIK_DEBUG_CLASS::init()->lock();
        ORVIK_DEBUG_CLASS::init()->unlock();
        promise.set_value();
    }).detach();
    return waiting.wait_for(std::chrono::milliseconds(30)) == std::future_status::timeout;
}

void enter(const QString &entry)
{
    wasAlwaysLocked = wasAlwaysLocked && isLockedForOthers();
    if (entry.startsWith(outputMark) && !journal.isEmpty() && journal.last().startsWith(outputMark))
        journal.last() += entry.mid(outputMark.size());
    else
        journal.append(entry);
}

/// Stands behind std::cout while it lives and enters everything in the journal.
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

// Stands in for the C library's system log in this program.
extern "C" void syslog(int priority, const char *format, ...)
{
    char text[1024];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    enter(QStringLiteral("log: %1 %2 %3").arg(priority).arg(QLatin1String(format), QLatin1String(text)));
}

/// The OpenGL calls of the drawable, through a recording function table.
class TestRxMap3DDrawing : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void initWithoutAContextDoesNothing();
    void initCompilesBothShadersAndLinks();
    void aSecondInitDoesNothing();
    void drawBeforeInitMakesNoCall();
    void drawWithoutBanksMakesNoDrawCall();
    void aBankIsDrawnInOneCallFromClientMemory();
    void drawLeavesAllOtherState();
    void anEmptyBankIsSkippedWithoutAnErrorCheck();
    void banksAreDrawnInListOrder();
    void aBanksOwnPrimitiveIsNotConsulted();
    void drawChangesNothingInTheDrawable();
    void pendingErrorsAreReported_data();
    void pendingErrorsAreReported();
    void drawingGoesOnAfterAnError();

private:
    void addBank(int vertices, qint32 primitive = 4);
    /// The journal of one draw().
    QStringList journalOfDraw();

    QScopedPointer<CurrentContext> context;
    QScopedPointer<RecordingGl> gl;
    QScopedPointer<MapHost> host;
    QScopedPointer<RxMap3D> map;
};

void TestRxMap3DDrawing::init()
{
    TestBase::init();
    journal.clear();
    wasAlwaysLocked = true;
    context.reset(new CurrentContext);
    QVERIFY(context->isValid());
    gl.reset(new RecordingGl);
    host.reset(new MapHost);
    map.reset(new RxMap3D(&host->broker, nullptr));
}

void TestRxMap3DDrawing::cleanup()
{
    map.reset();
    host.reset();
    gl.reset();
    context.reset();
    TestBase::cleanup();
}

void TestRxMap3DDrawing::addBank(int vertices, qint32 primitive)
{
    VertexBank *bank = map->addVertexBank(QStringLiteral("bank"));
    bank->primitive = primitive;
    for (int i = 0; i < vertices; ++i)
        bank->vertices.append({static_cast<float>(i), -4.99F, 0.0F, 0x80FFFFFFU});
}

QStringList TestRxMap3DDrawing::journalOfDraw()
{
    const OutputJournal redirected;
    map->draw(QMatrix4x4());
    return journal;
}

void TestRxMap3DDrawing::initWithoutAContextDoesNothing()
{
    gl.reset();
    context.reset();
    map->init();
    QVERIFY(map->findChildren<QOpenGLShader *>().isEmpty());
    map->draw(QMatrix4x4());
}

void TestRxMap3DDrawing::initCompilesBothShadersAndLinks()
{
    map->init();
    QStringList calls = gl->calls();
    calls.removeAll(QStringLiteral("glGetError"));
    const QStringList expected{"glCreateShader 0x8b31", "glCreateShader 0x8b30", "glCompileShader", "glCompileShader",
                               "glAttachShader",        "glAttachShader",        "glLinkProgram"};
    QCOMPARE(calls, expected);
    const auto shaders = map->findChildren<QOpenGLShader *>();
    QCOMPARE(shaders.size(), 2);
    QVERIFY(shaders.at(0)->isCompiled() && shaders.at(1)->isCompiled());
}

void TestRxMap3DDrawing::aSecondInitDoesNothing()
{
    map->init();
    gl->clear();
    map->init();
    QVERIFY(gl->calls().isEmpty());
    QCOMPARE(map->findChildren<QOpenGLShader *>().size(), 2);
}

void TestRxMap3DDrawing::drawBeforeInitMakesNoCall()
{
    addBank(6);
    map->draw(QMatrix4x4());
    QVERIFY(gl->calls().isEmpty());
}

void TestRxMap3DDrawing::drawWithoutBanksMakesNoDrawCall()
{
    map->init();
    gl->clear();
    QMatrix4x4 matrix;
    matrix(0, 0) = 7.0F;
    map->draw(matrix);
    const QStringList calls = gl->calls();
    QCOMPARE(calls.size(), 6);
    QCOMPARE(calls.at(0), QStringLiteral("glUseProgram"));
    QVERIFY(calls.at(1).startsWith(QLatin1String("glEnableVertexAttribArray")));
    QVERIFY(calls.at(2).startsWith(QLatin1String("glEnableVertexAttribArray")));
    QCOMPARE(calls.at(3), QStringLiteral("glUniformMatrix4fv count 1 transpose 0 first 7"));
    QCOMPARE(calls.at(4), QString(calls.at(1)).replace(QLatin1String("Enable"), QLatin1String("Disable")));
    QCOMPARE(calls.at(5), QString(calls.at(2)).replace(QLatin1String("Enable"), QLatin1String("Disable")));
}

void TestRxMap3DDrawing::aBankIsDrawnInOneCallFromClientMemory()
{
    map->init();
    addBank(6);
    gl->clear();
    map->draw(QMatrix4x4());
    const QStringList calls = gl->calls();
    const QString position = calls.at(1).section(QLatin1Char(' '), 1);
    const QString color = calls.at(2).section(QLatin1Char(' '), 1);
    const QStringList middle{
        QStringLiteral("glVertexAttribPointer %1 size 3 type 0x1406 stride 16").arg(position),
        QStringLiteral("glVertexAttribPointer %1 size 4 type 0x1401 stride 16 normalised").arg(color),
        QStringLiteral("glDrawArrays 4 0 6"), QStringLiteral("glGetError")};
    QCOMPARE(calls.mid(4, 4), middle);
    QCOMPARE(calls.size(), 10);
    const Vertex *first = RxMap3DProbe::banks(*map).at(0).vertices.constData();
    QCOMPARE(RecordingGl::pointerOf(position.toUInt()), static_cast<const void *>(first));
    QCOMPARE(RecordingGl::pointerOf(color.toUInt()),
             static_cast<const void *>(reinterpret_cast<const char *>(first) + 12));
}

void TestRxMap3DDrawing::drawLeavesAllOtherState()
{
    map->init();
    addBank(6);
    gl->clear();
    map->draw(QMatrix4x4());
    for (const char *function :
         {"glEnable", "glDisable", "glBindBuffer", "glBlendFunc", "glBlendFuncSeparate", "glDepthMask", "glDepthFunc",
          "glCullFace", "glViewport", "glColorMask", "glActiveTexture"})
        QVERIFY2(gl->count(QLatin1String(function)) == 0, function);
}

void TestRxMap3DDrawing::anEmptyBankIsSkippedWithoutAnErrorCheck()
{
    map->init();
    addBank(0);
    gl->clear();
    map->draw(QMatrix4x4());
    QCOMPARE(gl->count(QStringLiteral("glGetError")), 0);
    QCOMPARE(gl->count(QStringLiteral("glDrawArrays")), 0);
}

void TestRxMap3DDrawing::banksAreDrawnInListOrder()
{
    map->init();
    addBank(9);
    addBank(0);
    addBank(3);
    gl->clear();
    map->draw(QMatrix4x4());
    QCOMPARE(gl->calls().filter(QStringLiteral("glDrawArrays")),
             (QStringList{"glDrawArrays 4 0 9", "glDrawArrays 4 0 3"}));
    QCOMPARE(gl->count(QStringLiteral("glUseProgram")), 1);
}

void TestRxMap3DDrawing::aBanksOwnPrimitiveIsNotConsulted()
{
    map->init();
    addBank(6, 1);
    gl->clear();
    map->draw(QMatrix4x4());
    QCOMPARE(gl->count(QStringLiteral("glDrawArrays 4")), 1);
}

void TestRxMap3DDrawing::drawChangesNothingInTheDrawable()
{
    map->init();
    addBank(6);
    const Vertex *first = RxMap3DProbe::banks(*map).at(0).vertices.constData();
    map->draw(QMatrix4x4());
    map->draw(QMatrix4x4());
    QCOMPARE(RxMap3DProbe::banks(*map).size(), 1);
    QCOMPARE(RxMap3DProbe::banks(*map).at(0).vertices.constData(), first);
}

void TestRxMap3DDrawing::pendingErrorsAreReported_data()
{
    QTest::addColumn<QList<unsigned int>>("pending");
    QTest::addColumn<QList<unsigned int>>("reported");
    using Codes = QList<unsigned int>;
    QTest::newRow("none") << Codes{0} << Codes{};
    QTest::newRow("one is consumed by the test") << Codes{1280, 0, 0} << Codes{0};
    QTest::newRow("the second of two") << Codes{1280, 1281, 0} << Codes{1281};
    QTest::newRow("three") << Codes{1280, 1281, 1282, 0, 0} << Codes{1281, 0};
}

void TestRxMap3DDrawing::pendingErrorsAreReported()
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
            "^log: 3 %s (ERROR: An error occurred in: OpenGL: Plugins/uiPluginRxMap/rxmap3d\\(\\d+\\) %1\n)$"));
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

void TestRxMap3DDrawing::drawingGoesOnAfterAnError()
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

QTEST_MAIN(TestRxMap3DDrawing)
#include "tst_rxmap3d_drawing.moc"
