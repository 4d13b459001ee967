#pragma once

#include <QOffscreenSurface>
#include <QOpenGLContext>

/// An OpenGL context of its own, current while it lives.
class CurrentContext {
public:
    CurrentContext()
    {
        surface.create();
        isCurrent = context.create() && context.makeCurrent(&surface);
    }

    bool isValid() const { return isCurrent; }

private:
    QOffscreenSurface surface;
    QOpenGLContext context;
    bool isCurrent = false;
};
