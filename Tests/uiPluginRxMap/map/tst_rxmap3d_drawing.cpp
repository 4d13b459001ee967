#include "drawingtest.h"

#include <QOpenGLShader>

/// The OpenGL calls of the drawable, through a recording function table.
class TestRxMap3DDrawing : public DrawingTest {
    Q_OBJECT

private Q_SLOTS:
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
    void aBankThatVanishesWhileItIsDrawnStaysWhole();
    void withoutItsContextNothingIsDrawn();
};

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
    const QStringList expected{"glCreateShader 0x8b31",  "glCreateShader 0x8b30", "glCompileShader 0x8b31",
                               "glCompileShader 0x8b30", "glAttachShader 0x8b31", "glAttachShader 0x8b30",
                               "glLinkProgram"};
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
    map->draw(QMatrix4x4(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16));
    const QStringList calls = gl->calls();
    QCOMPARE(calls.size(), 6);
    QCOMPARE(calls.at(0), QStringLiteral("glUseProgram"));
    QVERIFY(calls.at(1).startsWith(QLatin1String("glEnableVertexAttribArray")));
    QVERIFY(calls.at(2).startsWith(QLatin1String("glEnableVertexAttribArray")));
    // Row by row above; OpenGL takes it column by column.
    QCOMPARE(calls.at(3),
             QStringLiteral("glUniformMatrix4fv count 1 transpose 0 values "
                            "1 5 9 13 2 6 10 14 3 7 11 15 4 8 12 16"));
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

void TestRxMap3DDrawing::aBankThatVanishesWhileItIsDrawnStaysWhole()
{
    map->init();
    addBank(6);
    addBank(3);
    gl->clear();
    gl->watch([this](const QString &call) {
        if (call.startsWith(QLatin1String("glVertexAttribPointer")))
            RxMap3DProbe::editableBanks(*map).clear();
    });
    map->draw(QMatrix4x4());
    QCOMPARE(gl->calls().filter(QStringLiteral("glDrawArrays")), QStringList{"glDrawArrays 4 0 6"});
}

void TestRxMap3DDrawing::withoutItsContextNothingIsDrawn()
{
    map->init();
    addBank(6);
    gl->clear();
    QOpenGLContext::currentContext()->doneCurrent();
    map->draw(QMatrix4x4());
    QVERIFY(gl->calls().isEmpty());
}

RXMAP_TEST(TestRxMap3DDrawing, Widgets)
#include "tst_rxmap3d_drawing.moc"
