// The shaders lie in a static library, which hands its resources to a program that names them only.

#include <QtGlobal>

static const bool hasResources = [] {
    Q_INIT_RESOURCE(terminal);
    return true;
}();
