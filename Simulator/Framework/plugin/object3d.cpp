#include "Framework/object3d.h"

#include <QOpenGLShaderProgram>

class Object3DPrivate {
public:
    QOpenGLShaderProgram shaderProgram;
};

Object3D::Object3D()
    : d(new Object3DPrivate)
{
}

Object3D::~Object3D() = default;

QOpenGLShaderProgram &Object3D::shaderProgram()
{
    return d->shaderProgram;
}
