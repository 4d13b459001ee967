#include "testbase.h"

#include "Framework/object3d.h"

#include <QOpenGLShaderProgram>
#include <QPointer>

namespace {

class Drawable : public Object3D {
public:
    using Object3D::shaderProgram;

    void draw(QMatrix4x4) override { }
    void init() override { }
    float drawingOrder() const override { return -4.5f; }
};

} // namespace

class TestObject3D : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theProgramIsMadeWithTheDrawableAndGoesWithIt();
    void eachDrawableHasAProgramOfItsOwn();
};

void TestObject3D::theProgramIsMadeWithTheDrawableAndGoesWithIt()
{
    QPointer<QOpenGLShaderProgram> program;
    {
        Drawable drawable;
        program = &drawable.shaderProgram();
        QCOMPARE(program->parent(), nullptr);
        QVERIFY(program->shaders().isEmpty());
    }
    QVERIFY(program.isNull());
}

void TestObject3D::eachDrawableHasAProgramOfItsOwn()
{
    Drawable first;
    Drawable second;
    QVERIFY(&first.shaderProgram() != &second.shaderProgram());
    QCOMPARE(&first.shaderProgram(), &first.shaderProgram());
}

RXMAP_TEST(TestObject3D, Widgets)
#include "tst_object3d.moc"
