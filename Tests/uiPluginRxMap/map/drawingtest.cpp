#include "drawingtest.h"

void DrawingTest::init()
{
    TestBase::init();
    context.reset(new CurrentContext);
    QVERIFY(context->isValid());
    gl.reset(new RecordingGl);
    host.reset(new MapHost);
    map.reset(new RxMap3D(&host->broker, nullptr));
}

void DrawingTest::cleanup()
{
    map.reset();
    host.reset();
    gl.reset();
    context.reset();
    TestBase::cleanup();
}

void DrawingTest::addBank(int vertices, qint32 primitive)
{
    VertexBank *bank = map->addVertexBank(QStringLiteral("bank"));
    bank->primitive = primitive;
    for (int i = 0; i < vertices; ++i)
        bank->vertices.append({static_cast<float>(i), -4.99F, 0.0F, 0x80FFFFFFU});
}
